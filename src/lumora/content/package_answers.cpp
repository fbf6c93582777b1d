// A discipline's packages through the content face.
#include <lumora/content.h>
#include <lumora/content/content_answers.h>
#include <lumora/describe/package_description.h>
#include <lumora/frame/library_lock.h>

#include <mutex>

namespace lumora {

Answer ContentRoot::Packages(uint32_t discipline) const {
  // The discipline's one database connection answers one query at a time.
  std::unique_lock lock(LibraryMutex());
  if (!open_ || !RequestFor(discipline)) return Failed(NoDiscipline(discipline));
  PackageList packages;
  if (!lmGetPackages(discipline, &packages)) {
    return Failed(
        NotFound("no package could be read for discipline " + std::to_string(discipline)));
  }
  // A discipline without translations still lists its packages, untitled.
  TranslationList translations;
  lmGetPackageTranslations(discipline, &translations);
  return Found(DescribePackages(packages, translations));
}

}  // namespace lumora
