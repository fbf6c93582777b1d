#include <lumora/platform/file.h>
#include <lumora/platform/stream.h>

#include <algorithm>
#include <cstring>

namespace lumora {

FileStream::FileStream(File& file) : file_(file), size_(file.Size()), position_(file.Position()) {}

size_t FileStream::Read(void* buffer, size_t n) {
  const size_t got = file_.Read(buffer, n);
  position_ += got;
  return got;
}

bool FileStream::Write(const void* buffer, size_t n) { return file_.Write(buffer, n); }

uint64_t FileStream::Remaining() const { return position_ < size_ ? size_ - position_ : 0; }

size_t MemoryStream::Read(void* buffer, size_t n) {
  size_t take = std::min(n, bytes_.size() - pos_);
  if (take > 0) std::memcpy(buffer, bytes_.data() + pos_, take);
  pos_ += take;
  return take;
}

size_t ViewStream::Read(void* buffer, size_t n) {
  const size_t take = std::min(n, bytes_.size() - pos_);
  if (take > 0) std::memcpy(buffer, bytes_.data() + pos_, take);
  pos_ += take;
  return take;
}

bool MemoryStream::Write(const void* buffer, size_t n) {
  const auto* p = static_cast<const uint8_t*>(buffer);
  bytes_.insert(bytes_.end(), p, p + n);
  return true;
}

}  // namespace lumora
