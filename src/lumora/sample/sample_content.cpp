#include <lumora/sample/sample_content.h>

#include <lumora/platform/atomic_write.h>

#include <lumora/support/paths.h>

#include <lumora/sample/sample_classes.h>
#include <lumora/sample/sample_database.h>
#include <lumora/sample/sample_exercise_types.h>
#include <lumora/sample/sample_glossary.h>
#include <lumora/sample/sample_grammar.h>
#include <lumora/sample/sample_index.h>
#include <lumora/sample/sample_ini.h>
#include <lumora/sample/sample_layout.h>
#include <lumora/sample/sample_media.h>
#include <lumora/sample/sample_package.h>
#include <lumora/sample/sample_resources.h>

namespace lumora::sample {
namespace {

// The one discipline whose glossary is read through its sound and recognition indexes.
constexpr int kIndexedGlossaryDiscipline = 1;

// Every discipline keeps its files in its own folder, which is both its Local root and its data
// folder. One that is only listed still needs its description index: listing reads it. One
// discipline also shows every other exercise type, a few resources each whatever the scale;
// the others index only the types their resources and their package's have.
bool WriteDiscipline(const std::string& folder, const SampleDiscipline& d, int scale,
                     std::string* error) {
  if (!WriteDescriptions(folder, error)) return false;
  if (d.type != 0) return RebuildDescriptionIndex(folder, folder, error);
  if (!WriteSampleResources(folder, scale, error) || !WriteSampleMedia(folder, scale, error) ||
      !WritePackageResources(folder, error) ||
      !WriteSampleGrammar(folder, static_cast<uint8_t>(d.param), error) ||
      !WriteSampleDatabase(folder, static_cast<uint8_t>(d.param), scale, error) ||
      !WriteSampleGlossary(folder, static_cast<uint8_t>(d.param),
                           d.id == kIndexedGlossaryDiscipline, error)) {
    return false;
  }
  if (d.id != kEveryTypeDiscipline) return RebuildPackageIndexes(folder, folder, error);
  return WriteEveryExerciseType(folder, error) && RebuildEveryTypeIndex(folder, folder, error);
}

}  // namespace

bool WriteSampleContent(const std::string& dir, const SampleOptions& options, std::string* error) {
  if (options.scale < 1 || options.scale > kMaxScale) {
    *error = "scale must be between 1 and " + std::to_string(kMaxScale);
    return false;
  }
  const std::string root = WithBackslash(dir);
  if (!CreateFolderPath(root)) {
    *error = "cannot create folder " + root;
    return false;
  }
  // A new tree of many files: each is renamed into place whole, and the tree is flushed to
  // disk once at the end instead of file by file.
  DeferredFlush flush(root);
  // Content.ini names no Local root of its own, so the content root is the common one.
  if (!WriteContentIni(root, error) || !WriteSampleClassification(root, error)) return false;
  for (const SampleDiscipline& d : kSampleDisciplines) {
    if (!WriteDiscipline(root + DisciplineFolder(d.id), d, options.scale, error)) return false;
  }
  if (!options.durable) return true;
  const WriteStatus flushed = flush.Finish();
  if (!flushed.ok()) *error = flushed.ToString();
  return flushed.ok();
}

}  // namespace lumora::sample
