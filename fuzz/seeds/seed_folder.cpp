#include "seed_folder.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>

namespace seeds {

Bytes ReadBytes(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

Bytes Prefixed(uint8_t selector, const Bytes& rest) {
  Bytes seed{selector};
  seed.insert(seed.end(), rest.begin(), rest.end());
  return seed;
}

std::vector<std::filesystem::path> FilesEndingIn(const std::filesystem::path& root,
                                                 std::string_view ending) {
  std::vector<std::filesystem::path> found;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
    if (entry.is_regular_file() && entry.path().filename().string().ends_with(ending)) {
      found.push_back(entry.path());
    }
  }
  std::sort(found.begin(), found.end());
  return found;
}

uint32_t TypeInName(const std::filesystem::path& path) {
  return static_cast<uint32_t>(std::strtoul(path.stem().string().c_str() + 1, nullptr, 10));
}

TargetSeeds::TargetSeeds(const std::filesystem::path& root, std::string_view target)
    : folder_(root / target) {
  std::filesystem::create_directories(folder_);
}

TargetSeeds::~TargetSeeds() {
  std::printf("%-22s %zu seeds\n", folder_.filename().c_str(), written_.size());
}

void TargetSeeds::Add(const Bytes& seed) {
  if (!written_.insert(seed).second) return;
  // Named by content, so that seeds written from several trees into one folder never collide.
  const std::string_view text(reinterpret_cast<const char*>(seed.data()), seed.size());
  char name[32];
  std::snprintf(name, sizeof name, "seed-%016zx", std::hash<std::string_view>{}(text));
  std::ofstream out(folder_ / name, std::ios::binary);
  out.write(reinterpret_cast<const char*>(seed.data()), static_cast<std::streamsize>(seed.size()));
}

}  // namespace seeds
