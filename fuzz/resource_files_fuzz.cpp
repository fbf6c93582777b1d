// Feeds arbitrary bytes to the resource file loaders of types 40 and 1005, then stores what was
// read, so that a partly read object is also walked.
#include <lumora/platform/archive.h>
#include <lumora/platform/stream.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type40.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

template <typename T>
void LoadAndStore(const uint8_t* data, size_t size) {
  T resource;
  try {
    lumora::MemoryStream in(std::vector<uint8_t>(data, data + size));
    lumora::Archive load(in, lumora::Archive::Mode::kLoad);
    resource.Serialize(load);
  } catch (const lumora::ArchiveError&) {
  }
  lumora::MemoryStream out;
  lumora::Archive store(out, lumora::Archive::Mode::kStore);
  resource.Serialize(store);
  store.Flush();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  if (data[0] % 2 == 0) {
    LoadAndStore<lumora::Type40Resource>(data + 1, size - 1);
  } else {
    LoadAndStore<lumora::ContentElement>(data + 1, size - 1);
  }
  return 0;
}
