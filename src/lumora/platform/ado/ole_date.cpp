#include <lumora/platform/ado/ole_date.h>

#include <cmath>
#include <cstdint>
#include <cstdio>

namespace lumora::ado {
namespace {

constexpr int64_t kSecondsPerDay = 86400;
// Days from 1 January 1970 back to 30 December 1899.
constexpr int64_t kEpochOffset = 25569;

// Days since 1 January 1970 of a proleptic Gregorian date.
int64_t DaysFromCivil(int64_t y, int64_t m, int64_t d) {
  y -= m <= 2;
  const int64_t era = (y >= 0 ? y : y - 399) / 400;
  const int64_t yoe = y - era * 400;
  const int64_t doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const int64_t doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 719468;
}

void CivilFromDays(int64_t z, DateParts& parts) {
  z += 719468;
  const int64_t era = (z >= 0 ? z : z - 146096) / 146097;
  const int64_t doe = z - era * 146097;
  const int64_t yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const int64_t doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const int64_t mp = (5 * doy + 2) / 153;
  const int64_t m = mp + (mp < 10 ? 3 : -9);
  parts.year = static_cast<int>(yoe + era * 400 + (m <= 2));
  parts.month = static_cast<int>(m);
  parts.day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
}

int DaysInMonth(int year, int month) {
  static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  return month == 2 && leap ? 29 : kDays[month - 1];
}

bool Valid(const DateParts& p) {
  return p.year >= 100 && p.year <= 9999 && p.month >= 1 && p.month <= 12 && p.day >= 1 &&
         p.day <= DaysInMonth(p.year, p.month) && p.hour >= 0 && p.hour < 24 && p.minute >= 0 &&
         p.minute < 60 && p.second >= 0 && p.second < 60;
}

// Reads exactly `width` digits at `pos`.
bool Digits(std::string_view text, size_t& pos, size_t width, int& value) {
  if (pos + width > text.size()) return false;
  value = 0;
  for (size_t i = 0; i < width; ++i) {
    const char c = text[pos + i];
    if (c < '0' || c > '9') return false;
    value = value * 10 + (c - '0');
  }
  pos += width;
  return true;
}

bool Expect(std::string_view text, size_t& pos, char c) {
  if (pos >= text.size() || text[pos] != c) return false;
  ++pos;
  return true;
}

}  // namespace

double OleDateFromParts(const DateParts& p) {
  const int64_t days = DaysFromCivil(p.year, p.month, p.day) + kEpochOffset;
  const double fraction =
      static_cast<double>(p.hour * 3600 + p.minute * 60 + p.second) / kSecondsPerDay;
  return days < 0 ? static_cast<double>(days) - fraction : static_cast<double>(days) + fraction;
}

DateParts PartsFromOleDate(double date) {
  int64_t days = static_cast<int64_t>(std::trunc(date));
  int64_t seconds = std::llround(std::fabs(date - static_cast<double>(days)) * kSecondsPerDay);
  if (seconds == kSecondsPerDay) {
    seconds = 0;
    days += date < 0 ? -1 : 1;
  }
  DateParts parts;
  CivilFromDays(days - kEpochOffset, parts);
  parts.hour = static_cast<int>(seconds / 3600);
  parts.minute = static_cast<int>(seconds / 60 % 60);
  parts.second = static_cast<int>(seconds % 60);
  return parts;
}

std::optional<DateParts> ParseDateText(std::string_view text) {
  DateParts p;
  size_t pos = 0;
  if (!Digits(text, pos, 4, p.year) || pos >= text.size()) return std::nullopt;
  const char separator = text[pos];
  if (separator != '/' && separator != '-') return std::nullopt;
  ++pos;
  if (!Digits(text, pos, 2, p.month) || !Expect(text, pos, separator) ||
      !Digits(text, pos, 2, p.day)) {
    return std::nullopt;
  }
  if (pos < text.size()) {
    if (!Expect(text, pos, ' ') && !Expect(text, pos, 'T')) return std::nullopt;
    if (!Digits(text, pos, 2, p.hour) || !Expect(text, pos, ':') ||
        !Digits(text, pos, 2, p.minute) || !Expect(text, pos, ':') ||
        !Digits(text, pos, 2, p.second) || pos != text.size()) {
      return std::nullopt;
    }
  }
  if (!Valid(p)) return std::nullopt;
  return p;
}

std::string DateText(const DateParts& p) {
  char text[32];
  std::snprintf(text, sizeof text, "%04d/%02d/%02d %02d:%02d:%02d", p.year, p.month, p.day, p.hour,
                p.minute, p.second);
  return text;
}

}  // namespace lumora::ado
