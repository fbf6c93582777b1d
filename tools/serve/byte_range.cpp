#include "serve/byte_range.h"

#include <strings.h>

#include <charconv>
#include <limits>
#include <optional>

namespace lumora::serve {
namespace {

constexpr std::string_view kUnit = "bytes=";

std::string_view Trim(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

// Digits only; a position too large for 64 bits reads as the largest one, which lies beyond any
// file.
std::optional<uint64_t> Position(std::string_view digits) {
  if (digits.empty()) return std::nullopt;
  for (char c : digits) {
    if (c < '0' || c > '9') return std::nullopt;
  }
  uint64_t value = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (result.ec == std::errc::result_out_of_range) return std::numeric_limits<uint64_t>::max();
  return value;
}

RangeAnswer Part(uint64_t first, uint64_t last) {
  return {RangeAnswer::kPart, first, last - first + 1};
}

}  // namespace

RangeAnswer ResolveRange(std::string_view header, uint64_t size) {
  header = Trim(header);
  if (header.size() <= kUnit.size() ||
      ::strncasecmp(header.data(), kUnit.data(), kUnit.size()) != 0) {
    return {};
  }
  const std::string_view ranges = Trim(header.substr(kUnit.size()));
  const size_t dash = ranges.find('-');
  if (ranges.find(',') != std::string_view::npos || dash == std::string_view::npos) return {};
  const std::string_view first_text = Trim(ranges.substr(0, dash));
  const std::string_view last_text = Trim(ranges.substr(dash + 1));
  if (first_text.empty()) {
    const std::optional<uint64_t> suffix = Position(last_text);
    if (!suffix) return {};
    if (*suffix == 0 || size == 0) return {RangeAnswer::kUnsatisfiable};
    return Part(*suffix >= size ? 0 : size - *suffix, size - 1);
  }
  const std::optional<uint64_t> first = Position(first_text);
  const std::optional<uint64_t> last =
      last_text.empty() ? std::optional<uint64_t>(std::numeric_limits<uint64_t>::max())
                        : Position(last_text);
  if (!first || !last || *last < *first) return {};
  if (*first >= size) return {RangeAnswer::kUnsatisfiable};
  return Part(*first, std::min(*last, size - 1));
}

}  // namespace lumora::serve
