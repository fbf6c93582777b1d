#include <lumora/packages/export_rows.h>
#include <lumora/packages/package_schema.h>
#include <lumora/resources/report_format.h>
#include <lumora/support/paths.h>

#include <algorithm>
#include <ctime>
#include <iterator>

namespace lumora {
namespace {

// The date as the export database keeps it: local time, "2002/03/14 09:05:00".
std::u16string ExportDate(CalendarTime date) {
  const std::time_t seconds = date;
  std::tm local{};
  char text[32] = "";
  if (localtime_r(&seconds, &local) != nullptr) {
    std::strftime(text, sizeof text, "%Y/%m/%d %H:%M:%S", &local);
  }
  return std::u16string(text, text + std::char_traits<char>::length(text));
}

}  // namespace

ExportRows::ExportRows(std::unique_ptr<DatabaseConnection> database, std::string& report)
    : database_(std::move(database)), report_(report) {}

ExportRows::~ExportRows() { Finish(); }

bool ExportRows::Open(const std::string& exportFolder) {
  databasePath_ = exportFolder + "Content.mdb";
  connectionString_ = "DRIVER={Microsoft Access Driver (*.mdb)};DBQ=" + databasePath_;
  if (!database_->Open(connectionString_, "", "", 0)) {
    report_ += FormatReportLine("Can not open %s!\n", connectionString_.c_str());
    // A database that is not there is the caller's to make, and that line says all.
    if (FileExists(databasePath_)) SayFileFailure("cannot open the package database");
    return false;
  }
  // Opening gives a new database its identifier table without saying whether that worked; an
  // export without it would not be whole.
  if (database_->lastError != DatabaseConnection::kSuccess) {
    report_ += FormatReportLine("Can not open %s!\n", connectionString_.c_str());
    SayReason("cannot write the identifier table");
    return false;
  }
  return true;
}

void ExportRows::SayReason(const char* what) {
  report_ += databasePath_ + ": " + what + ": " + database_->errorReason() + "\n";
}

void ExportRows::SayFileFailure(const char* what) {
  if (database_->FileFailed()) SayReason(what);
}

bool ExportRows::CreateTables() {
  static constexpr const char* kFailures[] = {"Can not create t_Packages table for %s!\n",
                                              "Can not create t_Translations table for %s!\n",
                                              "Can not create t_PackagesResources table for %s!\n"};
  // The tables belong to the transaction too: a new database is flushed to disk once.
  inTransaction_ = database_->BeginTransaction();
  if (!inTransaction_) {
    SayReason("cannot write the package tables");
    return false;
  }
  for (size_t i = 0; i < std::size(kCreatePackageTables); ++i) {
    if (!database_->Execute(WideText(kCreatePackageTables[i]))) {
      report_ += FormatReportLine(kFailures[i], connectionString_.c_str());
      SayFileFailure("cannot write the package tables");
      return false;
    }
  }
  packageInsert_ = database_->Prepare("INSERT INTO t_Packages VALUES (?, ?, ?, ?)");
  translationInsert_ = database_->Prepare("INSERT INTO t_Translations VALUES (?, ?, ?, ?)");
  resourceInsert_ = database_->Prepare("INSERT INTO t_PackagesResources VALUES (?, ?, ?)");
  return true;
}

bool ExportRows::AddPackages(const ExportLists& lists) {
  for (uint32_t i = 0; i < lists.packages.size(); ++i) {
    const uint32_t id = lists.packages.KeyAt(i);
    const DWordArray& ids = lists.packageIds;
    if (std::find(ids.begin(), ids.end(), id) == ids.end()) continue;
    if (!AddPackage(id, *lists.packages.ObjectAt(i), lists.translations)) return false;
  }
  return true;
}

bool ExportRows::AddPackage(uint32_t id, const PackageRecord& package,
                            const TranslationList& translations) {
  const bool added =
      packageInsert_ != nullptr &&
      database_->Execute(*packageInsert_,
                         {ado::Variant::I4(static_cast<int32_t>(id)),
                          ado::Variant::Bstr(ExportDate(package.dateLastGeneration)),
                          ado::Variant::I4(package.version), ado::Variant::I4(package.idString)});
  if (!added) {
    report_ += FormatReportLine("Can not add Package [%ld], PackageId = %ld\n",
                                static_cast<long>(package.idString), static_cast<long>(id));
    SayFileFailure("cannot write the package tables");
    return false;
  }
  for (uint32_t t = 0; t < translations.size(); ++t) {
    const TranslationRecord& translation = translations[t];
    if (translation.idString != package.idString) continue;
    const bool written =
        translationInsert_ != nullptr &&
        database_->Execute(
            *translationInsert_,
            {ado::Variant::I4(translation.idString), ado::Variant::UI1(translation.idLanguage),
             ado::Variant::I4(translation.idDataType),
             ado::Variant::Bstr(std::u16string(translation.text.text.view()))});
    if (!written) {
      report_ += FormatReportLine("Can not add Translation [%ld], String = %s\n",
                                  static_cast<long>(translation.idString),
                                  translation.text.ToNarrow().c_str());
      SayFileFailure("cannot write the package tables");
      return false;
    }
  }
  return true;
}

bool ExportRows::AddPackageResource(uint32_t packageId, int32_t type, int32_t resourceId) {
  const bool added =
      resourceInsert_ != nullptr &&
      database_->Execute(*resourceInsert_, {ado::Variant::I4(static_cast<int32_t>(packageId)),
                                            ado::Variant::I4(type), ado::Variant::I4(resourceId)});
  if (!added) {
    report_ += FormatReportLine("Can not add in PackageResource [%ld] Item [%ld]\n",
                                static_cast<long>(type), static_cast<long>(resourceId));
    SayFileFailure("cannot write the package tables");
  }
  return added;
}

bool ExportRows::Finish() {
  if (database_ == nullptr) return true;
  packageInsert_.reset();
  translationInsert_.reset();
  resourceInsert_.reset();
  // The rows are on disk only once the commit succeeds; a failed one leaves none of them.
  bool committed = true;
  if (inTransaction_ && !database_->CommitTransaction()) {
    SayReason("cannot commit the package tables");
    committed = false;
  }
  inTransaction_ = false;
  database_->Close();
  database_.reset();
  return committed;
}

}  // namespace lumora
