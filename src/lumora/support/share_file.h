// A buffered file that waits for other processes. Reads deny writers and writes are
// exclusive; an open that fails because another process holds the file is retried as
// RetryWhileHeld says, and any other failure (no permission, no such folder) fails at once
// with one message through Notify.
// Text mode writes every line feed as CR LF and reads lines without their line end.
#pragma once

#include <lumora/platform/file.h>
#include <lumora/platform/held_retry.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumora {

// What a failed open reports to a caller that asks for it.
struct FileError {
  int os_error = 0;
  std::string message;
};

class ShareFile {
 public:
  ShareFile() = default;
  virtual ~ShareFile();
  ShareFile(const ShareFile&) = delete;
  ShareFile& operator=(const ShareFile&) = delete;

  bool Open(const std::string& path, uint32_t flags, FileError* error = nullptr);
  virtual void Close();
  bool IsOpen() const { return file_.IsOpen(); }
  uint32_t openFlags() const { return open_flags_; }
  bool IsText() const { return (open_flags_ & open_flags::kText) != 0; }

  // Raw bytes; gives the number read (fewer only at the end).
  virtual size_t Read(void* buffer, size_t n);
  // Writes n bytes (line feeds as CR LF in text mode); false when the disk refused them.
  virtual bool Write(const void* buffer, size_t n);

  // Reads one line without its line end (a CR before the LF is dropped too). False at the end
  // of the file with nothing read. `had_end` tells whether the line was ended by a line feed.
  virtual bool ReadString(std::string& line, bool* had_end = nullptr);
  bool WriteString(std::string_view text) { return Write(text.data(), text.size()); }

  bool SeekToEnd();
  bool SeekTo(uint64_t offset);
  uint64_t Size();
  // Writes out buffered bytes; false when the disk refused any write since the open.
  bool Flush() { return FlushWrites(); }

 protected:
  bool WriteRaw(const void* buffer, size_t n);
  bool FlushWrites();

 private:
  int TryOpen(const std::string& path);
  std::string FailureMessage(const std::string& path) const;

  File file_;
  uint32_t open_flags_ = 0;
  std::vector<uint8_t> read_buffer_;
  size_t read_pos_ = 0;
  std::vector<uint8_t> write_buffer_;
  bool write_failed_ = false;
};

}  // namespace lumora
