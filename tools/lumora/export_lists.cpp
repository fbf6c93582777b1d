#include "export_lists.h"

#include <lumora/maintenance.h>

#include <nlohmann/json.hpp>

#include <ctime>
#include <fstream>
#include <memory>

#include "commands.h"

namespace lumora::cli {
namespace {

using nlohmann::json;

// "YYYY/MM/DD HH:MM:SS" in local time, as package dates are written.
CalendarTime ParseDate(const std::string& text) {
  std::tm tm{};
  int matched = std::sscanf(text.c_str(), "%d/%d/%d %d:%d:%d", &tm.tm_year, &tm.tm_mon, &tm.tm_mday,
                            &tm.tm_hour, &tm.tm_min, &tm.tm_sec);
  if (matched != 6) throw std::invalid_argument("a date is not YYYY/MM/DD HH:MM:SS: " + text);
  tm.tm_year -= 1900;
  tm.tm_mon -= 1;
  tm.tm_isdst = -1;
  return static_cast<CalendarTime>(std::mktime(&tm));
}

const json& Member(const json& lists, const char* name) {
  static const json kEmpty = json::array();
  if (!lists.contains(name)) return kEmpty;
  const json& member = lists.at(name);
  if (!member.is_array()) throw std::invalid_argument(std::string(name) + " is not a list");
  return member;
}

void ReadPackages(const json& rows, PackageList& packages) {
  for (const json& row : rows) {
    auto package = std::make_unique<PackageRecord>();
    package->version = row.at("version").get<int32_t>();
    package->idString = row.at("idString").get<int32_t>();
    if (row.contains("date")) package->dateLastGeneration = ParseDate(row.at("date"));
    packages.Add(row.at("id").get<uint32_t>(), std::move(package));
  }
}

void ReadTranslations(const json& rows, TranslationList& translations) {
  for (const json& row : rows) {
    auto translation = std::make_unique<TranslationRecord>();
    translation->idString = row.at("idString").get<int32_t>();
    translation->idLanguage = row.at("language").get<uint8_t>();
    translation->idDataType = row.value("dataType", 0);
    translation->text = CodePageText(CodePageOf(translation->idLanguage),
                                     WideText(Utf8ToUtf16(row.at("text").get<std::string>())));
    translations.Add(std::move(translation));
  }
}

void ReadPackageResources(const json& rows, PackageResourceList& resources) {
  for (const json& row : rows) {
    auto resource = std::make_unique<PackageResourceRecord>();
    resource->idResource = row.at("type").get<int32_t>();
    resource->idItem = static_cast<int32_t>(row.at("item").get<uint32_t>());
    resources.Add(row.at("package").get<uint32_t>(), std::move(resource));
  }
}

}  // namespace

CustomLists ReadCustomLists(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw CommandFailure(path + ": cannot be read");
  CustomLists lists;
  try {
    const json document = json::parse(in);
    if (!document.is_object()) throw std::invalid_argument("the lists are not a JSON object");
    ReadPackages(Member(document, "packages"), lists.packages);
    ReadTranslations(Member(document, "translations"), lists.translations);
    ReadPackageResources(Member(document, "packageResources"), lists.packageResources);
    for (const json& id : Member(document, "packageIds")) lists.packageIds.Add(id.get<uint32_t>());
  } catch (const std::exception& error) {
    throw CommandFailure(path + ": " + error.what());
  }
  return lists;
}

}  // namespace lumora::cli
