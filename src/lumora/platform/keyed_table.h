// Owned objects kept by a u32 key, with a flag telling whether the keys are in ascending order
// (then lookups bisect) or not (then they scan). Only a table read from its stored form can be
// sorted while it holds entries: Add always clears the flag.
//
// Stored form: u32 count, u8 sorted flag, and when count > 0 the keys (DWordArray) followed by
// every element's own stored form in key-array order.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/key_search.h>
#include <lumora/platform/object.h>
#include <lumora/platform/typed_array.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace lumora {

template <typename T>
class KeyedTable : public Object {
 public:
  static constexpr uint32_t kGrowBy = 20;

  KeyedTable() { keys_.set_grow_by(kGrowBy); }

  uint32_t size() const { return static_cast<uint32_t>(objects_.size()); }
  bool sorted() const { return sorted_; }
  uint32_t KeyAt(uint32_t i) const { return keys_[i]; }
  T* ObjectAt(uint32_t i) const { return objects_[i].get(); }
  const DWordArray& keys() const { return keys_; }

  // The index of `key`, or nothing. Sorted tables bisect and try lo before hi, so with
  // duplicate keys the entry found depends on where the bisection lands; unsorted tables
  // give the first entry added.
  std::optional<uint32_t> IndexOf(uint32_t key) const {
    return FindKeyIndex(keys_, std::min(size(), keys_.size()), key, sorted_);
  }

  T* Find(uint32_t key) const {
    auto i = IndexOf(key);
    return i ? objects_[*i].get() : nullptr;
  }

  void Add(uint32_t key, std::unique_ptr<T> object) {
    keys_.Add(key);
    objects_.push_back(std::move(object));
    sorted_ = false;
  }

  void RemoveKey(uint32_t key) {
    auto i = IndexOf(key);
    if (!i) return;
    keys_.RemoveAt(*i);
    objects_.erase(objects_.begin() + *i);
  }

  // Destroys the objects in table order (a plain vector clear leaves the order to the standard
  // library), then empties both arrays and marks the empty table sorted.
  void Clear() {
    for (auto& object : objects_) object.reset();
    objects_.clear();
    keys_.RemoveAll();
    sorted_ = true;
  }

  const char* ClassName() const override { return "KeyedTable"; }

  void Serialize(Archive& ar) override {
    if (ar.IsStoring()) {
      ar.WriteU32(size());
      ar.WriteU8(sorted_ ? 1 : 0);
      if (size() == 0) return;
      keys_.Serialize(ar);
      for (auto& object : objects_) {
        // A null entry is absent to every reader; it is stored as an empty element so that
        // the count and the keys stay in step.
        if (object) {
          object->Serialize(ar);
        } else {
          T().Serialize(ar);
        }
      }
      return;
    }
    Clear();
    uint32_t count = ar.ReadU32();
    sorted_ = ar.ReadU8() != 0;
    if (count == 0) return;
    keys_.Serialize(ar);
    if (keys_.size() != count) {
      throw ArchiveError(ArchiveError::Kind::kBadFormat, "key count differs from entry count");
    }
    objects_.reserve(count);  // the keys were read, so the file holds at least count entries
    for (uint32_t i = 0; i < count; ++i) {
      auto object = std::make_unique<T>();
      object->Serialize(ar);
      objects_.push_back(std::move(object));
    }
  }

 private:
  DWordArray keys_;
  std::vector<std::unique_ptr<T>> objects_;
  bool sorted_ = false;
};

}  // namespace lumora
