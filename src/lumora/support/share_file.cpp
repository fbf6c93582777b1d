#include <lumora/platform/notify.h>
#include <lumora/platform/tick.h>
#include <lumora/support/paths.h>
#include <lumora/support/share_file.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace lumora {
namespace {

constexpr size_t kBufferSize = 64 * 1024;
constexpr int kFailureLine = 129;

}  // namespace

ShareFile::~ShareFile() { ShareFile::Close(); }

bool ShareFile::Open(const std::string& path, uint32_t flags, FileError* error) {
  using namespace open_flags;
  ShareFile::Close();  // not virtual: a derived Open has already begun its own state
  const bool writing = Writes(flags);
  if (!writing && !FileExists(path)) {
    if (error) *error = {ENOENT, "file not found"};
    return false;
  }
  open_flags_ = (flags & ~kShareMask) | (writing ? kShareExclusive : kShareDenyWrite);
  auto tell = [&](int) {
    std::string message = FailureMessage(path);
    if (error) *error = {file_.LastError(), message};
    Notify(message);
  };
  const int failed = RetryWhileHeld([&] { return TryOpen(path); }, tell);
  if (failed != 0 && !IsHeldElsewhere(failed)) tell(failed);
  return failed == 0;
}

int ShareFile::TryOpen(const std::string& path) {
  read_buffer_.clear();
  read_pos_ = 0;
  write_buffer_.clear();
  write_failed_ = false;
  if (file_.Open(path, open_flags_)) return 0;
  return file_.LastError() != 0 ? file_.LastError() : EIO;
}

std::string ShareFile::FailureMessage(const std::string& path) const {
  int os_error = file_.LastError();
  std::string text = os_error ? std::strerror(os_error) : "The file could not be opened.";
  return text + "\nFile: " + path + "\nsrc: share_file.cpp, line: " + std::to_string(kFailureLine);
}

void ShareFile::Close() {
  if (!file_.IsOpen()) return;
  FlushWrites();
  file_.Close();
}

size_t ShareFile::Read(void* buffer, size_t n) {
  auto* out = static_cast<uint8_t*>(buffer);
  size_t done = std::min(n, read_buffer_.size() - read_pos_);
  if (done > 0) std::memcpy(out, read_buffer_.data() + read_pos_, done);
  read_pos_ += done;
  if (done < n) done += file_.Read(out + done, n - done);
  return done;
}

bool ShareFile::ReadString(std::string& line, bool* had_end) {
  line.clear();
  bool any = false;
  while (true) {
    if (read_pos_ == read_buffer_.size()) {
      read_buffer_.resize(kBufferSize);
      read_buffer_.resize(file_.Read(read_buffer_.data(), kBufferSize));
      read_pos_ = 0;
      if (read_buffer_.empty()) break;
    }
    any = true;
    const uint8_t* begin = read_buffer_.data() + read_pos_;
    const uint8_t* end = read_buffer_.data() + read_buffer_.size();
    const uint8_t* lf = std::find(begin, end, uint8_t{'\n'});
    line.append(begin, lf);
    read_pos_ = static_cast<size_t>(lf - read_buffer_.data());
    if (lf != end) {
      ++read_pos_;
      if (!line.empty() && line.back() == '\r') line.pop_back();
      if (had_end) *had_end = true;
      return true;
    }
  }
  if (had_end) *had_end = false;
  return any;
}

bool ShareFile::Write(const void* buffer, size_t n) {
  if (!IsText()) return WriteRaw(buffer, n);
  const char* p = static_cast<const char*>(buffer);
  const char* end = p + n;
  while (p < end) {
    const char* lf = std::find(p, end, '\n');
    if (!WriteRaw(p, static_cast<size_t>(lf - p))) return false;
    if (lf == end) break;
    if (!WriteRaw("\r\n", 2)) return false;
    p = lf + 1;
  }
  return true;
}

bool ShareFile::WriteRaw(const void* buffer, size_t n) {
  const auto* in = static_cast<const uint8_t*>(buffer);
  if (write_buffer_.size() + n > kBufferSize && !FlushWrites()) return false;
  if (n >= kBufferSize) {
    write_failed_ |= !file_.Write(in, n);
    return !write_failed_;
  }
  write_buffer_.insert(write_buffer_.end(), in, in + n);
  return !write_failed_;
}

bool ShareFile::FlushWrites() {
  if (!write_buffer_.empty()) {
    write_failed_ |= !file_.Write(write_buffer_.data(), write_buffer_.size());
    write_buffer_.clear();
  }
  return !write_failed_;
}

bool ShareFile::SeekToEnd() {
  read_buffer_.clear();
  read_pos_ = 0;
  return FlushWrites() && file_.SeekToEnd();
}

bool ShareFile::SeekTo(uint64_t offset) {
  read_buffer_.clear();
  read_pos_ = 0;
  return FlushWrites() && file_.SeekTo(offset);
}

uint64_t ShareFile::Size() {
  FlushWrites();
  return file_.Size();
}

}  // namespace lumora
