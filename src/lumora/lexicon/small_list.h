// Short lists of numbers inside set-file records. Most records hold one or two values in each
// list, so the values live inside the list object, in the room a heap pointer would take, until
// they outgrow it: a glossary of 65,000 headwords then costs no heap block per list.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <type_traits>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

template <typename T>
class SmallList {
  static_assert(std::is_trivially_copyable_v<T>);

 public:
  static constexpr uint32_t kInline = sizeof(T*) / sizeof(T);

  SmallList() = default;
  SmallList(std::initializer_list<T> values) { Assign(values.begin(), values.size()); }
  SmallList(const SmallList& other) { Assign(other.data(), other.size()); }
  SmallList(SmallList&& other) noexcept { Take(other); }
  SmallList& operator=(const SmallList& other) {
    if (this != &other) Assign(other.data(), other.size());
    return *this;
  }
  SmallList& operator=(SmallList&& other) noexcept {
    if (this != &other) {
      Release();
      Take(other);
    }
    return *this;
  }
  SmallList& operator=(std::initializer_list<T> values) {
    Assign(values.begin(), values.size());
    return *this;
  }
  ~SmallList() { Release(); }

  uint32_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  const T* data() const { return OnHeap() ? heap_ : inline_; }
  T* data() { return OnHeap() ? heap_ : inline_; }
  const T* begin() const { return data(); }
  const T* end() const { return data() + size_; }
  T* begin() { return data(); }
  T* end() { return data() + size_; }
  T operator[](uint32_t index) const { return data()[index]; }

  void push_back(T value) {
    if (size_ == capacity_) Reserve(capacity_ + capacity_ / 2 + 1);
    data()[size_++] = value;
  }

  // Sets the count; values added at the end are zero.
  void resize(uint32_t count) {
    if (count > capacity_) Reserve(count);
    if (count > size_) std::fill(data() + size_, data() + count, T{});
    size_ = count;
  }

  void clear() { size_ = 0; }

  friend bool operator==(const SmallList& a, const SmallList& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end());
  }

 private:
  bool OnHeap() const { return capacity_ > kInline; }

  void Reserve(uint32_t capacity) {
    if (capacity <= capacity_) return;
    T* fresh = new T[capacity];
    std::memcpy(fresh, data(), size_t{size_} * sizeof(T));
    Release();
    heap_ = fresh;
    capacity_ = capacity;
  }

  void Assign(const T* values, size_t count) {
    size_ = 0;
    resize(static_cast<uint32_t>(count));
    if (count != 0) std::memcpy(data(), values, count * sizeof(T));
  }

  void Take(SmallList& other) {
    std::memcpy(static_cast<void*>(this), &other, sizeof(SmallList));
    other.capacity_ = kInline;
    other.size_ = 0;
  }

  void Release() {
    if (OnHeap()) delete[] heap_;
    capacity_ = kInline;
  }

  union {
    T inline_[kInline] = {};
    T* heap_;
  };
  uint32_t size_ = 0;
  // Beyond kInline, the values are in a heap block of this many.
  uint32_t capacity_ = kInline;
};

using U32List = SmallList<uint32_t>;

// A list of bytes in the stored form of the library's byte arrays, whose growth step is kept
// only so that a record read and written again keeps its bytes.
struct ByteList : SmallList<uint8_t> {
  using SmallList::SmallList;
  using SmallList::operator=;

  uint32_t growBy = 0;
};

}  // namespace lumora

#pragma GCC visibility pop
