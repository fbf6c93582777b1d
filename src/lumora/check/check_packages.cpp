// Each discipline's package catalogue (Content.mdb, opened read-only): rows of
// t_PackagesResources whose resource is not indexed or has no file, packages without a title
// and dates that do not read.
#include <lumora/check/checks.h>
#include <lumora/packages/database_connection.h>
#include <lumora/packages/package_tables.h>
#include <lumora/platform/com_apartment.h>
#include <lumora/resources/indexed_numbers.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

#include <limits>
#include <map>
#include <set>
#include <string>

namespace lumora {
namespace {

constexpr CalendarTime kUnread = std::numeric_limits<CalendarTime>::min();

std::string PackageName(uint32_t id) { return "package " + std::to_string(id); }

// ReadDate leaves a value it cannot read as it was: a package whose date stays kUnread has a
// date the library reads as 0.
void CheckDates(DatabaseConnection& db, const std::string& file, CheckReport& report) {
  RecordsetHolder* holder =
      db.OpenRecordset(WideText(u"SELECT f_IdPackage, f_DateLastGeneration FROM t_Packages"));
  if (holder == nullptr) return;
  try {
    for (; !holder->recordset->GetEOF(); holder->recordset->MoveNext()) {
      int32_t id = 0;
      CalendarTime date = kUnread;
      db.ReadInteger(*holder, "f_IdPackage", id);
      db.ReadDate(*holder, "f_DateLastGeneration", date);
      if (date == kUnread) {
        report.Error(file, PackageName(static_cast<uint32_t>(id)) +
                               ": f_DateLastGeneration does not read as a date: the library "
                               "answers 0 (1 January 1970)");
      }
    }
  } catch (const ado::Error&) {
  }
  db.CloseRecordset(holder);
}

void CheckTitles(const PackageList& packages, const TranslationList& translations,
                 const std::string& file, CheckReport& report) {
  std::set<int32_t> texts;
  for (uint32_t i = 0; i < translations.size(); ++i) texts.insert(translations[i].idString);
  for (uint32_t i = 0; i < packages.size(); ++i) {
    ++report.checked;
    if (texts.count(packages.ObjectAt(i)->idString) == 0) {
      report.Warning(file, PackageName(packages.KeyAt(i)) +
                               " has no title: t_Translations has "
                               "no text " +
                               std::to_string(packages.ObjectAt(i)->idString));
    }
  }
}

// The resource numbers each type's index lists, gathered on first use.
class IndexedResources {
 public:
  explicit IndexedResources(const Discipline& discipline) : discipline_(discipline) {}

  bool Lists(uint32_t type, uint32_t resource_id) {
    auto [numbers, added] = types_.try_emplace(type);
    if (added) {
      const TypeIndex* index =
          discipline_.resourceIndex ? discipline_.resourceIndex->FindType(type) : nullptr;
      if (const auto listed = index ? NumbersOf(*index) : std::nullopt) {
        for (uint32_t number : listed->numbers) numbers->second.insert(NumberOf(number));
      }
    }
    return numbers->second.count(NumberOf(resource_id)) != 0;
  }

 private:
  const Discipline& discipline_;
  std::map<uint32_t, std::set<uint32_t>> types_;
};

void CheckRows(const Discipline& discipline, const PackageResourceList& rows,
               const std::string& file, CheckReport& report) {
  IndexedResources indexed(discipline);
  for (uint32_t i = 0; i < rows.size(); ++i) {
    ++report.checked;
    const PackageResourceRecord& row = *rows.ObjectAt(i);
    const auto type = static_cast<uint32_t>(row.idResource);
    const auto id = static_cast<uint32_t>(row.idItem);
    const std::string what = PackageName(rows.KeyAt(i)) + " lists resource " + std::to_string(id) +
                             " of type " + std::to_string(type);
    const std::string path = ResourceFilePath(discipline.localRoot, type, id);
    if (!FileListed(path) && !FileListed(ChangeExtension(path, "arh"))) {
      report.Error(file, what + ", which has no file: the export reports it and goes on");
    } else if (!indexed.Lists(type, id)) {
      report.Warning(file, what + ", which the type's index does not list");
    }
  }
}

void CheckDatabase(const CheckedRoot& root, const Discipline& discipline, CheckReport& report) {
  const std::string path = discipline.dataFolder + "Content.mdb";
  const std::string file = root.Relative(path);
  ++report.checked;
  if (!FileExists(path)) {
    report.Warning(file, "does not exist: lmOpen_Database fails for this discipline");
    return;
  }
  DatabaseConnection db;
  if (!db.Open("DRIVER={Microsoft Access Driver (*.mdb)};DBQ=" + path, "", "", 1)) {
    report.Error(file, "cannot be opened: " + db.errorText);
    return;
  }
  PackageList packages;
  TranslationList translations;
  if (!ReadPackages(db, packages) && db.lastError != DatabaseConnection::kNoRow) {
    report.Error(file, "t_Packages cannot be read: " + db.errorText);
  }
  ReadPackageTranslations(db, translations);
  CheckTitles(packages, translations, file, report);
  CheckDates(db, file, report);
  DWordArray ids;
  for (uint32_t i = 0; i < packages.size(); ++i) ids.Add(packages.KeyAt(i));
  PackageResourceList rows;
  ReadPackageResources(db, ids, rows);
  CheckRows(discipline, rows, file, report);
  db.Close();
}

}  // namespace

void CheckPackages(const CheckedRoot& root, CheckReport& report) {
  // The database layer works inside an initialised apartment, as lmOpen_Database's does.
  ComInitialize();
  const ListedFiles listed;
  for (const CheckedDiscipline& d : root.disciplines) CheckDatabase(root, *d.discipline, report);
  ComUninitialize();
}

}  // namespace lumora
