#include <lumora/describe/package_description.h>
#include <lumora/describe/printable_text.h>
#include <lumora/descriptions.h>
#include <lumora/support/language_table.h>

#include <ctime>

namespace lumora {
namespace {

// As the export writes dates: local time, "YYYY/MM/DD HH:MM:SS".
std::string DateText(CalendarTime date) {
  const std::time_t time = date;
  std::tm tm{};
  localtime_r(&time, &tm);
  char text[32];
  std::strftime(text, sizeof text, "%Y/%m/%d %H:%M:%S", &tm);
  return text;
}

Description TitlesOf(const TranslationList& translations, int32_t id_string) {
  Description titles = Description::array();
  for (uint32_t i = 0; i < translations.size(); ++i) {
    const TranslationRecord& t = translations[i];
    if (t.idString != id_string) continue;
    titles.push_back({{"language", t.idLanguage},
                      {"code", LanguageRow(t.idLanguage).code},
                      {"codePage", t.text.codePage},
                      {"text", Utf8(t.text.text)}});
  }
  return titles;
}

}  // namespace

Description DescribePackages(const PackageList& packages, const TranslationList& translations) {
  Description rows = Description::array();
  for (uint32_t i = 0; i < packages.size(); ++i) {
    const PackageRecord& p = *packages.ObjectAt(i);
    rows.push_back({{"id", packages.KeyAt(i)},
                    {"version", p.version},
                    {"date", DateText(p.dateLastGeneration)},
                    {"idString", p.idString},
                    {"titles", TitlesOf(translations, p.idString)}});
  }
  return rows;
}

Description DescribePackageResources(const PackageResourceList& rows) {
  Description list = Description::array();
  for (uint32_t i = 0; i < rows.size(); ++i) {
    const PackageResourceRecord& r = *rows.ObjectAt(i);
    list.push_back({{"package", rows.KeyAt(i)}, {"type", r.idResource}, {"item", r.idItem}});
  }
  return list;
}

}  // namespace lumora
