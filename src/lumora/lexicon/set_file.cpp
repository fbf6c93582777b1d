#include <lumora/lexicon/read_to_end.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/lexicon/set_file_write.h>
#include <lumora/lexicon/set_read_failure.h>
#include <lumora/platform/stream.h>
#include <lumora/support/paths.h>
#include <lumora/support/xcrc_file2.h>

#include <new>
#include <vector>

namespace lumora {
namespace {

std::vector<uint8_t> ReadWhole(xCRCFile2& file) {
  std::vector<uint8_t> bytes;
  ReadToEnd(file, bytes);
  return bytes;
}

}  // namespace

uint32_t WrittenSetVersion(SetFamily family) { return family == SetFamily::kGlossary ? 2 : 1; }

bool AcceptsSetVersion(SetFamily family, uint32_t version) {
  const auto signed_version = static_cast<int32_t>(version);
  switch (family) {
    case SetFamily::kGlossary:
      return signed_version < 100;
    case SetFamily::kGrammar:
      return signed_version <= 1;
    case SetFamily::kClassification:
      return version == 1;
  }
  return false;
}

std::string SetFilePath(const std::string& folder, std::u16string_view name,
                        std::string_view extension) {
  return folder + SetFileName(name, extension);
}

LoadResult LoadSetFile(const std::string& path, SetFamily family,
                       const SetRecordsReader& read_records, uint32_t* version_read) {
  using namespace open_flags;
  try {
    xCRCFile2 file(true, true);
    if (!file.Open(path, kRead | kBinary)) return LoadResult(UnopenedSetFile(path));
    MemoryStream stream(ReadWhole(file));
    file.Close();
    Archive ar(stream, Archive::Mode::kLoad);
    SetRecordCursor cursor;
    try {
      const uint32_t version = ar.ReadU32();
      if (!AcceptsSetVersion(family, version)) {
        return LoadResult(RefusedSetVersion(path, family, version));
      }
      if (version_read) *version_read = version;
      read_records(ar, version, cursor);
    } catch (const std::exception& error) {
      return LoadResult(SetReadError(path, ar, cursor, error));
    }
    return SetChecksumResult(path, stream.bytes(), stream.bytes().size() - ar.Available(),
                             file.expected(), file.running());
  } catch (const std::exception& error) {
    // The whole file did not fit in memory.
    return LoadResult({path, std::nullopt, error.what()});
  }
}

bool ReadSetFile(const std::string& path, SetFamily family,
                 const std::function<void(Archive&, uint32_t version)>& read_records,
                 uint32_t* version_read) {
  return LoadSetFile(
             path, family,
             [&read_records](Archive& ar, uint32_t version, SetRecordCursor&) {
               read_records(ar, version);
             },
             version_read)
      .ok();
}

bool WriteSetFile(const std::string& path, uint32_t version,
                  const std::function<void(Archive&)>& write_records) {
  try {
    FolderCommit commit(FolderOf(path));
    commit.Add(path.substr(FolderOf(path).size()), SetFileBytes(version, write_records), true);
    return CommitSaved(commit);
  } catch (const std::exception& error) {
    WriteStatus::Failure(path, error.what());
    return false;
  }
}

}  // namespace lumora
