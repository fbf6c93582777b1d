#include <lumora/platform/notify.h>
#include <lumora/platform/profile.h>
#include <lumora/platform/tick.h>
#include <lumora/support/paths.h>
#include <lumora/support/xcrc_file2.h>

#include <sys/stat.h>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace lumora {
namespace {

constexpr size_t kChecksumBlock = 10000;
constexpr int kCorruptionLine = 375;
constexpr size_t kMaxDateChars = 63;

std::string ListPath(const std::string& path) { return FolderOf(path) + xCRCFile2::kListName; }

std::string ListKey(const std::string& path) { return path.substr(FolderOf(path).size()); }

// "05/03/2002 14:07:09" -> that local time; 0 when the text does not hold six numbers.
std::time_t ParseRecordedDate(const std::string& text) {
  int parts[6] = {};
  int found = 0;
  const char* p = text.c_str();
  while (*p && found < 6) {
    while (*p == ' ' || *p == '/' || *p == ':' || *p == '\n') ++p;
    if (!*p) break;
    char* end;
    parts[found++] = static_cast<int>(std::strtol(p, &end, 10));
    if (end == p) break;
    p = end;
  }
  if (found < 6) return 0;
  std::tm tm{};
  tm.tm_mday = parts[0];
  tm.tm_mon = parts[1] - 1;
  tm.tm_year = parts[2] - 1900;
  tm.tm_hour = parts[3];
  tm.tm_min = parts[4];
  tm.tm_sec = parts[5];
  tm.tm_isdst = -1;
  std::time_t t = std::mktime(&tm);
  return t == -1 ? 0 : t;
}

}  // namespace

std::string xCRCFile2::ListDate(const std::string& path) {
  struct stat st;
  if (::stat(path.c_str(), &st) != 0) return std::string();
  std::tm tm{};
  localtime_r(&st.st_mtime, &tm);
  char text[32];
  std::strftime(text, sizeof text, "%d/%m/%Y %H:%M:%S", &tm);
  return text;
}

std::string xCRCFile2::ListChecksumText(uint32_t crc) {
  return std::to_string(static_cast<int32_t>(crc));
}

xCRCFile2::~xCRCFile2() { ShareFile::Close(); }

bool xCRCFile2::Open(const std::string& path, uint32_t flags, FileError* error) {
  using namespace open_flags;
  path_ = path;
  running_ = CrcAccumulator();
  verified_ = false;
  const bool from_scratch = (flags & kCreate) && Writes(flags) && !(flags & kNoTruncate);
  if (!from_scratch && checksumOn) ReadRecordedChecksum(path);
  if (!ShareFile::Open(path, flags, error)) {
    path_.clear();
    return false;
  }
  return true;
}

void xCRCFile2::ReadRecordedChecksum(const std::string& path) {
  if (useList) {
    const std::string list = ListPath(path);
    const std::string key = ListKey(path);
    expected_ = profile::GetInt(list, kListSection, key, 0);
    std::string date = profile::GetString(list, kListSection, "DATE_" + key, "", kMaxDateChars);
    recordedDate_ = date.empty() ? 0 : ParseRecordedDate(date);
    return;
  }
  ShareFile file;
  if (!file.Open(path, open_flags::kRead | open_flags::kBinary)) return;
  uint8_t t[4];
  const uint64_t size = file.Size();
  if (size >= 4 && file.SeekTo(size - 4) && file.Read(t, 4) == 4) {
    expected_ = t[0] | (t[1] << 8) | (t[2] << 16) | (uint32_t{t[3]} << 24);
  }
}

size_t xCRCFile2::Read(void* buffer, size_t n) {
  if (!IsOpen()) return 0;
  size_t got = ShareFile::Read(buffer, n);
  running_.Update(buffer, got);
  return got;
}

bool xCRCFile2::Write(const void* buffer, size_t n) {
  if (!IsOpen() || n == 0) return true;
  if (IsText()) {
    // The checksum covers the bytes on disk, where each line feed stands as CR LF.
    const char* p = static_cast<const char*>(buffer);
    const char* end = p + n;
    for (const char* lf; (lf = std::find(p, end, '\n')) != end; p = lf + 1) {
      running_.Update(p, static_cast<size_t>(lf - p));
      running_.Update("\r\n", 2);
    }
    running_.Update(p, static_cast<size_t>(end - p));
  } else {
    running_.Update(buffer, n);
  }
  return ShareFile::Write(buffer, n);
}

bool xCRCFile2::ReadString(std::string& line, bool* had_end) {
  if (!IsOpen()) return false;
  bool ended = false;
  bool got = ShareFile::ReadString(line, &ended);
  running_.Update(line.data(), line.size());
  if (ended) running_.Update("\r\n", 2);
  if (had_end) *had_end = ended;
  return got;
}

bool xCRCFile2::IsGood() const {
  return !checksumOn || expected_ == 0 || running_.value() == expected_;
}

void xCRCFile2::Close() {
  const bool was_open = IsOpen();
  ShareFile::Close();
  if (was_open && open_flags::Writes(openFlags())) VerifyAndRecord();
  path_.clear();
}

bool xCRCFile2::VerifyAndRecord() {
  if (!checksumOn || verified_) return true;
  if (path_.empty()) return false;
  ShareFile::Close();
  const uint32_t crc = FileChecksum(path_);
  if (crc != running_.value()) {
    verified_ = false;
    Notify("The file or directory is corrupted and unreadable.\nFile: " + path_ +
           "\nsrc: xcrc_file2.cpp, line: " + std::to_string(kCorruptionLine));
    return false;
  }
  verified_ = true;
  return useList ? RecordInList(crc) : AppendTrailer(crc);
}

bool xCRCFile2::RecordInList(uint32_t crc) const {
  const std::string list = ListPath(path_);
  const std::string key = ListKey(path_);
  return profile::WriteString(list, kListSection, key, ListChecksumText(crc)) &&
         profile::WriteString(list, kListSection, "DATE_" + key, ListDate(path_));
}

bool xCRCFile2::AppendTrailer(uint32_t crc) {
  using namespace open_flags;
  ShareFile file;
  if (!file.Open(path_, kCreate | kNoTruncate | kWrite | kBinary) || !file.SeekToEnd()) {
    return false;
  }
  const uint8_t bytes[4] = {static_cast<uint8_t>(crc), static_cast<uint8_t>(crc >> 8),
                            static_cast<uint8_t>(crc >> 16), static_cast<uint8_t>(crc >> 24)};
  return file.Write(bytes, sizeof bytes) && file.Flush();
}

uint32_t xCRCFile2::FileChecksum(const std::string& path) {
  ShareFile file;
  if (!file.Open(path, open_flags::kRead | open_flags::kBinary | open_flags::kShareDenyWrite)) {
    return 0;
  }
  CrcAccumulator crc;
  uint8_t block[kChecksumBlock];
  for (size_t got; (got = file.Read(block, sizeof block)) > 0;) crc.Update(block, got);
  return crc.value();
}

bool xCRCFile2::ShouldRetry(uint32_t attempts, uint32_t start_tick) {
  const uint32_t elapsed = TickCount() - start_tick;
  if (attempts > 10) return elapsed <= 10000;
  if (attempts >= 4) return elapsed <= 30000;
  return true;
}

}  // namespace lumora
