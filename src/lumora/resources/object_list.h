// A list of owned objects stored as a u32 count followed by every element's own stored form.
// Loading destroys the old elements first, then creates and reads `count` new ones. The list of
// marked texts, the most common of them, is defined here too.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/resources/marked_text.h>

#include <cstdint>
#include <memory>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

template <typename T>
class ObjectList {
 public:
  using Items = std::vector<std::unique_ptr<T>>;

  uint32_t size() const { return static_cast<uint32_t>(items_.size()); }
  bool empty() const { return items_.empty(); }
  T& operator[](uint32_t i) const { return *items_[i]; }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }
  T& Add(std::unique_ptr<T> item) {
    items_.push_back(std::move(item));
    return *items_.back();
  }
  T& AddNew() { return Add(std::make_unique<T>()); }
  void Clear() { items_.clear(); }

  void Serialize(Archive& ar) {
    if (ar.IsStoring()) {
      ar.WriteU32(size());
      for (auto& item : items_) item->Serialize(ar);
      return;
    }
    items_.clear();
    const uint32_t count = ar.ReadU32();
    ar.Require(count);  // every element takes at least one byte
    for (uint32_t i = 0; i < count; ++i) AddNew().Serialize(ar);
  }

 private:
  Items items_;
};

}  // namespace lumora

#pragma GCC visibility pop

// The text list of many exercise types: marked texts in the object-list form (u32 count, then
// each text's own stored form).

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

using TextList = ObjectList<MarkedText>;

}  // namespace lumora

#pragma GCC visibility pop
