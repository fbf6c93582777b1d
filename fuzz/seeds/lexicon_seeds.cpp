// Seeds of the targets that read set files and glossary folders. A sample glossary is far
// larger than a fuzz input should be, so its folder is cut down to a few words first; the
// grammar and classification files are small enough as they are.
#include <lumora/lexicon/indexed_set_file.h>
#include <lumora/lexicon/set_file.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "../lexicon_inputs.h"
#include "provider_input.h"
#include "seed_folder.h"
#include "seed_sets.h"
#include "small_glossary.h"

namespace seeds {
namespace {

using fuzzing::kGlossaryTableCount;
using fuzzing::kIndexedTables;
using fuzzing::kSetFileNames;

constexpr size_t kSmallGlossaryWords = 12;
// The longest set file and index file glossary_folder_fuzz takes from its input.
constexpr size_t kLongestSetFile = 4096;
constexpr size_t kLongestIndexFile = 512;

Bytes SetFileBytes(const std::filesystem::path& folder, std::u16string_view name) {
  return ReadBytes(lumora::SetFilePath(folder.string() + "/", name));
}

Bytes IndexFileBytes(const std::filesystem::path& folder, std::u16string_view name) {
  return ReadBytes(lumora::SetIndexPath(folder.string() + "/", name));
}

// Every set file of the folder whose table set_files_fuzz knows, behind its selector.
void AddSetFiles(const std::filesystem::path& folder, TargetSeeds& seeds) {
  for (size_t i = 0; i < kSetFileNames.size(); ++i) {
    const Bytes bytes = SetFileBytes(folder, kSetFileNames[i]);
    if (!bytes.empty()) seeds.Add(Prefixed(static_cast<uint8_t>(i), bytes));
  }
}

// The index and the set file of both indexed tables, as glossary_index_fuzz takes them: a byte
// for the table, the index length in two bytes, the index, the set file.
void AddIndexedTables(const std::filesystem::path& folder, TargetSeeds& seeds) {
  for (uint8_t table = 0; table < kIndexedTables.size(); ++table) {
    const Bytes index = IndexFileBytes(folder, kIndexedTables[table]);
    const Bytes set = SetFileBytes(folder, kIndexedTables[table]);
    Bytes seed{table, static_cast<uint8_t>(index.size()), static_cast<uint8_t>(index.size() >> 8)};
    seed.insert(seed.end(), index.begin(), index.end());
    seed.insert(seed.end(), set.begin(), set.end());
    seeds.Add(seed);
  }
}

// The glossary_folder_fuzz input that writes the folder's files as they are, picks the language
// the small glossary was ordered for, and asks about its first two words.
Bytes GlossaryFolderInput(const std::filesystem::path& folder, uint8_t language_choice) {
  ProviderInput input;
  input.Byte(0);  // even: the files are the input's bytes
  input.Byte(language_choice);
  const auto add = [&input](const Bytes& bytes, size_t longest) {
    const bool present = !bytes.empty() && bytes.size() <= longest;
    input.Byte(present ? 1 : 0);
    if (present) input.String(bytes);
  };
  for (size_t i = 0; i < kGlossaryTableCount; ++i) {
    add(SetFileBytes(folder, kSetFileNames[i]), kLongestSetFile);
  }
  for (std::u16string_view table : kIndexedTables) {
    add(IndexFileBytes(folder, table), kLongestIndexFile);
  }
  for (const uint8_t word : {1, 2}) {
    input.Byte(1);  // a small word number
    input.Byte(word);
  }
  return input.Finish();
}

// The sample's glossary folders, each cut down in a folder of its own below `scratch`.
std::vector<std::filesystem::path> SmallGlossaries(const std::filesystem::path& sample,
                                                   const std::filesystem::path& scratch) {
  std::vector<std::filesystem::path> folders;
  const std::string fns = lumora::SetFilePath("", kSetFileNames[0]);
  for (const auto& file : FilesEndingIn(sample, fns)) {
    const size_t n = folders.size();
    const std::filesystem::path to = scratch / ("glossary-" + std::to_string(n));
    const uint8_t language = fuzzing::kGlossaryLanguages[n % fuzzing::kGlossaryLanguages.size()];
    if (WriteSmallGlossary(file.parent_path(), to, language, kSmallGlossaryWords)) {
      folders.push_back(to);
    }
  }
  return folders;
}

bool IsGlossaryFolder(const std::filesystem::path& folder) {
  return std::filesystem::exists(lumora::SetFilePath(folder.string() + "/", kSetFileNames[0]));
}

}  // namespace

void WriteLexiconSeeds(const std::filesystem::path& sample, const std::filesystem::path& out,
                       const std::filesystem::path& scratch) {
  const std::vector<std::filesystem::path> glossaries = SmallGlossaries(sample, scratch);
  TargetSeeds set_files(out, "set_files_fuzz");
  TargetSeeds indexed(out, "glossary_index_fuzz");
  TargetSeeds folders(out, "glossary_folder_fuzz");
  for (size_t n = 0; n < glossaries.size(); ++n) {
    AddSetFiles(glossaries[n], set_files);
    AddIndexedTables(glossaries[n], indexed);
    folders.Add(GlossaryFolderInput(glossaries[n], static_cast<uint8_t>(n)));
  }
  std::vector<std::filesystem::path> others;
  for (const auto& file : FilesEndingIn(sample, ".set")) others.push_back(file.parent_path());
  others.erase(std::unique(others.begin(), others.end()), others.end());
  for (const auto& folder : others) {
    if (!IsGlossaryFolder(folder)) AddSetFiles(folder, set_files);
  }
}

}  // namespace seeds
