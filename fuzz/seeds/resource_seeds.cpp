// Seeds of the targets that read resource and index files: each file of the sample behind the
// selector byte of its own type, and for the stored forms the files they are made of.
#include <lumora/resources/type_catalog.h>

#include <algorithm>
#include <cstdint>
#include <optional>

#include "seed_folder.h"
#include "seed_sets.h"

namespace seeds {
namespace {

// The position of `type` in `types`, which is the selector byte a target takes for it.
template <typename Types>
std::optional<uint8_t> SelectorOf(const Types& types, uint32_t type) {
  const auto found = std::find(types.begin(), types.end(), type);
  if (found == types.end()) return std::nullopt;
  return static_cast<uint8_t>(found - types.begin());
}

// The number of stored forms archive_forms_fuzz picks from.
constexpr uint8_t kArchiveForms = 6;

}  // namespace

void WriteResourceSeeds(const std::filesystem::path& sample, const std::filesystem::path& out) {
  TargetSeeds seeds(out, "resource_files_fuzz");
  for (const char* ending : {".ars", ".arh"}) {
    for (const auto& file : FilesEndingIn(sample, ending)) {
      // A resource lies in the folder named after its type.
      const auto selector = SelectorOf(lumora::kExerciseTypes, TypeInName(file.parent_path()));
      if (selector) seeds.Add(Prefixed(*selector, ReadBytes(file)));
    }
  }
}

void WriteIndexSeeds(const std::filesystem::path& sample, const std::filesystem::path& out) {
  TargetSeeds seeds(out, "index_files_fuzz");
  for (const auto& file : FilesEndingIn(sample, ".ari")) {
    const auto selector = SelectorOf(lumora::kIndexLoadOrder, TypeInName(file));
    if (selector) seeds.Add(Prefixed(*selector, ReadBytes(file)));
  }
}

// Index files are tables of arrays and counted strings: each one is offered to every form.
void WriteArchiveFormSeeds(const std::filesystem::path& sample, const std::filesystem::path& out) {
  TargetSeeds seeds(out, "archive_forms_fuzz");
  for (const auto& file : FilesEndingIn(sample, ".ari")) {
    const Bytes bytes = ReadBytes(file);
    for (uint8_t form = 0; form < kArchiveForms; ++form) seeds.Add(Prefixed(form, bytes));
  }
}

}  // namespace seeds
