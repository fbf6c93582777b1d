// A buffered, little-endian archive over a stream, in load or store mode. Every stored form of
// the library is written and read through one Serialize per class that calls the same
// sequence of operations in both modes. Errors are thrown as ArchiveError and caught where a
// whole file is loaded or stored.
//
// Beside it: the root class of every stored object, the fixed-width byte coding of our files and
// the stored forms of strings.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

// Root of every persistent class: a class name for diagnostics, a virtual destructor and one
// Serialize that both stores and loads the same field sequence.

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Archive;

class Object {
 public:
  virtual ~Object() = default;
  virtual const char* ClassName() const { return "Object"; }
  virtual void Serialize(Archive& ar) { (void)ar; }

 protected:
  Object() = default;
  Object(const Object&) = default;
  Object& operator=(const Object&) = default;
};

}  // namespace lumora

#pragma GCC visibility pop

// Fixed-width little-endian values: the only place that knows the byte order of our files.

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

inline void EncodeU16(uint8_t* p, uint16_t v) {
  p[0] = static_cast<uint8_t>(v);
  p[1] = static_cast<uint8_t>(v >> 8);
}

inline void EncodeU32(uint8_t* p, uint32_t v) {
  p[0] = static_cast<uint8_t>(v);
  p[1] = static_cast<uint8_t>(v >> 8);
  p[2] = static_cast<uint8_t>(v >> 16);
  p[3] = static_cast<uint8_t>(v >> 24);
}

inline uint16_t DecodeU16(const uint8_t* p) { return static_cast<uint16_t>(p[0] | (p[1] << 8)); }

inline uint32_t DecodeU32(const uint8_t* p) {
  return static_cast<uint32_t>(p[0]) | (static_cast<uint32_t>(p[1]) << 8) |
         (static_cast<uint32_t>(p[2]) << 16) | (static_cast<uint32_t>(p[3]) << 24);
}

}  // namespace lumora

#pragma GCC visibility pop

namespace lumora {
// Declared before the public region: the streams stay the library's own (hidden), whichever of
// the two declarations a compiler meets first.
class Stream;
}  // namespace lumora

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class ArchiveError : public std::runtime_error {
 public:
  enum class Kind { kEndOfFile, kBadClass, kBadFormat, kWriteFault };
  ArchiveError(Kind kind, const std::string& what) : std::runtime_error(what), kind_(kind) {}
  Kind kind() const { return kind_; }

 private:
  Kind kind_;
};

class Archive {
 public:
  enum class Mode { kLoad, kStore };
  static constexpr size_t kBufferSize = 4096;

  Archive(Stream& stream, Mode mode);
  ~Archive();
  Archive(const Archive&) = delete;
  Archive& operator=(const Archive&) = delete;

  bool IsLoading() const { return mode_ == Mode::kLoad; }
  bool IsStoring() const { return mode_ == Mode::kStore; }

  // Reads exactly n bytes or throws kEndOfFile. Inline for the common case of a small field
  // already buffered: loading calls it once per stored field.
  void Read(void* buffer, size_t n) {
    if (n != 0 && n <= kSmallField && n <= end_ - begin_) {
      std::memcpy(buffer, buffer_ + begin_, n);
      begin_ += n;
      return;
    }
    ReadSlow(buffer, n);
  }
  void Write(const void* buffer, size_t n) {
    if (n != 0 && n <= kSmallField && n < kBufferSize - end_) {
      std::memcpy(buffer_ + end_, buffer, n);
      end_ += n;
      return;
    }
    WriteSlow(buffer, n);
  }
  // Writes out what is buffered (store mode); throws kWriteFault when the stream refuses it.
  void Flush();

  // Throws kEndOfFile unless at least n more bytes can be read. Called before allocating room
  // for a stored count, so that a corrupted count fails instead of exhausting memory.
  void Require(uint64_t n);
  // Bytes a loading archive can still read: those buffered and those the stream holds.
  uint64_t Available() const;
  // Bytes a loading archive has handed out so far: where in the file a failed read stopped.
  uint64_t Position() const { return filled_ - (end_ - begin_); }
  // True when a loading archive has no buffered byte left (the stream may still hold more).
  bool AtEnd() const { return begin_ == end_; }

  uint8_t ReadU8() {
    uint8_t v;
    Read(&v, 1);
    return v;
  }
  uint16_t ReadU16() {
    uint8_t b[2];
    Read(b, 2);
    return DecodeU16(b);
  }
  uint32_t ReadU32() {
    uint8_t b[4];
    Read(b, 4);
    return DecodeU32(b);
  }
  void WriteU8(uint8_t v) { Write(&v, 1); }
  void WriteU16(uint16_t v) {
    uint8_t b[2];
    EncodeU16(b, v);
    Write(b, 2);
  }
  void WriteU32(uint32_t v) {
    uint8_t b[4];
    EncodeU32(b, v);
    Write(b, 4);
  }

  // Stores or loads one value, whichever the mode is. Inline: records call them once per field.
  void Io(uint8_t& v) { IsStoring() ? WriteU8(v) : void(v = ReadU8()); }
  void Io(uint16_t& v) { IsStoring() ? WriteU16(v) : void(v = ReadU16()); }
  void Io(uint32_t& v) { IsStoring() ? WriteU32(v) : void(v = ReadU32()); }
  // A bool kept as one byte: written as 1 or 0, read as true only when the byte is 1.
  void IoBool(bool& v);

 private:
  static constexpr size_t kSmallField = 32;

  void Fill();
  void ReadSlow(void* buffer, size_t n);
  void WriteSlow(const void* buffer, size_t n);

  Stream& stream_;
  Mode mode_;
  uint8_t buffer_[kBufferSize];
  size_t begin_ = 0;     // next unread byte (load)
  size_t end_ = 0;       // end of valid bytes (load) or of buffered bytes (store)
  uint64_t filled_ = 0;  // bytes taken from the stream into the buffer (load)
};

}  // namespace lumora

#pragma GCC visibility pop

// The framework's narrow string and string-array stored forms.
//
// A string is its length followed by its bytes. The length takes one byte below 0xFF; else
// 0xFF and a u16 below 0xFFFE; else 0xFF, 0xFFFF and a u32. A string array is its count as a
// u16 below 0xFFFF, else 0xFFFF and a u32, followed by that many strings.

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Archive;

std::string ReadArchiveString(Archive& ar);
void WriteArchiveString(Archive& ar, const std::string& text);
void IoArchiveString(Archive& ar, std::string& text);

class StringArray : public Object {
 public:
  std::vector<std::string> items;

  const char* ClassName() const override { return "StringArray"; }
  void Serialize(Archive& ar) override;
};

}  // namespace lumora

#pragma GCC visibility pop
