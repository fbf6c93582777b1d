#include <lumora/lexicon/read_to_end.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/lexicon/set_file_write.h>
#include <lumora/platform/stream.h>
#include <lumora/support/crc32.h>
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

// Whether the bytes the reader took match the recorded checksum. The file's own running
// checksum covers everything read from disk; when the records end before the file does, only
// the part they took counts, so trailing bytes make the table fail as they would for a reader
// that stops at its last record.
bool ReadBytesAreGood(const xCRCFile2& file, const std::vector<uint8_t>& bytes, size_t taken) {
  if (taken == bytes.size()) return file.IsGood();
  return file.expected() == 0 || Crc32(bytes.data(), taken) == file.expected();
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

bool ReadSetFile(const std::string& path, SetFamily family,
                 const std::function<void(Archive&, uint32_t version)>& read_records,
                 uint32_t* version_read) {
  using namespace open_flags;
  try {
    xCRCFile2 file(true, true);
    if (!file.Open(path, kRead | kBinary)) return false;
    MemoryStream stream(ReadWhole(file));
    file.Close();
    Archive ar(stream, Archive::Mode::kLoad);
    const uint32_t version = ar.ReadU32();
    if (!AcceptsSetVersion(family, version)) return false;
    if (version_read) *version_read = version;
    read_records(ar, version);
    return ReadBytesAreGood(file, stream.bytes(), stream.bytes().size() - ar.Available());
  } catch (const std::exception&) {
    // A file that ends inside a record, or a count no file could hold.
    return false;
  }
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
