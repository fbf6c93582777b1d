// A plain unbuffered binary file over a POSIX descriptor, opened with the framework's flag
// values. Share modes become advisory locks: a deny-write open takes a shared lock, an
// exclusive open an exclusive one, and a lock held elsewhere makes the open fail at once so
// that the caller can decide whether to retry. Failures are results, never exceptions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace lumora {

namespace open_flags {
inline constexpr uint32_t kRead = 0x0000;
inline constexpr uint32_t kWrite = 0x0001;
inline constexpr uint32_t kReadWrite = 0x0002;
inline constexpr uint32_t kShareCompat = 0x0000;
inline constexpr uint32_t kShareExclusive = 0x0010;
inline constexpr uint32_t kShareDenyWrite = 0x0020;
inline constexpr uint32_t kShareDenyRead = 0x0030;
inline constexpr uint32_t kShareDenyNone = 0x0040;
inline constexpr uint32_t kShareMask = 0x0070;
inline constexpr uint32_t kCreate = 0x1000;
inline constexpr uint32_t kNoTruncate = 0x2000;
inline constexpr uint32_t kText = 0x4000;
inline constexpr uint32_t kBinary = 0x8000;

inline bool Writes(uint32_t flags) { return (flags & (kWrite | kReadWrite)) != 0; }
}  // namespace open_flags

class File {
 public:
  File() = default;
  ~File();
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  // Opens `path` with the framework flags above. On failure the file stays closed and
  // LastError() holds the operating-system error number.
  bool Open(const std::string& path, uint32_t flags);
  void Close();
  bool IsOpen() const { return fd_ >= 0; }

  // Reads up to n bytes; fewer only at the end of the file or on an error (then LastError()).
  size_t Read(void* buffer, size_t n);
  // Writes all n bytes or gives false.
  bool Write(const void* buffer, size_t n);
  bool SeekToEnd();
  bool SeekTo(uint64_t offset);
  // Kept by the object itself (nothing else moves the descriptor), so asking costs no call.
  uint64_t Position() const { return fd_ >= 0 ? position_ : 0; }
  // A file opened for reading only answers the size it had when opened.
  uint64_t Size() const;

  int LastError() const { return error_; }

 private:
  bool SeekResult(int64_t offset);  // records the offset lseek answered, when it succeeded

  int fd_ = -1;
  int error_ = 0;
  uint64_t position_ = 0;
  bool regular_ = false;
  bool writable_ = false;
  uint64_t openedSize_ = 0;  // a short read of a regular file means its end: no read to confirm
};

// What reading a whole file gave.
enum class WholeFile { kRead, kMissing, kUnreadable, kTooLarge };

// Reads all of the regular file at `path` into `bytes`, unless it holds more than `most_bytes`.
// kMissing when nothing stands there or something other than a regular file does (a folder, a
// pipe: nothing waits for a writer).
WholeFile ReadWholeFile(const std::string& path, uint64_t most_bytes, std::string& bytes);

}  // namespace lumora
