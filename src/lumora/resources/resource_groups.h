// The main table of most index files: resource numbers grouped under one-byte keys.
//
// Stored form: u32 group count g, u8 sorted flag (nonzero: keys ascending), and when g > 0 the
// keys as a ByteArray followed by g DWordArrays of resource numbers, in key-array order.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/typed_array.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace lumora {

class ResourceGroups : public Object {
 public:
  const char* ClassName() const override { return "ResourceGroups"; }
  void Serialize(Archive& ar) override;

  uint32_t size() const { return static_cast<uint32_t>(groups_.size()); }
  bool sorted() const { return sorted_; }
  const ByteArray& keys() const { return keys_; }
  const DWordArray& GroupAt(uint32_t i) const { return *groups_[i]; }

  // Bisects when the keys are marked sorted (lo tried before hi), scans otherwise.
  std::optional<uint32_t> IndexOf(uint8_t key) const;
  DWordArray* Find(uint8_t key) const;
  // The group of `key`, appended empty (clearing the sorted flag) when absent.
  DWordArray& FindOrInsert(uint8_t key);

  // Empties `out`, then appends the numbers of group `key`, or of every group for key 0.
  void GetResourceNumbers(uint8_t key, DWordArray& out) const;

  void Clear();

 private:
  ByteArray keys_;
  std::vector<std::unique_ptr<DWordArray>> groups_;
  bool sorted_ = false;
};

}  // namespace lumora
