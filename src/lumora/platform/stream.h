// Byte sources and sinks under an Archive: a file or a block of memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lumora {

class File;

class Stream {
 public:
  virtual ~Stream() = default;
  // Reads up to n bytes; fewer means the end was reached.
  virtual size_t Read(void* buffer, size_t n) = 0;
  virtual bool Write(const void* buffer, size_t n) = 0;
  // Bytes still to be read, so that a corrupted count can be refused before it is allocated.
  virtual uint64_t Remaining() const = 0;
};

class FileStream : public Stream {
 public:
  explicit FileStream(File& file);
  size_t Read(void* buffer, size_t n) override;
  bool Write(const void* buffer, size_t n) override;
  uint64_t Remaining() const override;

 private:
  File& file_;
  uint64_t size_;
  // Counted here rather than asked of the file: archives ask for the bytes left before every
  // stored count, and a system call each time would dominate reading an index.
  uint64_t position_;
};

// A store-only stream that collects what is written, for files that are saved whole.
class StringSink : public Stream {
 public:
  // Room for `n` bytes at once, so that a large file is not copied each time the string grows.
  void Reserve(size_t n) { bytes_.reserve(n); }
  size_t Read(void*, size_t) override { return 0; }
  bool Write(const void* buffer, size_t n) override {
    bytes_.append(static_cast<const char*>(buffer), n);
    return true;
  }
  uint64_t Remaining() const override { return 0; }
  uint64_t written() const { return bytes_.size(); }
  std::string Take() { return std::move(bytes_); }

 private:
  std::string bytes_;
};

class MemoryStream : public Stream {
 public:
  MemoryStream() = default;
  explicit MemoryStream(std::vector<uint8_t> bytes) : bytes_(std::move(bytes)) {}
  size_t Read(void* buffer, size_t n) override;
  bool Write(const void* buffer, size_t n) override;
  uint64_t Remaining() const override { return bytes_.size() - pos_; }
  const std::vector<uint8_t>& bytes() const { return bytes_; }

 private:
  std::vector<uint8_t> bytes_;
  size_t pos_ = 0;
};

// A load-only stream over bytes that someone else keeps alive.
class ViewStream : public Stream {
 public:
  explicit ViewStream(std::string_view bytes) : bytes_(bytes) {}
  size_t Read(void* buffer, size_t n) override;
  bool Write(const void*, size_t) override { return false; }
  uint64_t Remaining() const override { return bytes_.size() - pos_; }

 private:
  std::string_view bytes_;
  size_t pos_ = 0;
};

}  // namespace lumora
