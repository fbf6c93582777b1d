// A reference from a resource to one medium: its kind, the number of the type folder that holds
// it and the ResourceId whose course picks the course folder and whose number names the file.
// The path is built on demand: looked up below the Local root, answered below the URL or UNC
// root. Stored form: u8 kind, u16 folder, u32 resource (7 bytes); the path is not stored.
#pragma once

#include <lumora/platform/archive.h>

#include <cstdint>
#include <string>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

enum MediaKind : uint32_t { kMediaSound = 1, kMediaPicture = 2, kMediaVideo = 3 };

class MediaRef : public Object {
 public:
  MediaRef() = default;
  MediaRef(uint32_t kind, uint32_t folder, uint32_t resource)
      : kind(kind), folder(folder), resource(resource) {}

  const char* ClassName() const override { return "MediaRef"; }
  void Serialize(Archive& ar) override;

  // Looks the medium up in the quality folders below local_root, in the order chosen by
  // `selector`, trying the kind's extensions in order; on success stores in `path` the file's
  // path below chosen_root with the separator of `path_kind` (URL "/", UNC "\") and gives
  // true. Any other path kind, folder 0, an unknown kind or no file: false, `path` untouched.
  bool BuildPath(const std::string& local_root, uint32_t path_kind, const std::string& chosen_root,
                 uint8_t selector);
  // The local files a lookup tries in quality folder `quality_folder` below local_root, in the
  // order it tries them; none for folder 0 or an unknown kind.
  std::vector<std::string> CandidatePaths(const std::string& local_root,
                                          uint8_t quality_folder) const;

  uint32_t kind = 0;
  uint32_t folder = 0;
  uint32_t resource = 0;
  std::string path;
};

// The printf pattern of glossary media below `root` for URL or UNC paths (empty otherwise):
// root + "C0000" sep "r0001001" sep "Q%d" sep "%03d" sep "%02d.swf".
std::string GlossaryMediaPattern(uint32_t path_kind, const std::string& root);

// Quality folder numbers in the order selector `s` tries them.
struct QualityOrder {
  uint8_t folders[3];
};
QualityOrder QualityOrderOf(uint8_t selector);

}  // namespace lumora

#pragma GCC visibility pop
