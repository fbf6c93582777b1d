// Index rebuilds and the glossary's order, with what each left on the disk.
#include <lumora/content/glossary_search_cache.h>
#include <lumora/lexicon/glossary_rebuild.h>
#include <lumora/maintenance.h>
#include <lumora/resources/index_rebuild.h>
#include <lumora/resources/indexed_numbers.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/paths.h>

#include <filesystem>

namespace lumora {
namespace {

Status WriteFailure(const WriteStatus& written, const std::string& lead) {
  Status status;
  status.code = StatusCode::kUnreadable;
  status.reason = lead + written.ToString();
  return status;
}

// The groups and entries of the type's index file now in `folder`.
void Count(const std::string& folder, RebuiltIndex& rebuilt) {
  std::unique_ptr<TypeIndex> index = NewTypeIndex(rebuilt.type);
  if (!index || !index->Load(IndexFilePath(folder, rebuilt.type))) return;
  if (const std::optional<IndexedNumbers> numbers = NumbersOf(*index)) {
    rebuilt.groups = numbers->groups;
    rebuilt.entries = numbers->numbers.size();
  }
}

}  // namespace

Status RebuildIndexes(const std::string& resourceRoot, const std::string& folder,
                      const std::vector<uint32_t>& types, bool inPlace,
                      std::vector<RebuiltIndex>* results) {
  results->clear();
  const std::string indexFolder = WithBackslash(folder);
  std::error_code error;
  std::filesystem::create_directories(indexFolder, error);
  if (error) {
    Status status;
    status.code = StatusCode::kUnreadable;
    status.reason = "cannot create " + indexFolder + ": " + error.message();
    return status;
  }
  if (inPlace) {
    std::vector<TypeRebuild> rebuilt;
    const WriteStatus saved = RebuildIndexesInPlace(resourceRoot, indexFolder, types, rebuilt);
    if (!saved.ok()) return WriteFailure(saved, "nothing was replaced: ");
    for (const TypeRebuild& r : rebuilt) results->push_back({r.type, r.built, 0, 0});
  } else {
    for (uint32_t type : types) {
      results->push_back({type, BuildTypeIndex(type, resourceRoot, indexFolder), 0, 0});
    }
  }
  for (RebuiltIndex& rebuilt : *results) Count(indexFolder, rebuilt);
  return {};
}

Status ResortGlossary(CGloV6& glossary, bool save) {
  if (!rebuildSortAndLetters(glossary)) {
    Status status;
    status.code = StatusCode::kBusy;
    status.reason = "a rebuild is already running";
    return status;
  }
  // The order and letters changed in the tables the search index was made from.
  ForgetSearchIndexOf(glossary);
  if (!save) return {};
  const WriteStatus saved = SaveSortAndLetters(glossary);
  if (!saved.ok()) return WriteFailure(saved, "the glossary was not saved: ");
  return {};
}

}  // namespace lumora
