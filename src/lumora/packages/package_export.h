// Exporting packages: a self-contained copy of some packages of one open discipline, made below
// a destination root. The export folder D%03d/ (the discipline's number) gets a package
// database holding only those packages, their titles and resource rows; the resource files of
// those rows with their media in the chosen quality folders; index files rebuilt from the
// copies; the ".arh" files of the publishing pass; the classification ("Classes" beside the
// export folder); a partial glossary and grammar holding only what the exported lessons use;
// and, on request, the diagnosis package file.
//
// Every problem is appended to the report as one line. Some stop the export at once (the
// database cannot be opened, a table cannot be created, a row cannot be added); the others
// let it go on. The export answers true only when the report is empty at the end, so a report
// that already holds text on entry makes it answer false.
//
// Choices made where the format leaves room:
//  - Values reach the INSERT statements as bound parameters, never spliced into their text: a
//    title with an apostrophe is exported as it stands, and no text can change a statement. A
//    duplicate key still fails the row with its message.
//  - The rows are written in one transaction, committed on every path, a fatal stop
//    included: what was written before the stop stays, and a large export does not wait for
//    the disk once per row.
//  - The export database must exist and be empty: the export opens it and never creates it
//    (its caller does). Tables already there stop the export at their CREATE TABLE.
//  - A resource list that holds the same (package, type, resource) row twice is refused before
//    anything is written, with the message of a row that cannot be added.
//  - Files are copied as the library writes every file: staged beside the target and renamed
//    into place, so a killed export leaves whole files or none. The export's files are flushed
//    to disk once, at the end (a file replacing another is flushed before its rename), so that
//    after a power loss a new file may be empty; the answer true comes only after that flush.
//  - Every copy goes through one queue whose writer holds the folders it writes into, so the
//    export never waits for itself; a failure to commit the rows is said with the database's
//    path and the engine's reason, like the final flush.
#pragma once

#include <lumora/packages/database_connection.h>
#include <lumora/packages/package_records.h>
#include <lumora/platform/progress.h>
#include <lumora/platform/typed_array.h>

#include <cstdint>
#include <memory>
#include <string>

namespace lumora {

class CGloV6;
class CGramV6;
class Classification;

// What an export takes from the open discipline it copies.
struct ExportSource {
  uint32_t disciplineId = 0;
  uint8_t languageParam = 0;  // the low byte of the discipline's Param
  std::string localRoot;      // where its resource files lie, ending in the separator
  CGloV6* glossary = nullptr;
  CGramV6* grammar = nullptr;
  Classification* classification = nullptr;
};

// The lists an export writes: every package of `packages` whose identifier `packageIds` lists,
// with the translations of its title; every row of `packageResources`.
struct ExportLists {
  const PackageList& packages;
  const TranslationList& translations;
  const PackageResourceList& packageResources;
  const DWordArray& packageIds;
};

// The export itself (see above). `database` is the export's own connection, closed and
// released on every path. `progress` (may be null) gets the range 0..n+16, n being the number
// of resource rows, then every fifth row's position, then n+1, n+5, n+11 and n+16.
bool ExportPackageContent(std::unique_ptr<DatabaseConnection> database, const ExportLists& lists,
                          const ExportSource& source, const ByteArray& qualityFolders,
                          const std::string& destinationRoot, const Progress* progress,
                          std::string& report, bool withDiagnosis);

}  // namespace lumora
