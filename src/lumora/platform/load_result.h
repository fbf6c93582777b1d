// What a load that failed can say about it: the file, the byte where reading stopped and what
// was wrong there. The library's loaders answer with a LoadResult; the entry points reduce it to
// their documented bool, and tools print it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

struct LoadFailure {
  std::string file;
  std::optional<uint64_t> offset;  // none when the file could not be read at all
  std::string what;                // "unexpected end of file", "not a resource file", ...

  // "at byte <offset>: <what>", or "<what>" without an offset.
  std::string Details() const;
  // "<file>: " + Details().
  std::string ToString() const;
};

class LoadResult {
 public:
  LoadResult() = default;  // success
  explicit LoadResult(LoadFailure failure) : failure_(std::move(failure)) {}

  bool ok() const { return !failure_; }
  explicit operator bool() const { return ok(); }
  // Valid only when !ok().
  const LoadFailure& failure() const { return *failure_; }
  // ToString() of the failure; empty on success.
  std::string reason() const { return failure_ ? failure_->ToString() : std::string(); }

 private:
  std::optional<LoadFailure> failure_;
};

}  // namespace lumora

#pragma GCC visibility pop
