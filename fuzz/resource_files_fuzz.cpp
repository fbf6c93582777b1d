// Feeds arbitrary bytes to the resource file loaders: the first byte picks one of the exercise
// types that has a resource class, the rest is the file. What was read is stored again, so that
// a partly read object is also walked.
#include <lumora/platform/archive.h>
#include <lumora/platform/stream.h>
#include <lumora/resources/type_catalog.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const uint32_t type = lumora::kExerciseTypes[data[0] % lumora::kExerciseTypes.size()];
  std::unique_ptr<lumora::ExerciseResource> resource = lumora::NewResource(type);
  if (!resource) return 0;
  try {
    lumora::MemoryStream in(std::vector<uint8_t>(data + 1, data + size));
    lumora::Archive load(in, lumora::Archive::Mode::kLoad);
    resource->Serialize(load);
  } catch (const lumora::ArchiveError&) {
  }
  lumora::MemoryStream out;
  lumora::Archive store(out, lumora::Archive::Mode::kStore);
  resource->Serialize(store);
  store.Flush();
  return 0;
}
