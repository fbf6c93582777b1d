// The index of one discipline: for each exercise type whose index file could be read, its
// TypeIndex, in the order the files were loaded. Built once when the discipline opens and only
// read afterwards.
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/resources/type_index.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class ResourceIndex {
 public:
  // Loads dataFolder + "r%07d.ari" for every type in load order; unreadable files are skipped.
  explicit ResourceIndex(const std::string& dataFolder);

  // The index of `type`, or null when its file was missing or unreadable.
  TypeIndex* FindType(uint32_t type) const;

  const DWordArray& types() const { return types_; }

 private:
  DWordArray types_;
  std::vector<std::unique_ptr<TypeIndex>> indexes_;
};

// dataFolder + "r%07d.ari": the index file of one type.
std::string IndexFilePath(const std::string& dataFolder, uint32_t type);

}  // namespace lumora

#pragma GCC visibility pop
