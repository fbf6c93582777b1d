// The export database's side of a package export: its connection, its three package tables and
// their rows. Every failure appends its line to the report and answers false; the caller stops
// the export then. The rows go in one transaction, committed by Finish or, whatever happened,
// when the object goes; the connection is closed and released with it.
//
// A statement that fails because of the database file rather than of what it says (a full
// disk, an I/O error, a lock another program keeps) gets a second line after the one of the
// statement, naming the file and the engine's reason: "<path>: cannot write the package tables:
// database or disk is full". A commit that fails gets such a line of its own, since no other
// line would tell that the rows are not there.
#pragma once

#include <lumora/packages/database_connection.h>
#include <lumora/packages/package_export.h>
#include <lumora/platform/ado/command.h>

#include <cstdint>
#include <memory>
#include <string>

namespace lumora {

class ExportRows {
 public:
  ExportRows(std::unique_ptr<DatabaseConnection> database, std::string& report);
  ~ExportRows();
  ExportRows(const ExportRows&) = delete;
  ExportRows& operator=(const ExportRows&) = delete;

  // Opens the database of the export folder, read-write, never creating it.
  bool Open(const std::string& exportFolder);
  // Creates t_Packages, t_Translations and t_PackagesResources, in this order.
  bool CreateTables();
  // One t_Packages row per package of the lists that packageIds names, in list order, each
  // followed by the translations of its title.
  bool AddPackages(const ExportLists& lists);
  bool AddPackageResource(uint32_t packageId, int32_t type, int32_t resourceId);
  // Commits the rows and closes the connection; false, with its line said, when the commit
  // fails. Answers true once finished.
  bool Finish();

 private:
  bool AddPackage(uint32_t id, const PackageRecord& package, const TranslationList& translations);

  std::unique_ptr<DatabaseConnection> database_;
  std::string& report_;
  // Says why the last statement failed, "<path>: <what>: <reason>"; the second one only when
  // the file is to blame.
  void SayReason(const char* what);
  void SayFileFailure(const char* what);

  std::string connectionString_;
  std::string databasePath_;
  bool inTransaction_ = false;
  std::unique_ptr<ado::Command> packageInsert_;
  std::unique_ptr<ado::Command> translationInsert_;
  std::unique_ptr<ado::Command> resourceInsert_;
};

}  // namespace lumora
