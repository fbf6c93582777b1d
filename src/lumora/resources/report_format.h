// Lines of a media verification report. They are narrow Windows-1252 texts formatted the
// printf way; a degree sign in a pattern is the byte 0xB0.
#pragma once

#include <string>

namespace lumora {

std::string FormatReportLine(const char* pattern, ...) __attribute__((format(printf, 1, 2)));

}  // namespace lumora
