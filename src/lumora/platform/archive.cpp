#include <lumora/platform/archive.h>
#include <lumora/platform/stream.h>

#include <algorithm>
#include <cstring>

namespace lumora {

Archive::Archive(Stream& stream, Mode mode) : stream_(stream), mode_(mode) {}

// Storing archives must be flushed explicitly; a destructor cannot report a failed write.
Archive::~Archive() = default;

void Archive::Fill() {
  if (begin_ < end_) return;
  begin_ = 0;
  end_ = stream_.Read(buffer_, kBufferSize);
  filled_ += end_;
}

void Archive::ReadSlow(void* buffer, size_t n) {
  auto* out = static_cast<uint8_t*>(buffer);
  while (n > 0) {
    Fill();
    if (begin_ == end_)
      throw ArchiveError(ArchiveError::Kind::kEndOfFile, "unexpected end of file");
    size_t take = std::min(n, end_ - begin_);
    std::memcpy(out, buffer_ + begin_, take);
    begin_ += take;
    out += take;
    n -= take;
  }
}

void Archive::WriteSlow(const void* buffer, size_t n) {
  if (n == 0) return;
  const auto* in = static_cast<const uint8_t*>(buffer);
  if (n >= kBufferSize) {
    Flush();
    if (!stream_.Write(in, n)) throw ArchiveError(ArchiveError::Kind::kWriteFault, "write failed");
    return;
  }
  if (end_ + n > kBufferSize) Flush();
  std::memcpy(buffer_ + end_, in, n);
  end_ += n;
}

void Archive::Flush() {
  if (mode_ != Mode::kStore || end_ == 0) return;
  bool ok = stream_.Write(buffer_, end_);
  end_ = 0;
  if (!ok) throw ArchiveError(ArchiveError::Kind::kWriteFault, "write failed");
}

uint64_t Archive::Available() const { return (end_ - begin_) + stream_.Remaining(); }

void Archive::Require(uint64_t n) {
  if (Available() < n) throw ArchiveError(ArchiveError::Kind::kEndOfFile, "stored count too large");
}

void Archive::IoBool(bool& v) {
  if (IsStoring()) {
    WriteU8(v ? 1 : 0);
  } else {
    v = ReadU8() == 1;
  }
}

}  // namespace lumora
