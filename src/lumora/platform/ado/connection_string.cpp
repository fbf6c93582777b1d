#include <lumora/platform/ado/connection_string.h>

#include <lumora/platform/ascii_text.h>

#include <map>

namespace lumora::ado {
namespace {

constexpr std::string_view kAccessDriver = "Microsoft Access Driver (*.mdb)";

std::string LowerKey(std::string_view key) {
  std::string lower(TrimAny(key, " "));
  for (char& c : lower) c = FoldAsciiCase(c);
  return lower;
}

// The value starting at `pos` (blanks skipped), braces removed; `pos` ends past its separator.
std::string_view NextValue(std::string_view text, size_t& pos) {
  while (pos < text.size() && text[pos] == ' ') ++pos;
  size_t end;
  std::string_view value;
  if (pos < text.size() && text[pos] == '{') {
    const size_t close = text.find('}', pos);
    end = close == std::string_view::npos ? text.size() : close + 1;
    value = text.substr(pos + 1, (close == std::string_view::npos ? end : close) - pos - 1);
    end = text.find(';', end);
  } else {
    end = text.find(';', pos);
    value = TrimAny(text.substr(pos, end == std::string_view::npos ? end : end - pos), " ");
  }
  pos = end == std::string_view::npos ? text.size() : end + 1;
  return value;
}

// Lower-case key -> value; the first of repeated keys wins.
std::map<std::string, std::string> Pairs(std::string_view text) {
  std::map<std::string, std::string> pairs;
  size_t pos = 0;
  while (pos < text.size()) {
    const size_t equals = text.find('=', pos);
    if (equals == std::string_view::npos) break;
    std::string key = LowerKey(text.substr(pos, equals - pos));
    pos = equals + 1;
    pairs.emplace(std::move(key), std::string(NextValue(text, pos)));
  }
  return pairs;
}

}  // namespace

std::optional<std::string> DatabaseFileOf(std::string_view connection_string) {
  const auto pairs = Pairs(connection_string);
  const auto driver = pairs.find("driver");
  if (driver != pairs.end() && !EqualsIgnoringCase(driver->second, kAccessDriver)) {
    return std::nullopt;
  }
  const auto file = pairs.find("dbq");
  if (file == pairs.end() || file->second.empty()) return std::nullopt;
  return file->second;
}

}  // namespace lumora::ado
