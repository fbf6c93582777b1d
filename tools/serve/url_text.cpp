#include "serve/url_text.h"

#include <charconv>

namespace lumora::serve {
namespace {

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool IsSafeSegment(const std::string& segment) {
  if (segment.empty() || segment == "." || segment == "..") return false;
  for (unsigned char c : segment) {
    if (c < 0x20 || c == 0x7F || c == '/' || c == '\\') return false;
  }
  return true;
}

}  // namespace

std::optional<std::string> PercentDecode(std::string_view text, bool plus_is_space) {
  std::string decoded;
  decoded.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '+' && plus_is_space) {
      decoded += ' ';
    } else if (c != '%') {
      decoded += c;
    } else {
      const int high = i + 2 < text.size() ? HexValue(text[i + 1]) : -1;
      const int low = high >= 0 ? HexValue(text[i + 2]) : -1;
      if (low < 0) return std::nullopt;
      decoded += static_cast<char>(high * 16 + low);
      i += 2;
    }
  }
  return decoded;
}

std::optional<std::vector<std::string>> SplitPath(std::string_view raw_path) {
  if (raw_path.empty() || raw_path[0] != '/') return std::nullopt;
  std::vector<std::string> segments;
  if (raw_path.size() == 1) return segments;
  size_t start = 1;
  while (true) {
    const size_t end = std::min(raw_path.find('/', start), raw_path.size());
    std::optional<std::string> segment = PercentDecode(raw_path.substr(start, end - start), false);
    if (!segment || !IsSafeSegment(*segment)) return std::nullopt;
    segments.push_back(std::move(*segment));
    if (end == raw_path.size()) return segments;
    start = end + 1;
  }
}

std::string PercentEncode(std::string_view text) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string encoded;
  for (unsigned char c : text) {
    const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                       c == '-' || c == '.' || c == '_' || c == '~';
    if (plain) {
      encoded += static_cast<char>(c);
    } else {
      encoded += '%';
      encoded += kHex[c >> 4];
      encoded += kHex[c & 15];
    }
  }
  return encoded;
}

std::optional<uint32_t> ParseNumber(std::string_view text) {
  const bool hex = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
  const std::string_view digits = hex ? text.substr(2) : text;
  uint32_t value = 0;
  const auto [end, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), value, hex ? 16 : 10);
  if (digits.empty() || error != std::errc() || end != digits.data() + digits.size()) {
    return std::nullopt;
  }
  return value;
}

}  // namespace lumora::serve
