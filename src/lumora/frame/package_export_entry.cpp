// The two export entry points: lmExportPackage reads its lists from the discipline's package
// database, lmExportCustomizedPackage takes the caller's; both run the same export.
#include <lumora/frame/boundary.h>
#include <lumora/frame/library_state.h>
#include <lumora/frame/package_queries.h>
#include <lumora/lumora.h>
#include <lumora/packages/package_export.h>
#include <lumora/resources/report_format.h>

#include <new>

namespace lumora {
namespace {

ExportSource SourceOf(Discipline& discipline, uint32_t disciplineId) {
  return {disciplineId,         static_cast<uint8_t>(discipline.info.Param & 0xFF),
          discipline.localRoot, &discipline.glossary,
          &discipline.grammar,  &Library().classification};
}

// The export's own connection; null, with the message appended, when there is no memory.
std::unique_ptr<DatabaseConnection> NewExportConnection(std::string& report) {
  std::unique_ptr<DatabaseConnection> database(new (std::nothrow) DatabaseConnection);
  if (database == nullptr) report += "Can not allocate database pointer!\n";
  return database;
}

bool ExportListed(uint32_t disciplineId, const DWordArray& packageIds,
                  const ByteArray& qualityFolders, const char* destinationRoot,
                  const Progress* progress, std::string& report) {
  Discipline* discipline = FindDiscipline(disciplineId);
  if (discipline == nullptr) {
    report += FormatReportLine("Can not get Discipline n\xB0%d\n", static_cast<int>(disciplineId));
    return false;
  }
  PackageList packages;
  if (!lmGetPackages(disciplineId, &packages)) {
    report += FormatReportLine("Can not get packages for discipline n\xB0%d\n",
                               static_cast<int>(disciplineId));
    return false;
  }
  TranslationList translations;
  if (!lmGetPackageTranslations(disciplineId, &translations)) {
    report += FormatReportLine("Can not get package translations for discipline n\xB0%d\n",
                               static_cast<int>(disciplineId));
    return false;
  }
  PackageResourceList resources;
  if (!GetPackageResources(disciplineId, &packageIds, &resources)) {
    report += FormatReportLine("Can not get package resources for discipline n\xB0%d\n",
                               static_cast<int>(disciplineId));
    return false;
  }
  std::unique_ptr<DatabaseConnection> database = NewExportConnection(report);
  if (database == nullptr) return false;
  return ExportPackageContent(std::move(database), {packages, translations, resources, packageIds},
                              SourceOf(*discipline, disciplineId), qualityFolders, destinationRoot,
                              progress, report, true);
}

}  // namespace
}  // namespace lumora

bool lmExportPackage(uint32_t disciplineId, lumora::DWordArray packageIds,
                     lumora::ByteArray qualityFolders, const char* destinationRoot,
                     const lumora::Progress* progress, std::string* report) {
  return lumora::Guarded(false, [&] {
    if (report == nullptr || destinationRoot == nullptr) return false;
    return lumora::ExportListed(disciplineId, packageIds, qualityFolders, destinationRoot, progress,
                                *report);
  });
}

bool lmExportCustomizedPackage(const lumora::PackageList* packages,
                               const lumora::TranslationList* translations,
                               const lumora::PackageResourceList* packageResources,
                               const lumora::DWordArray* packageIds, uint32_t disciplineId,
                               const lumora::ByteArray* qualityFolders, const char* destinationRoot,
                               const lumora::Progress* progress, std::string* report,
                               uint8_t withDiagnosis) {
  return lumora::Guarded(false, [&] {
    if (report == nullptr || destinationRoot == nullptr) return false;
    lumora::Discipline* discipline = lumora::FindDiscipline(disciplineId);
    if (discipline == nullptr) {
      *report += lumora::FormatReportLine("Can not get Discipline n\xB0%d\n",
                                          static_cast<int>(disciplineId));
      return false;
    }
    std::unique_ptr<lumora::DatabaseConnection> database = lumora::NewExportConnection(*report);
    if (database == nullptr) return false;
    // A list the caller did not give is an empty one.
    const lumora::PackageList no_packages;
    const lumora::TranslationList no_translations;
    const lumora::PackageResourceList no_resources;
    const lumora::DWordArray no_ids;
    const lumora::ByteArray no_folders;
    return lumora::ExportPackageContent(
        std::move(database),
        {packages ? *packages : no_packages, translations ? *translations : no_translations,
         packageResources ? *packageResources : no_resources, packageIds ? *packageIds : no_ids},
        lumora::SourceOf(*discipline, disciplineId), qualityFolders ? *qualityFolders : no_folders,
        destinationRoot, progress, *report, withDiagnosis != 0);
  });
}
