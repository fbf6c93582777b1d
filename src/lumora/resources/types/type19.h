// The resource class of type 19: positions on the resource's own picture (Q3/p%07d.swf in
// its type folder), the strings that name them, and link records to the resources it uses.
// The two leading values are the authoring tool's; the library keeps them unchanged.
//
// Stored form after the head and the type tag: u32 value, u32 value, u8 group key, positions
// (DWordArray of position ids), names (string list).
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/typed_array.h>
#include <lumora/resources/exercise_resource.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type19Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 19;

  const char* ClassName() const override { return "Type19Resource"; }
  void Serialize(Archive& ar) override;

  uint32_t GetType() const override { return kType; }
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  uint32_t firstValue = 0;
  uint32_t secondValue = 0;
  uint8_t groupKey = 0;
  // Position id n names the n-th string of `names`, counted from 1.
  DWordArray positions;
  StringArray names;
};

}  // namespace lumora

#pragma GCC visibility pop
