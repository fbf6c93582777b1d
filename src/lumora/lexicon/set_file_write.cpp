#include <lumora/lexicon/set_file_write.h>
#include <lumora/platform/codepage.h>
#include <lumora/platform/stream.h>

#include <algorithm>

namespace lumora {
namespace {

constexpr uint32_t kWesternCodePage = 1252;

}  // namespace

std::string SetFileName(std::u16string_view name, std::string_view extension) {
  return EncodeCodePage(name, kWesternCodePage) + std::string(extension);
}

std::string SetFileBytes(uint32_t version, const std::function<void(Archive&)>& write_records,
                         uint64_t expected_size) {
  StringSink sink;
  // A little more than the old size, so that a table that grew a little still fits; a damaged
  // old file of absurd size makes no absurd reservation.
  constexpr uint64_t kMostReserved = uint64_t{256} << 20;
  sink.Reserve(static_cast<size_t>(std::min(expected_size + expected_size / 16, kMostReserved)));
  Archive ar(sink, Archive::Mode::kStore);
  ar.WriteU32(version);
  write_records(ar);
  ar.Flush();
  return sink.Take();
}

bool CommitSaved(FolderCommit& commit) { return commit.Commit().ok(); }

}  // namespace lumora
