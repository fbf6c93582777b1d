// The one byte range of a Range header that the file answer honours.
#pragma once

#include <cstdint>
#include <string_view>

namespace lumora::serve {

struct RangeAnswer {
  enum Kind {
    kWhole,          // no range, one we do not serve (several, another unit) or a malformed one
    kPart,           // 206 with `first` and `length`
    kUnsatisfiable,  // 416
  };
  Kind kind = kWhole;
  uint64_t first = 0;
  uint64_t length = 0;
};

// Reads "bytes=a-b", "bytes=a-" or "bytes=-n" against a file of `size` bytes. A last position
// beyond the end is cut to it; a first position at or beyond the end, and a suffix of length 0
// or of an empty file, cannot be satisfied. Anything else is ignored, as HTTP allows.
RangeAnswer ResolveRange(std::string_view header, uint64_t size);

}  // namespace lumora::serve
