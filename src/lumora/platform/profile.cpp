#include <lumora/platform/profile.h>

#include <lumora/platform/ascii_text.h>
#include <lumora/platform/atomic_write.h>
#include <lumora/platform/file.h>

#include <cerrno>
#include <optional>
#include <string_view>
#include <vector>

namespace lumora::profile {
namespace {

constexpr std::string_view kBlanks = " \t\r";
constexpr const char* kCrLf = "\r\n";

// One line of the file with the line end it had, so that a rewrite gives back every line it
// does not change byte for byte.
struct Line {
  std::string text;
  std::string end;
};

// What a line says once the blanks around it are skipped.
struct Entry {
  enum Kind { kOther, kSection, kKey } kind = kOther;
  std::string_view name;
  std::string_view value;
};

// The file's bytes; empty for a missing file, which is an empty profile. Nothing when the
// file exists but cannot be read, so that a write never replaces what it could not see.
std::optional<std::string> ReadAll(const std::string& path) {
  File file;
  if (!file.Open(path, open_flags::kRead | open_flags::kShareDenyNone)) {
    if (file.LastError() == ENOENT) return std::string();
    return std::nullopt;
  }
  std::string bytes(file.Size(), '\0');
  bytes.resize(file.Read(bytes.data(), bytes.size()));
  if (file.LastError() != 0) return std::nullopt;
  return bytes;
}

std::vector<Line> SplitLines(const std::string& bytes) {
  std::vector<Line> lines;
  size_t start = 0;
  while (start < bytes.size()) {
    size_t lf = bytes.find('\n', start);
    if (lf == std::string::npos) {
      lines.push_back({bytes.substr(start), ""});
      break;
    }
    bool cr = lf > start && bytes[lf - 1] == '\r';
    lines.push_back({bytes.substr(start, lf - start - cr), cr ? kCrLf : "\n"});
    start = lf + 1;
  }
  return lines;
}

std::string_view Unquote(std::string_view value) {
  bool quoted = value.size() >= 2 && value.front() == value.back() &&
                (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

Entry Classify(std::string_view text) {
  std::string_view line = TrimAny(text, kBlanks);
  if (line.empty() || line.front() == ';') return {};
  if (line.front() == '[') {
    size_t close = line.find(']');
    if (close == std::string_view::npos) return {};
    return {Entry::kSection, TrimAny(line.substr(1, close - 1), kBlanks), {}};
  }
  size_t equals = line.find('=');
  if (equals == std::string_view::npos) return {};
  return {Entry::kKey, TrimAny(line.substr(0, equals), kBlanks),
          Unquote(TrimAny(line.substr(equals + 1), kBlanks))};
}

// Where a key stands in a file: the first matching section's header, the first matching key
// line in that section, and the line a new key would follow.
struct Location {
  std::optional<size_t> header;
  std::optional<size_t> key;
  size_t last_entry = 0;
};

Location Locate(const std::vector<Line>& lines, std::string_view section, std::string_view key) {
  section = TrimAny(section, kBlanks);
  key = TrimAny(key, kBlanks);
  Location at;
  for (size_t i = 0; i < lines.size(); ++i) {
    Entry entry = Classify(lines[i].text);
    if (entry.kind == Entry::kSection) {
      if (at.header) break;
      if (EqualsIgnoringCase(entry.name, section)) at.header = at.last_entry = i;
    } else if (at.header && entry.kind == Entry::kKey) {
      at.last_entry = i;
      if (!at.key && EqualsIgnoringCase(entry.name, key)) at.key = i;
    }
  }
  return at;
}

// Reads as Locate finds, walking the bytes in place: a file of checksums is read once for
// every table a glossary loads, and splitting it into line strings each time cost more than
// reading it.
std::optional<std::string> Find(const std::string& path, const std::string& section,
                                const std::string& key) {
  std::optional<std::string> bytes = ReadAll(path);
  if (!bytes) return std::nullopt;
  const std::string_view wanted_section = TrimAny(section, kBlanks);
  const std::string_view wanted_key = TrimAny(key, kBlanks);
  bool in_section = false;
  std::string_view rest(*bytes);
  while (!rest.empty()) {
    const size_t lf = rest.find('\n');
    const Entry entry = Classify(rest.substr(0, lf));
    rest.remove_prefix(lf == std::string_view::npos ? rest.size() : lf + 1);
    if (entry.kind == Entry::kSection) {
      if (in_section) break;
      in_section = EqualsIgnoringCase(entry.name, wanted_section);
    } else if (in_section && entry.kind == Entry::kKey &&
               EqualsIgnoringCase(entry.name, wanted_key)) {
      return std::string(entry.value);
    }
  }
  return std::nullopt;
}

// Names and values that would not read back as written are refused: a line break would
// start a new line, "=" in a key or "]" in a section name would end it early.
bool Storable(std::string_view section, std::string_view key, std::string_view value) {
  auto breaks = [](std::string_view s) { return s.find_first_of("\r\n") != s.npos; };
  return !breaks(section) && !breaks(key) && !breaks(value) && key.find('=') == key.npos &&
         section.find(']') == section.npos;
}

void InsertAfter(std::vector<Line>& lines, size_t index, std::string text) {
  if (lines[index].end.empty()) lines[index].end = kCrLf;
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(index) + 1, {std::move(text), kCrLf});
}

void AppendSection(std::vector<Line>& lines, std::string_view section, std::string entry) {
  if (!lines.empty()) {
    if (lines.back().end.empty()) lines.back().end = kCrLf;
    lines.push_back({"", kCrLf});
  }
  lines.push_back({std::string("[").append(section).append("]"), kCrLf});
  lines.push_back({std::move(entry), kCrLf});
}

void Place(std::vector<Line>& lines, std::string_view section, std::string_view key,
           const std::string& value) {
  section = TrimAny(section, kBlanks);
  key = TrimAny(key, kBlanks);
  std::string entry = std::string(key) + "=" + value;
  Location at = Locate(lines, section, key);
  if (at.key) {
    lines[*at.key].text = std::move(entry);
  } else if (at.header) {
    InsertAfter(lines, at.last_entry, std::move(entry));
  } else {
    AppendSection(lines, section, std::move(entry));
  }
}

}  // namespace

std::string GetString(const std::string& path, const std::string& section, const std::string& key,
                      const std::string& fallback, size_t max_chars) {
  std::string value = Find(path, section, key).value_or(fallback);
  if (value.size() > max_chars) value.resize(max_chars);
  return value;
}

uint32_t GetInt(const std::string& path, const std::string& section, const std::string& key,
                int32_t fallback) {
  std::optional<std::string> text = Find(path, section, key);
  if (!text) return static_cast<uint32_t>(fallback);
  std::string_view digits = TrimAny(*text, kBlanks);
  bool negative = !digits.empty() && digits.front() == '-';
  if (!digits.empty() && (digits.front() == '-' || digits.front() == '+')) digits.remove_prefix(1);
  // Arithmetic modulo 2^32: signed and unsigned spellings of the same 32 bits agree.
  uint32_t magnitude = 0;
  for (char c : digits) {
    if (c < '0' || c > '9') break;
    magnitude = magnitude * 10 + static_cast<uint32_t>(c - '0');
  }
  return negative ? 0u - magnitude : magnitude;
}

std::optional<std::string> ReadProfileBytes(const std::string& path) { return ReadAll(path); }

std::optional<std::string> WithValues(
    const std::string& bytes, const std::string& section,
    const std::vector<std::pair<std::string, std::string>>& values) {
  for (const auto& [key, value] : values) {
    if (!Storable(section, key, value)) return std::nullopt;
  }
  std::vector<Line> lines = SplitLines(bytes);
  for (const auto& [key, value] : values) Place(lines, section, key, value);
  std::string out;
  for (const Line& line : lines) out += line.text + line.end;
  return out;
}

bool WriteString(const std::string& path, const std::string& section, const std::string& key,
                 const std::string& value) {
  std::optional<std::string> bytes = ReadAll(path);
  if (!bytes) return false;
  std::optional<std::string> edited = WithValues(*bytes, section, {{key, value}});
  return edited && WriteFileAtomically(path, *edited).ok();
}

}  // namespace lumora::profile
