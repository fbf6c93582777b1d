// Dates as the database objects hand them out: a count of days since 30 December 1899 with the
// time of day as the fraction. Before that day the integer part counts back while the
// fraction still counts forward, so -1.25 is 29 December 1899, 06:00.
//
// Stored dates are text, "YYYY/MM/DD HH:MM:SS"; "YYYY-MM-DD HH:MM:SS" (or with a T between
// date and time) and a date without a time are read too.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lumora::ado {

struct DateParts {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

double OleDateFromParts(const DateParts& parts);
// To the nearest second.
DateParts PartsFromOleDate(double date);

// Nothing unless the whole text is one valid date of years 100 to 9999.
std::optional<DateParts> ParseDateText(std::string_view text);
std::string DateText(const DateParts& parts);

}  // namespace lumora::ado
