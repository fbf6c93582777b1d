#include <lumora/frame/boundary.h>
#include <lumora/frame/library_state.h>
#include <lumora/frame/package_queries.h>
#include <lumora/lumora.h>
#include <lumora/maintenance.h>
#include <lumora/packages/package_tables.h>

namespace lumora {
namespace {

// The database of an open discipline that was opened with databases, or null.
DatabaseConnection* DatabaseOf(uint32_t disciplineId) {
  Discipline* discipline = FindDiscipline(disciplineId);
  return discipline != nullptr ? discipline->database.get() : nullptr;
}

}  // namespace

bool GetPackageResources(uint32_t disciplineId, const DWordArray* packageIds,
                         PackageResourceList* list) {
  return Guarded(false, [&] {
    DatabaseConnection* db = DatabaseOf(disciplineId);
    if (db == nullptr || packageIds == nullptr || list == nullptr) return false;
    return ReadPackageResources(*db, *packageIds, *list);
  });
}

}  // namespace lumora

bool lmGetPackages(uint32_t disciplineId, lumora::PackageList* list) {
  return lumora::Guarded(false, [&] {
    lumora::DatabaseConnection* db = lumora::DatabaseOf(disciplineId);
    return db != nullptr && list != nullptr && lumora::ReadPackages(*db, *list);
  });
}

bool lmGetPackageTranslations(uint32_t disciplineId, lumora::TranslationList* list) {
  return lumora::Guarded(false, [&] {
    lumora::DatabaseConnection* db = lumora::DatabaseOf(disciplineId);
    return db != nullptr && list != nullptr && lumora::ReadPackageTranslations(*db, *list);
  });
}
