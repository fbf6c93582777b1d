#include <lumora/resources/report_format.h>

#include <cstdarg>
#include <cstdio>

namespace lumora {

std::string FormatReportLine(const char* pattern, ...) {
  va_list args;
  va_start(args, pattern);
  va_list again;
  va_copy(again, args);
  const int length = std::vsnprintf(nullptr, 0, pattern, args);
  va_end(args);
  std::string line;
  if (length > 0) {
    line.resize(static_cast<size_t>(length) + 1);
    std::vsnprintf(line.data(), line.size(), pattern, again);
    line.resize(static_cast<size_t>(length));
  }
  va_end(again);
  return line;
}

}  // namespace lumora
