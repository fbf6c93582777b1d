// Owned objects kept by a u32 key, with a flag telling whether the keys are in ascending order
// (then lookups bisect) or not (then they scan). Only a table read from its stored form can be
// sorted while it holds entries: Add always clears the flag.
//
// Stored form: u32 count, u8 sorted flag, and when count > 0 the keys (DWordArray) followed by
// every element's own stored form in key-array order.
//
// A table read from its stored form builds its elements in one block rather than one heap
// object each: index files hold tens of thousands of small entries and opening a content root
// reads them all.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/typed_array.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <new>
#include <optional>
#include <vector>

// The lookup every keyed container of the library shares: bisection when the keys are marked
// ascending, a scan from the first key otherwise. The bisection narrows lo..hi until they are
// neighbours and then tries lo before hi, so with duplicate keys it finds whichever the
// narrowing lands on, while the scan finds the first.

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

template <typename Keys, typename Key>
std::optional<uint32_t> FindKeyIndex(const Keys& keys, uint32_t n, Key key, bool sorted) {
  if (!sorted) {
    for (uint32_t i = 0; i < n; ++i) {
      if (keys[i] == key) return i;
    }
    return std::nullopt;
  }
  if (n == 0) return std::nullopt;
  uint32_t lo = 0, hi = n - 1;
  while (hi - lo > 1) {
    const uint32_t mid = lo + (hi - lo) / 2;
    if (key > keys[mid]) {
      lo = mid;
    } else {
      hi = mid;
    }
  }
  if (keys[lo] == key) return lo;
  if (keys[hi] == key) return hi;
  return std::nullopt;
}

}  // namespace lumora

#pragma GCC visibility pop

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

template <typename T>
class KeyedTable : public Object {
 public:
  static constexpr uint32_t kGrowBy = 20;

  KeyedTable() { keys_.set_grow_by(kGrowBy); }
  KeyedTable(KeyedTable&&) = default;
  KeyedTable& operator=(KeyedTable&& other) {
    if (this != &other) {
      Clear();
      keys_ = std::move(other.keys_);
      pool_ = std::move(other.pool_);
      objects_ = std::move(other.objects_);
      sorted_ = other.sorted_;
    }
    return *this;
  }
  ~KeyedTable() override { Clear(); }

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
    objects_.push_back(Owned(object.release(), OwnedDeleter{false}));
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
    pool_.reset();
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
    // The keys were read, so the file holds at least count entries.
    pool_.reset(static_cast<T*>(::operator new (sizeof(T) * count, std::align_val_t{alignof(T)})));
    objects_.reserve(count);
    for (uint32_t i = 0; i < count; ++i) {
      objects_.push_back(Owned(::new (pool_.get() + i) T(), OwnedDeleter{true}));
      objects_.back()->Serialize(ar);
    }
  }

 private:
  // Elements of the load block are only destroyed; their memory goes with the block.
  struct OwnedDeleter {
    bool pooled = false;
    void operator()(T* object) const {
      if (pooled) {
        std::destroy_at(object);
      } else {
        delete object;
      }
    }
  };
  struct PoolDeleter {
    void operator()(T* block) const { ::operator delete (block, std::align_val_t{alignof(T)}); }
  };
  using Owned = std::unique_ptr<T, OwnedDeleter>;

  DWordArray keys_;
  std::unique_ptr<T, PoolDeleter> pool_;  // declared before objects_: outlives its elements
  std::vector<Owned> objects_;
  bool sorted_ = false;
};

}  // namespace lumora

#pragma GCC visibility pop
