// Feeds arbitrary bytes to the index read and the single-record fetch: the first byte picks
// the sound or the reco table, the next two how many of the remaining bytes form the index
// file; the rest is the set file. Both are written to a scratch folder, the index is read and
// the first words and the last entries are fetched through it.
#include <lumora/lexicon/glossary_records.h>
#include <lumora/lexicon/indexed_set_file.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "lexicon_inputs.h"
#include "scratch_folder.h"

namespace {

using fuzzing::ScratchFolder;
using fuzzing::WriteFile;

template <typename Record>
void ReadAndFetch(const std::string& folder, std::u16string_view name) {
  lumora::DWordArray offsets;
  int32_t version = 2;
  if (!lumora::ReadSetIndex(folder, name, version, offsets)) return;
  constexpr uint32_t kWordsTried = 16;
  const uint32_t last = offsets.size();
  for (uint32_t word = 0; word < std::min(last, kWordsTried); ++word) {
    Record record;
    lumora::FetchSetRecord(folder, name, offsets, word, record);
  }
  for (uint32_t word = last > kWordsTried ? last - kWordsTried : 0; word <= last; ++word) {
    Record record;
    lumora::FetchSetRecord(folder, name, offsets, word, record);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const ScratchFolder scratch;
  if (size < 3 || scratch.path().empty()) return 0;
  const bool sounds = data[0] % 2 == 0;
  const std::u16string_view name = fuzzing::kIndexedTables[sounds ? 0 : 1];
  const size_t rest = size - 3;
  const size_t index_size = std::min<size_t>(data[1] | (data[2] << 8), rest);
  WriteFile(lumora::SetIndexPath(scratch.path(), name), data + 3, index_size);
  WriteFile(lumora::SetFilePath(scratch.path(), name), data + 3 + index_size, rest - index_size);
  if (sounds) {
    ReadAndFetch<lumora::GloSoundRecord>(scratch.path(), name);
  } else {
    ReadAndFetch<lumora::GloRecoRecord>(scratch.path(), name);
  }
  return 0;
}
