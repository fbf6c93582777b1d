// What every set-file save shares: archive bytes go through the checksummed file so that its
// running checksum sees them, and a failed attempt is tried again as SetSaveRetrySettings says.
#pragma once

#include <lumora/platform/stream.h>
#include <lumora/support/xcrc_file2.h>

#include <cstdint>
#include <functional>
#include <string>

namespace lumora {

// An archive's store side over a checksummed file. Counts what it passed on, which is the
// file's position once the archive above it was flushed.
class ChecksummedSink : public Stream {
 public:
  explicit ChecksummedSink(xCRCFile2& file) : file_(file) {}
  size_t Read(void*, size_t) override { return 0; }
  bool Write(const void* buffer, size_t n) override {
    written_ += n;
    return file_.Write(buffer, n);
  }
  uint64_t Remaining() const override { return 0; }
  uint64_t written() const { return written_; }

 private:
  xCRCFile2& file_;
  uint64_t written_ = 0;
};

// Whether a new file can be created beside `path`. Checked before opening for writing, so
// that a folder that cannot take a new file does not have its old one truncated either.
bool FolderTakesNewFile(const std::string& path);

// Calls `attempt` until it answers true or the retry settings give up; true on success.
bool RetrySave(const std::function<bool()>& attempt);

}  // namespace lumora
