// Where the seed writer puts what it makes: one folder per fuzz target, one file per distinct
// seed, plus the helpers that take seeds from the files of a sample content tree.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <set>
#include <string_view>
#include <vector>

namespace seeds {

using Bytes = std::vector<uint8_t>;

// The whole file; empty when it cannot be read.
Bytes ReadBytes(const std::filesystem::path& file);

// `rest` behind the byte with which a target picks what it reads.
Bytes Prefixed(uint8_t selector, const Bytes& rest);

// The files below `root` whose name ends in `ending`, in path order.
std::vector<std::filesystem::path> FilesEndingIn(const std::filesystem::path& root,
                                                 std::string_view ending);

// The number in a content-tree name such as r0002000.ari or r0000040: the type it holds.
uint32_t TypeInName(const std::filesystem::path& path);

class TargetSeeds {
 public:
  TargetSeeds(const std::filesystem::path& root, std::string_view target);
  ~TargetSeeds();
  TargetSeeds(const TargetSeeds&) = delete;
  TargetSeeds& operator=(const TargetSeeds&) = delete;

  // Writes the seed unless an equal one was written already.
  void Add(const Bytes& seed);

 private:
  std::filesystem::path folder_;
  std::set<Bytes> written_;
};

}  // namespace seeds
