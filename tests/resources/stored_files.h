// One well-formed file of every stored form that the library reads: the resource file of
// every resource class and an index file of each index form. Every field that has a stored form
// holds something, so that every count, length and flag of the form is on disk.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "fixtures/archive_bytes.h"

namespace lumora::testing {

struct StoredFile {
  std::string name;
  uint32_t type;
  // A resource file, read by LoadResource; otherwise the type's index file, read when a
  // discipline builds its resource index.
  bool resource;
  Bytes bytes;
};

// The ResourceId the resource files carry, and under which the tests store them.
inline constexpr uint32_t kStoredResourceId = 0x00100123;

std::vector<StoredFile> EveryStoredForm();

}  // namespace lumora::testing
