#include <lumora/support/profile_file.h>

#include <lumora/platform/ascii_text.h>
#include <lumora/platform/file.h>
#include <lumora/support/internal_log.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

namespace lumora {
namespace {

// Lines are read in pieces of at most this many characters, the line feed counting as one,
// so a longer line becomes several lines.
constexpr size_t kPieceChars = 5118;
constexpr std::string_view kTrimmed = " \t\r\n";
// The internal log's number for a configuration file that cannot be opened or read.
constexpr int32_t kUnreadableProfileCode = 541;

bool ReadAll(File& file, std::string* bytes) {
  char buffer[65536];
  while (size_t got = file.Read(buffer, sizeof buffer)) bytes->append(buffer, got);
  return file.LastError() == 0;
}

// Every stored line has a first character, which the searches compare without a length check
// of their own.
std::string Stored(std::string_view piece) {
  std::string_view line = TrimAny(piece, kTrimmed);
  return line.empty() ? std::string(" ") : std::string(line);
}

// Text-mode reading: a CR LF pair reads as a single line feed; a lone CR is an ordinary
// character.
void SplitPieces(std::string_view bytes, std::vector<std::string>* lines) {
  std::string piece;
  for (size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') continue;
    piece += bytes[i];
    if (bytes[i] == '\n' || piece.size() == kPieceChars) {
      lines->push_back(Stored(piece));
      piece.clear();
    }
  }
  if (!piece.empty()) lines->push_back(Stored(piece));
}

}  // namespace

// A long is 32 bits on the platform the files come from, so out-of-range values saturate
// there, not at 64 bits.
int32_t ParseProfileInt(std::string_view text) {
  size_t i = text.find_first_not_of(" \t\n\v\f\r");
  if (i == std::string_view::npos) return 0;
  bool negative = text[i] == '-';
  if (text[i] == '-' || text[i] == '+') ++i;
  int64_t value = 0;
  const int64_t limit = negative ? -int64_t{std::numeric_limits<int32_t>::min()}
                                 : int64_t{std::numeric_limits<int32_t>::max()};
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
    value = std::min(limit, value * 10 + (text[i] - '0'));
  }
  return static_cast<int32_t>(negative ? -value : value);
}

bool ProfileFile::Load(const std::string& path) {
  lines.clear();
  sectionStart = 0;
  cursor = 0;
  File file;
  std::string bytes;
  if (!file.Open(path, open_flags::kRead | open_flags::kShareDenyNone | open_flags::kText) ||
      !ReadAll(file, &bytes)) {
    ReportCodeText(kUnreadableProfileCode, std::strerror(file.LastError()));
    lineCount = 0;
    return false;
  }
  SplitPieces(bytes, &lines);
  lineCount = static_cast<int32_t>(lines.size());
  return true;
}

bool ProfileFile::FindSection(const std::string& name) {
  if (lines.empty()) return false;
  const std::string target = "[" + name + "]";
  if (cursor < 0 || cursor >= lineCount) cursor = 0;
  const int32_t start = cursor;
  do {
    if (StartsWithIgnoringCase(lines[cursor], target)) {
      sectionFound = 1;
      sectionStart = cursor;
      return true;
    }
    cursor = (cursor + 1) % lineCount;
  } while (cursor != start);
  sectionFound = 0;
  return false;
}

std::string ProfileFile::GetString(const std::string& key) {
  if (sectionFound == 0 || lines.empty()) return defaultValue;
  const std::string target = key + "=";
  if (cursor < 0 || cursor >= lineCount) cursor = 0;
  const int32_t start = cursor;
  // The walk cycles through the current section and so comes back to `start`; the step limit
  // only guards against a cursor that public state has moved outside the section.
  for (int32_t steps = 0; steps <= lineCount; ++steps) {
    const std::string& line = lines[cursor];
    if (StartsWithIgnoringCase(line, target)) {
      return std::string(TrimAny(std::string_view(line).substr(target.size()), kTrimmed));
    }
    ++cursor;
    if (cursor == lineCount || lines[cursor].front() == '[') cursor = sectionStart;
    if (cursor == start) break;
  }
  return defaultValue;
}

int32_t ProfileFile::GetInt(const std::string& key) { return ParseProfileInt(GetString(key)); }

}  // namespace lumora
