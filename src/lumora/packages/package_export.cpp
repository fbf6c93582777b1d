#include <lumora/lexicon/classification.h>
#include <lumora/packages/export_folder.h>
#include <lumora/packages/export_resources.h>
#include <lumora/packages/export_rows.h>
#include <lumora/packages/package_export.h>
#include <lumora/packages/partial_lexicon.h>
#include <lumora/platform/atomic_write.h>
#include <lumora/platform/kept_files.h>
#include <lumora/resources/export_indexes.h>
#include <lumora/resources/media_copy_queue.h>
#include <lumora/resources/publish.h>
#include <lumora/resources/report_format.h>
#include <lumora/support/content_ini.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

#include <diagnosis/diagnosis.h>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

namespace lumora {
namespace {

// A resource row that the list holds twice would fail its INSERT half-way through the export;
// it is found before anything is written. Answers the second of the first such pair in list
// order, the row whose INSERT would fail.
const PackageResourceRecord* RepeatedRow(const PackageResourceList& rows) {
  using Row = std::tuple<uint32_t, int32_t, int32_t>;
  std::vector<std::pair<Row, uint32_t>> sorted;
  sorted.reserve(rows.size());
  for (uint32_t i = 0; i < rows.size(); ++i) {
    const PackageResourceRecord& row = *rows.ObjectAt(i);
    sorted.push_back({{rows.KeyAt(i), row.idResource, row.idItem}, i});
  }
  std::sort(sorted.begin(), sorted.end());
  std::optional<uint32_t> repeated;
  for (size_t i = 1; i < sorted.size(); ++i) {
    if (sorted[i].first == sorted[i - 1].first) {
      repeated = std::min(repeated.value_or(sorted[i].second), sorted[i].second);
    }
  }
  return repeated ? rows.ObjectAt(*repeated) : nullptr;
}

// The classification's files, saved into the "Classes" folder beside the export folder; the
// classification is pointed back at its own folder whatever the save gave.
void ExportClassification(Classification& classification, const std::string& root,
                          std::string& report) {
  const std::string classes = root + "Classes";
  CreateFolderPath(classes);
  const std::string own = classification.folder;
  classification.SetFolder(classes);
  const bool saved = classification.save();
  classification.SetFolder(own);
  if (!saved) report += "Can not copy the set files for the classification.\n";
}

// Adds the resource rows and copies their files with their media, every fifth row's position
// sent to `bar`. False when a row cannot be added or the host asks to stop: the export stops
// there, after what the copies made so far have to say.
bool CopyResources(const PackageResourceList& resources, const ExportSource& source,
                   const std::string& exportFolder, const ByteArray& qualityFolders,
                   const Progress& bar, ExportRows& rows, std::set<uint32_t>& referencedIds,
                   std::string& report) {
  CopyQueue copies(report);
  ExportResourceCopier copier(source.localRoot, exportFolder, qualityFolders, copies);
  for (uint32_t i = 0; i < resources.size(); ++i) {
    if (bar.StopRequested()) {
      copies.Finish();
      report += "The export was stopped before its end.\n";
      return false;
    }
    const PackageResourceRecord& row = *resources.ObjectAt(i);
    const size_t said = report.size();
    if (!rows.AddPackageResource(resources.KeyAt(i), row.idResource, row.idItem)) {
      const std::string stop = report.substr(said);
      report.resize(said);
      copies.Finish();
      report += stop;
      return false;
    }
    copier.Copy(row.idResource, row.idItem);
    if (i % 5 == 0) bar.SetPosition(i);
  }
  copies.Finish();
  referencedIds = copier.referencedIds();
  return true;
}

}  // namespace

bool ExportPackageContent(std::unique_ptr<DatabaseConnection> database, const ExportLists& lists,
                          const ExportSource& source, const ByteArray& qualityFolders,
                          const std::string& destinationRoot, const Progress* progress,
                          std::string& report, bool withDiagnosis) {
  const Progress none;
  const Progress& bar = progress != nullptr ? *progress : none;
  const std::string root = WithBackslash(destinationRoot);
  const std::string exportFolder = ExportFolderOf(root, source.disciplineId);
  if (const PackageResourceRecord* row = RepeatedRow(lists.packageResources)) {
    report += FormatReportLine("Can not add in PackageResource [%ld] Item [%ld]\n",
                               static_cast<long>(row->idResource), static_cast<long>(row->idItem));
    return false;
  }
  DeferredFlush flush(root);
  const ListedFiles listed_sources;
  const KeptFiles copies_to_index;
  ExportRows rows(std::move(database), report);
  if (!rows.Open(exportFolder) || !rows.CreateTables() || !rows.AddPackages(lists)) return false;

  const uint32_t n = lists.packageResources.size();
  bar.SetRange(n + 16);
  std::set<uint32_t> referencedIds;
  if (!CopyResources(lists.packageResources, source, exportFolder, qualityFolders, bar, rows,
                     referencedIds, report)) {
    return false;
  }
  RebuildExportIndexes(exportFolder);
  for (uint32_t type : kPublishingTypes) PublishResources(type, root, true);
  bar.SetPosition(n + 1);
  if (!rows.Finish()) return false;

  if (source.classification != nullptr) ExportClassification(*source.classification, root, report);
  const std::string glossaryFolder = LexiconFolder(exportFolder, 1001);
  CreateFolderPath(glossaryFolder);
  if (source.glossary == nullptr ||
      !ExportPartialGlossary(*source.glossary, referencedIds, qualityFolders, glossaryFolder,
                             report)) {
    report += "Problem during creation of the partial glossary.\n";
  }
  bar.SetPosition(n + 5);
  const std::string grammarFolder = LexiconFolder(exportFolder, 1002);
  CreateFolderPath(grammarFolder);
  if (source.grammar == nullptr ||
      !ExportPartialGrammar(*source.grammar, source.localRoot, referencedIds, qualityFolders,
                            grammarFolder, report)) {
    report += "Problem during creation of the partial grammar.\n";
  }
  bar.SetPosition(n + 11);
  if (withDiagnosis) {
    const std::set<uint32_t> lessons = LessonNumbers(referencedIds);
    CLessonsData::GeneratePackage(source.languageParam, source.glossary, source.grammar,
                                  source.localRoot, {lessons.begin(), lessons.end()}, exportFolder,
                                  &report);
  }
  bar.SetPosition(n + 16);
  if (WriteStatus flushed = flush.Finish(); !flushed.ok()) report += flushed.ToString() + "\n";
  return report.empty();
}

}  // namespace lumora
