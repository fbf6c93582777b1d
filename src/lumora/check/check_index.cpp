// Each discipline's index files against its resource files: every index loads, lists only
// resources whose file exists, misses none that does, and holds exactly what a rebuild from the
// resource files would write.
#include <lumora/check/checks.h>
#include <lumora/platform/atomic_write.h>
#include <lumora/platform/file.h>
#include <lumora/platform/scratch_folder.h>
#include <lumora/resources/indexed_numbers.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/index_inputs.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type40.h>
#include <lumora/support/paths.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace lumora {
namespace {

// Index files are small; anything larger than this is not worth comparing byte by byte.
constexpr uint64_t kMostIndexBytes = 256ull << 20;

std::string TypeName(uint32_t type) { return "type " + std::to_string(type); }

// The first byte at which the two differ, or their common length when one is shorter.
size_t FirstDifference(const std::string& a, const std::string& b) {
  const auto [in_a, in_b] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
  return static_cast<size_t>(in_a - a.begin());
}

// The rebuilds of one discipline's index files into a scratch folder, each type's at most once:
// type 40's rebuild starts by rebuilding the type-1005 index it reads, which the type-1005
// comparison then reuses. The rebuilds of those two types take what they keep of each file from
// the resources check, which decoded them, when it did.
class Rebuilds {
 public:
  Rebuilds(const CheckedRoot& root, size_t d, const std::string& scratch)
      : resource_root_(root.disciplines[d].discipline->localRoot), scratch_(scratch) {
    if (auto found = root.decoded.elements.find(d); found != root.decoded.elements.end()) {
      elements_ = std::move(found->second);
    }
    if (auto found = root.decoded.type40.find(d); found != root.decoded.type40.end()) {
      type40_ = std::move(found->second);
    }
  }

  // Whether every resource file of `type` read (and, for type 40, linked only to indexed
  // elements); the rebuilt index is in the scratch folder either way.
  bool Build(uint32_t type) {
    if (const auto done = built_.find(type); done != built_.end()) return done->second;
    bool built;
    if (type == Type40Resource::kType) {
      Build(kContentElementType);
      built = type40_ ? BuildType40IndexFrom(*type40_, scratch_)
                      : BuildType40IndexOverElements(resource_root_, scratch_);
    } else if (type == kContentElementType && elements_) {
      built = BuildType1005IndexFrom(std::move(*elements_), scratch_);
    } else {
      built = BuildTypeIndex(type, resource_root_, scratch_);
    }
    built_.emplace(type, built);
    return built;
  }

  const std::string& scratch() const { return scratch_; }

 private:
  const std::string& resource_root_;
  const std::string& scratch_;
  std::optional<std::vector<ElementIndexInput>> elements_;
  std::optional<std::vector<Type40IndexInput>> type40_;
  std::map<uint32_t, bool> built_;
};

void CompareWithRebuild(const CheckedRoot& root, uint32_t type, const std::string& stored_path,
                        Rebuilds& rebuilds, CheckReport& report) {
  if (!rebuilds.Build(type)) {
    // The type-40 rebuild also fails on a link to an element its type-1005 index lacks, which
    // an export that leaves the elements behind always has.
    const std::string why = type == Type40Resource::kType
                                ? " resource files do not read or link to type-1005 resources "
                                  "that are not indexed (see the resources and media checks)"
                                : " resource files do not read (see the resources check)";
    report.Warning(root.Relative(stored_path),
                   "could not be compared with a rebuild: some " + TypeName(type) + why);
    return;
  }
  std::string stored;
  std::string rebuilt;
  if (ReadWholeFile(stored_path, kMostIndexBytes, stored) != WholeFile::kRead ||
      ReadWholeFile(IndexFilePath(rebuilds.scratch(), type), kMostIndexBytes, rebuilt) !=
          WholeFile::kRead) {
    return;
  }
  if (stored == rebuilt) return;
  report.Error(root.Relative(stored_path), "differs from a rebuild of the " + TypeName(type) +
                                               " resource files (" + std::to_string(stored.size()) +
                                               " bytes stored, " + std::to_string(rebuilt.size()) +
                                               " rebuilt, first difference at byte " +
                                               std::to_string(FirstDifference(stored, rebuilt)) +
                                               "): lumora rebuild-index writes the rebuilt one");
}

void CheckType(const CheckedRoot& root, const Discipline& discipline, uint32_t type,
               Rebuilds* rebuilds, CheckReport& report) {
  const std::string path = IndexFilePath(discipline.dataFolder, type);
  const std::vector<ScannedResource> files = ScanResourceFiles(discipline.localRoot, type);
  ++report.checked;
  if (!FileExists(path)) {
    if (!files.empty()) {
      report.Error(root.Relative(path),
                   "is missing, though " + std::to_string(files.size()) + " " + TypeName(type) +
                       " resource files exist: the library lists none of them");
    }
    return;
  }
  // Every type's index class loads its file through the archive: the same read, with its
  // reason.
  std::unique_ptr<TypeIndex> index = NewTypeIndex(type);
  const LoadResult loaded = ReadArchiveFile(path, *index);
  if (!loaded.ok()) {
    report.Error(root.Relative(path), "does not load (" + loaded.failure().Details() +
                                          "): the library lists no " + TypeName(type) +
                                          " resource of this discipline");
    return;
  }
  std::set<uint32_t> on_disk;
  for (const ScannedResource& file : files) on_disk.insert(file.number);
  std::set<uint32_t> indexed;
  if (const auto numbers = NumbersOf(*index))
    indexed.insert(numbers->numbers.begin(), numbers->numbers.end());
  for (uint32_t number : indexed) {
    ++report.checked;
    if (on_disk.count(number) == 0) {
      report.Error(root.Relative(path), "lists resource " + std::to_string(number) +
                                            ", whose file is in no course folder");
    }
  }
  for (const ScannedResource& file : files) {
    ++report.checked;
    if (indexed.count(file.number) == 0) {
      report.Error(root.Relative(file.path),
                   "is not in the " + TypeName(type) + " index: the library never lists it");
    }
  }
  if (rebuilds != nullptr) CompareWithRebuild(root, type, path, *rebuilds, report);
  root.StepsDone(files.size());
}

}  // namespace

void CheckIndexes(const CheckedRoot& root, CheckReport& report) {
  for (size_t i = 0; i < root.disciplines.size(); ++i) {
    const CheckedDiscipline& d = root.disciplines[i];
    // A fresh scratch folder per discipline: rebuilds write companion files of other types.
    const ScratchFolder scratch("lumora-check");
    // The rebuilds' files are compared and thrown away: none of them needs to reach the disk.
    const DeferredFlush never_flushed(scratch.path());
    if (scratch.path().empty()) {
      report.Warning(root.Relative(d.discipline->dataFolder),
                     "no scratch folder could be made: the index files are not compared with a "
                     "rebuild");
    }
    Rebuilds rebuilds(root, i, scratch.path());
    for (uint32_t type : kExerciseTypes) {
      CheckType(root, *d.discipline, type, scratch.path().empty() ? nullptr : &rebuilds, report);
    }
  }
}

}  // namespace lumora
