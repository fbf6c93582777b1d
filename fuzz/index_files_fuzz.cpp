// Feeds arbitrary bytes to the index file loaders: the first byte picks one of the types whose
// index a discipline reads, the rest is the file. What was read is looked up and stored again,
// so that a partly read index is also walked.
#include <lumora/platform/archive.h>
#include <lumora/platform/stream.h>
#include <lumora/resources/index_forms.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/resources/type_catalog.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const uint32_t type = lumora::kIndexLoadOrder[data[0] % lumora::kIndexLoadOrder.size()];
  std::unique_ptr<lumora::TypeIndex> index = lumora::NewTypeIndex(type);
  if (!index) return 0;
  try {
    lumora::MemoryStream in(std::vector<uint8_t>(data + 1, data + size));
    lumora::Archive load(in, lumora::Archive::Mode::kLoad);
    index->Serialize(load);
  } catch (const lumora::ArchiveError&) {
  }
  // The lookups a discipline makes on a loaded index.
  index->GetResourceFlag(7);
  if (auto* groups = dynamic_cast<lumora::GroupsIndex*>(index.get())) {
    lumora::DWordArray numbers;
    groups->groups.GetResourceNumbers(data[0], numbers);
  }
  if (auto* descriptions = dynamic_cast<lumora::Type2000Index*>(index.get())) {
    lumora::ByteArray keys;
    descriptions->CollectGroupKeys(keys);
    lumora::KeyedTable<lumora::Type2000Entry> copy;
    descriptions->CopyEntries(data[0], copy);
  }
  lumora::MemoryStream out;
  lumora::Archive store(out, lumora::Archive::Mode::kStore);
  index->Serialize(store);
  store.Flush();
  return 0;
}
