// The host's one include: every entry point of the library, with plain C linkage. The host and
// the library share the classes of the arguments and results (they are declared in the headers
// below), and objects that cross in either direction go through their virtual destructors.
//
// Results that point into the library (resource index, classification) stay valid until
// lmClose and are never freed by the host. No entry point lets an exception out: failures are
// false, null or an empty string.
#pragma once

#include <lumora/frame/discipline_info.h>
#include <lumora/lexicon/classification.h>
#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/grammar.h>
#include <lumora/packages/package_records.h>
#include <lumora/platform/keyed_table.h>
#include <lumora/platform/progress.h>
#include <lumora/platform/typed_array.h>
#include <lumora/resources/content_request.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/media_ref.h>
#include <lumora/resources/resource_index.h>

#include <diagnosis/diagnosis.h>

#include <cstdint>
#include <string>

#if defined(_WIN32)
#if defined(LUMORA_BUILDING)
#define LUMORA_EXPORT __declspec(dllexport)
#else
#define LUMORA_EXPORT __declspec(dllimport)
#endif
#else
#define LUMORA_EXPORT __attribute__((visibility("default")))
#endif

// The entry points take and return C++ classes by value; both sides are built against these
// headers, so the C linkage only fixes the names.
#if defined(__clang__)
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"
#endif

extern "C" {

// The library's version, "MAJOR.MINOR.PATCH": the version of the shared library's file name.
LUMORA_EXPORT const char* lumora_version();

// Opens every discipline that contentRoot's Content.ini configures (only the one with
// identifier disciplineFilter unless it is 0). A second open without a close registers the
// disciplines again behind the first ones. True when at least one discipline is registered.
LUMORA_EXPORT bool lmOpen(const char* contentRoot, uint32_t disciplineFilter);
// lmOpen, then one package database connection per registered discipline (its data folder's
// Content.mdb, which must exist). False when the open fails or at the first database that
// does not open; the disciplines before it keep their connections.
LUMORA_EXPORT bool lmOpen_Database(const char* contentRoot, uint32_t disciplineFilter);
// Closes every database, releases every discipline and empties the classification; the common
// roots stay.
LUMORA_EXPORT void lmClose();

// Fills `list` (emptied first) with one record per configured section, whatever its Type,
// reading Content.ini itself; the registry is not involved.
LUMORA_EXPORT bool lmGetDisciplines(const char* contentRoot,
                                    lumora::KeyedTable<lumora::DisciplineInfo>* list);
// The resource index of the request's discipline, or null.
LUMORA_EXPORT lumora::ResourceIndex* lmGetResourceInfos(const lumora::ContentRequest* request);
// Reads resource `resourceId` into `resource`, whose class names the exercise type; with
// fillMedia its media paths are resolved for the request's path kind.
LUMORA_EXPORT bool lmGetResource(const lumora::ContentRequest* request, uint32_t resourceId,
                                 lumora::ExerciseResource* resource, bool fillMedia);
// The URL or UNC path of one medium; false, with `path` untouched, when it is not found or the
// request asks for local paths.
LUMORA_EXPORT bool lmGetMediaPath(const lumora::ContentRequest* request, lumora::MediaRef media,
                                  std::string* path);
// The data folder of the request's discipline; the common Local root when there is none.
LUMORA_EXPORT std::string lmGetPathInfos(const lumora::ContentRequest* request);
LUMORA_EXPORT lumora::Classification* lmGetClassification();

// The grammar of the request's discipline, or null; its mediaFolder is first set below the root
// the request's path kind selects.
LUMORA_EXPORT lumora::CGramV6* lmGetGrammar(const lumora::ContentRequest* request);
// The glossary of the request's discipline, or null; its mediaTemplate is first set to the
// sound file pattern below the URL or UNC root, or emptied for any other path kind.
LUMORA_EXPORT lumora::CGloV6* lmGetGlossary(const lumora::ContentRequest* request);

// Append the rows of the discipline's t_Packages (keyed by package identifier) or
// t_Translations to the caller's list, without emptying it. False, with nothing appended, for
// an unknown discipline, one opened without databases, or a table with no row; false too
// when a row holds a value that cannot be read (a NULL number).
LUMORA_EXPORT bool lmGetPackages(uint32_t disciplineId, lumora::PackageList* list);
LUMORA_EXPORT bool lmGetPackageTranslations(uint32_t disciplineId, lumora::TranslationList* list);

// Loads the diagnosis data of every discipline (disciplineId 0) or of one, for `user`. True
// when every load succeeded: both loads of each discipline for 0, both loads of the discipline
// otherwise. With checkOnly nothing is loaded and the first matching discipline's lessons answer
// whether they hold a load for `user`.
LUMORA_EXPORT bool lmOpenDiagData(uint32_t disciplineId, uint8_t user, bool checkOnly);
// Empties every discipline's diagnosis objects, which stay loadable. Always true.
LUMORA_EXPORT bool lmCloseDiagData();
// The diagnosis objects of the request's discipline, or null; valid until lmClose.
LUMORA_EXPORT CLessonsData* lmGetDiagLessonsData(const lumora::ContentRequest* request);
LUMORA_EXPORT CTestableData* lmGetDiagTestableData(const lumora::ContentRequest* request);

// Exports the packages `packageIds` of a discipline opened with lmOpen_Database, with the media
// of `qualityFolders`, into destinationRoot + "D%03d/" (the discipline's number), whose empty
// Content.mdb the caller made: see packages/package_export.h for what is written and the
// choices made. Every problem is appended to `report` as a line (narrow text, code page 1252);
// true only when `report` is empty at the end. `progress` may be null.
LUMORA_EXPORT bool lmExportPackage(uint32_t disciplineId, lumora::DWordArray packageIds,
                                   lumora::ByteArray qualityFolders, const char* destinationRoot,
                                   const lumora::Progress* progress, std::string* report);
// The same export of lists the caller composed: the packages of `packages` that `packageIds`
// names with their translations, and every row of `packageResources`. The discipline needs no
// database. The diagnosis package file is written only when withDiagnosis is nonzero. A list
// that is null counts as empty; the lists stay the caller's.
LUMORA_EXPORT bool lmExportCustomizedPackage(
    const lumora::PackageList* packages, const lumora::TranslationList* translations,
    const lumora::PackageResourceList* packageResources, const lumora::DWordArray* packageIds,
    uint32_t disciplineId, const lumora::ByteArray* qualityFolders, const char* destinationRoot,
    const lumora::Progress* progress, std::string* report, uint8_t withDiagnosis);

}  // extern "C"

#if defined(__clang__)
#pragma clang diagnostic pop
#endif
