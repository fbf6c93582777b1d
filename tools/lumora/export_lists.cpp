#include "export_lists.h"

#include <lumora/maintenance.h>

#include <nlohmann/json.hpp>

#include <ctime>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <tuple>

#include "json_entry.h"

namespace lumora::cli {
namespace {

using nlohmann::json;

// Package identifiers are the keys of the list and are written to a 32-bit signed column: only
// the values both hold read back as written.
constexpr IntegerRange kPackageRange{0, INT32_MAX, "a package identifier"};
constexpr IntegerRange kTypeRange{0, INT32_MAX, "an exercise type"};
constexpr IntegerRange kItemRange{0, UINT32_MAX, "a resource identifier"};
constexpr size_t kProblemsShown = 20;

// The numbers of the library's language table.
IntegerRange LanguageRange() {
  static const int64_t last = static_cast<int64_t>(LanguageTable().size()) - 1;
  return {0, last, "a language number"};
}

bool IsLeapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int DaysIn(int year, int month) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

// "YYYY/MM/DD HH:MM:SS" in local time, as package dates are written, within the 32-bit seconds
// a package keeps.
std::optional<CalendarTime> ParseDate(JsonEntry& entry) {
  const std::optional<std::string> text = entry.Text("date", false);
  if (!text) return std::nullopt;
  int year, month, day, hour, minute, second, end = 0;
  const bool read = std::sscanf(text->c_str(), "%4d/%2d/%2d %2d:%2d:%2d%n", &year, &month, &day,
                                &hour, &minute, &second, &end) == 6 &&
                    static_cast<size_t>(end) == text->size();
  if (!read) {
    entry.Problem("\"date\" is \"" + *text + "\", not a date YYYY/MM/DD HH:MM:SS");
    return std::nullopt;
  }
  if (month < 1 || month > 12 || day < 1 || day > DaysIn(year, month) || hour > 23 || minute > 59 ||
      second > 59) {
    entry.Problem("\"date\" is \"" + *text + "\", a day or time that does not exist");
    return std::nullopt;
  }
  std::tm tm{};
  tm.tm_year = year - 1900;
  tm.tm_mon = month - 1;
  tm.tm_mday = day;
  tm.tm_hour = hour;
  tm.tm_min = minute;
  tm.tm_sec = second;
  tm.tm_isdst = -1;
  const std::time_t time = std::mktime(&tm);
  if (time == -1 || time < INT32_MIN || time > INT32_MAX) {
    entry.Problem("\"date\" is \"" + *text +
                  "\", outside the dates a package keeps (1901/12/14 to 2038/01/18)");
    return std::nullopt;
  }
  return static_cast<CalendarTime>(time);
}

// Remembers the keys of one list, to name the entry that repeats one.
template <typename Key>
class SeenKeys {
 public:
  // True the first time; afterwards a problem naming the earlier entry.
  bool First(const Key& key, const JsonEntry& entry, const std::string& what) {
    const auto [at, inserted] = seen_.emplace(key, entry.where());
    if (!inserted) entry.Problem(what + " is given already in " + at->second);
    return inserted;
  }

