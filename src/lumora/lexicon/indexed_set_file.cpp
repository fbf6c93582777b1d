#include <lumora/lexicon/indexed_set_file.h>
#include <lumora/lexicon/read_to_end.h>
#include <lumora/lexicon/set_read_failure.h>
#include <lumora/platform/file.h>
#include <lumora/platform/profile.h>
#include <lumora/platform/stream.h>
#include <lumora/support/xcrc_file2.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdio>
#include <cstring>
#include <vector>

namespace lumora {
namespace {

constexpr int32_t kFirstRefusedIndexVersion = 100;
constexpr int32_t kUnrecordedIndexVersion = 1;
constexpr int32_t kUsableRecordsIndexVersion = 2;
constexpr uint32_t kLastWord = 65534;

std::string IndexVersionKey(std::u16string_view name) {
  return "Version_" + SetIndexPath("", name);
}

std::string ChecksumList(const std::string& folder) { return folder + xCRCFile2::kListName; }

bool ReadWhole(const std::string& path, std::vector<uint8_t>& bytes) {
  File file;
  if (!file.Open(path, open_flags::kRead | open_flags::kBinary)) return false;
  ReadToEnd(file, bytes);
  return true;
}

}  // namespace

std::string SetIndexPath(const std::string& folder, std::u16string_view name) {
  return SetFilePath(folder, name, ".idx");
}

int32_t ReadSetIndexVersion(const std::string& folder, std::u16string_view name) {
  return static_cast<int32_t>(profile::GetInt(ChecksumList(folder), xCRCFile2::kListSection,
                                              IndexVersionKey(name), kUnrecordedIndexVersion));
}

void StageSetIndexVersion(FolderCommit& commit, std::u16string_view name) {
  commit.SetListValue(IndexVersionKey(name), std::to_string(kUsableRecordsIndexVersion));
}

LoadResult LoadSetIndex(const std::string& folder, std::u16string_view name, int32_t& version,
                        DWordArray& offsets) {
  const std::string path = SetIndexPath(folder, name);
  const int32_t recorded = ReadSetIndexVersion(folder, name);
  if (recorded >= kFirstRefusedIndexVersion) {
    return LoadResult({path, std::nullopt,
                       "CRCFile.ini gives it version " + std::to_string(recorded) +
                           ", and indexes of version 100 and above are refused"});
  }
  version = recorded;
  offsets.RemoveAll();
  std::vector<uint8_t> bytes;
  if (!ReadWhole(path, bytes)) return LoadResult(UnopenedSetFile(path));
  offsets.SetSize(static_cast<uint32_t>(bytes.size() / 4));
  if (offsets.empty()) return {};
  if constexpr (std::endian::native == std::endian::little) {
    std::memcpy(offsets.data(), bytes.data(), size_t{offsets.size()} * 4);
  } else {
    for (uint32_t i = 0; i < offsets.size(); ++i) offsets[i] = DecodeU32(bytes.data() + 4 * i);
  }
  return {};
}

bool ReadSetIndex(const std::string& folder, std::u16string_view name, int32_t& version,
                  DWordArray& offsets) {
  return LoadSetIndex(folder, name, version, offsets).ok();
}

std::string QualityFilePath(const std::string& folder, uint32_t quality, uint32_t word) {
  char tail[48];
  std::snprintf(tail, sizeof tail, "Q%d%c%03d%c%02d.swf", static_cast<int>(quality), kPathSeparator,
                static_cast<int>(word / 100), kPathSeparator, static_cast<int>(word % 100));
  return folder + tail;
}

bool IsIndexableRecord(const std::string& folder, uint32_t word, bool present,
                       int32_t index_version, const ByteArray* qualities) {
  if (word == 0 || word == 0xFFFF) return false;
  if (index_version < kUsableRecordsIndexVersion) return true;
  if (!present) return false;
  if (qualities == nullptr) return true;
  for (uint8_t quality : *qualities) {
    if (!FileExists(QualityFilePath(folder, quality, word))) return false;
  }
  return true;
}

void SetIndexEntries::Enter(uint32_t word, bool usable) {
  // The words without a record before this one, a block of offsets at a time.
  static const std::array<uint8_t, 1024> kNoRecords = [] {
    std::array<uint8_t, 1024> block;
    for (size_t i = 0; i < block.size(); i += 4) EncodeU32(block.data() + i, kNoRecordOffset);
    return block;
  }();
  while (nextWord_ < word) {
    const uint32_t n = std::min<uint32_t>(word - nextWord_, kNoRecords.size() / 4);
    index_.Write(kNoRecords.data(), size_t{n} * 4);
    nextWord_ += n;
  }
  uint32_t entry = kNoRecordOffset;
  if (usable) {
    set_.Flush();
    entry = static_cast<uint32_t>(setSink_.written());
  }
  index_.WriteU32(entry);
  nextWord_ = word + 1;
}

void StageIndexedSetFile(FolderCommit& commit, std::u16string_view name,
                         const std::function<void(Archive&, SetIndexEntries&)>& write_records) {
  StringSink set_sink;
  StringSink index_sink;
  Archive set(set_sink, Archive::Mode::kStore);
  Archive index(index_sink, Archive::Mode::kStore);
  SetIndexEntries entries(set, set_sink, index);
  set.WriteU32(WrittenSetVersion(SetFamily::kGlossary));
  write_records(set, entries);
  set.Flush();
  index.Flush();
  commit.Add(SetFileName(name), set_sink.Take(), true);
  commit.Add(SetFileName(name, ".idx"), index_sink.Take(), true);
}

bool FetchSetRecord(const std::string& folder, std::u16string_view name, const DWordArray& offsets,
                    uint32_t word, const std::function<void(Archive&)>& read) {
  if (word < 1 || word > kLastWord || word >= offsets.size()) return false;
  const uint32_t offset = offsets[word];
  if (offset == kNoRecordOffset) return false;
  File file;
  if (!file.Open(SetFilePath(folder, name), open_flags::kRead | open_flags::kBinary)) {
    return false;
  }
  if (!file.SeekTo(offset)) return false;
  try {
    FileStream stream(file);
    Archive ar(stream, Archive::Mode::kLoad);
    read(ar);
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace lumora
