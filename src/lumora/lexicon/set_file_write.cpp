#include <lumora/lexicon/set_file_write.h>
#include <lumora/platform/codepage.h>
#include <lumora/platform/stream.h>

namespace lumora {
namespace {

constexpr uint32_t kWesternCodePage = 1252;

}  // namespace

std::string SetFileName(std::u16string_view name, std::string_view extension) {
  return EncodeCodePage(name, kWesternCodePage) + std::string(extension);
}

std::string SetFileBytes(uint32_t version, const std::function<void(Archive&)>& write_records) {
  StringSink sink;
  Archive ar(sink, Archive::Mode::kStore);
  ar.WriteU32(version);
  write_records(ar);
  ar.Flush();
  return sink.Take();
}

bool CommitSaved(FolderCommit& commit) { return commit.Commit().ok(); }

}  // namespace lumora