 private:
  std::map<Key, std::string> seen_;
};

std::string Where(const char* list, size_t index) {
  return std::string(list) + "[" + std::to_string(index) + "]";
}

// The list `name` of the document, empty when it is left out.
const json& ListOf(const json& document, const char* name, Problems& problems) {
  static const json kEmpty = json::array();
  const auto found = document.find(name);
  if (found == document.end()) return kEmpty;
  if (found->is_array()) return *found;
  problems.push_back(std::string("\"") + name + "\" is not a list [...]");
  return kEmpty;
}

void ReadPackages(const json& rows, PackageList& packages, Problems& problems) {
  SeenKeys<int64_t> seen;
  for (size_t i = 0; i < rows.size(); ++i) {
    JsonEntry entry(rows[i], Where("packages", i), {"id", "version", "date", "idString"}, problems);
    if (!entry.ok()) continue;
    const auto id = entry.Integer("id", kPackageRange);
    const auto version = entry.Integer("version", kInt32Range);
    const auto idString = entry.Integer("idString", kInt32Range);
    const auto date = ParseDate(entry);
    if (!id || !version || !idString) continue;
    if (!seen.First(*id, entry, "package " + std::to_string(*id))) continue;
    auto package = std::make_unique<PackageRecord>();
    package->version = static_cast<int32_t>(*version);
    package->idString = static_cast<int32_t>(*idString);
    package->dateLastGeneration = date.value_or(0);
    packages.Add(static_cast<uint32_t>(*id), std::move(package));
  }
}

void ReadTranslations(const json& rows, TranslationList& translations, Problems& problems) {
  SeenKeys<std::pair<int64_t, int64_t>> seen;
  for (size_t i = 0; i < rows.size(); ++i) {
    JsonEntry entry(rows[i], Where("translations", i), {"idString", "language", "dataType", "text"},
                    problems);
    if (!entry.ok()) continue;
    const auto idString = entry.Integer("idString", kInt32Range);
    const auto language = entry.Integer("language", LanguageRange());
    const auto dataType = entry.Integer("dataType", kInt32Range, false);
    const auto text = entry.Text("text");
    if (!idString || !language || !text) continue;
    if (!seen.First({*idString, *language}, entry,
                    "the text " + std::to_string(*idString) + " in language " +
                        std::to_string(*language))) {
      continue;
    }
    auto translation = std::make_unique<TranslationRecord>();
    translation->idString = static_cast<int32_t>(*idString);
    translation->idLanguage = static_cast<uint8_t>(*language);
    translation->idDataType = static_cast<int32_t>(dataType.value_or(0));
    translation->text =
        CodePageText(CodePageOf(translation->idLanguage), WideText(Utf8ToUtf16(*text)));
    translations.Add(std::move(translation));
  }
}

void ReadPackageResources(const json& rows, PackageResourceList& resources, Problems& problems) {
  SeenKeys<std::tuple<int64_t, int64_t, int64_t>> seen;
  for (size_t i = 0; i < rows.size(); ++i) {
    JsonEntry entry(rows[i], Where("packageResources", i), {"package", "type", "item"}, problems);
    if (!entry.ok()) continue;
    const auto package = entry.Integer("package", kPackageRange);
    auto type = entry.Integer("type", kTypeRange);
    const auto item = entry.Integer("item", kItemRange);
    if (type && !IsExerciseType(static_cast<uint32_t>(*type))) {
      entry.Problem("\"type\" is " + std::to_string(*type) + ", which is not an exercise type");
      type.reset();
    }
    if (!package || !type || !item) continue;
    if (!seen.First({*package, *type, *item}, entry, "the same row")) continue;
    auto resource = std::make_unique<PackageResourceRecord>();
    resource->idResource = static_cast<int32_t>(*type);
    // The column holds the identifier's 32 bits; a course above 2047 reads back as written.
    resource->idItem = static_cast<int32_t>(static_cast<uint32_t>(*item));
    resources.Add(static_cast<uint32_t>(*package), std::move(resource));
  }
}

// Only the packages of "packages" can be written: an identifier of another would be dropped
// without a word.
void ReadPackageIds(const json& ids, const PackageList& packages, DWordArray& packageIds,
                    Problems& problems) {
  for (size_t i = 0; i < ids.size(); ++i) {
    const std::string where = Where("packageIds", i);
    const auto id = IntegerElement(ids[i], where, kPackageRange, problems);
    if (!id) continue;
    if (packages.Find(static_cast<uint32_t>(*id)) == nullptr) {
      problems.push_back(where + ": package " + std::to_string(*id) + " is not in \"packages\"");
      continue;
    }
    packageIds.Add(static_cast<uint32_t>(*id));
  }
}

std::string Described(const std::string& path, const Problems& problems) {
  if (problems.size() == 1) return path + ": " + problems.front();
  std::string text = path + ": " + std::to_string(problems.size()) + " problems";
  for (size_t i = 0; i < problems.size() && i < kProblemsShown; ++i) text += "\n  " + problems[i];
  if (problems.size() > kProblemsShown) {
    text += "\n  and " + std::to_string(problems.size() - kProblemsShown) + " more";
  }
  return text;
}

// The parser's own text without its code: "[json.exception.parse_error.101] parse error at
// line 2, column 5: ...".
std::string ParseErrorText(const json::parse_error& error) {
  const std::string text = error.what();
  const size_t code_end = text.find("] ");
  return code_end == std::string::npos ? text : "not JSON: " + text.substr(code_end + 2);
}

}  // namespace

CustomLists ReadCustomLists(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw BadCustomLists(path + ": cannot be read");
  json document;
  try {
    document = json::parse(in);
  } catch (const json::parse_error& error) {
    throw BadCustomLists(path + ": " + ParseErrorText(error));
  }
  Problems problems;
  CustomLists lists;
  JsonEntry top(document, "the lists",
                {"packages", "translations", "packageResources", "packageIds"}, problems);
  if (top.ok()) {
    ReadPackages(ListOf(document, "packages", problems), lists.packages, problems);
    ReadTranslations(ListOf(document, "translations", problems), lists.translations, problems);
    ReadPackageResources(ListOf(document, "packageResources", problems), lists.packageResources,
                         problems);
    ReadPackageIds(ListOf(document, "packageIds", problems), lists.packages, lists.packageIds,
                   problems);
  }
  if (!problems.empty()) throw BadCustomLists(Described(path, problems));
  return lists;
}

}  // namespace lumora::cli
