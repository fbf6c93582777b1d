// Growable arrays of fixed-size elements with the framework's growth rule and the library's
// typed-array stored form: u32 element size, u32 count, u32 grow-by, then the raw elements.
#pragma once

#include <lumora/platform/archive.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <memory>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

// How one element is laid out on disk. Integers are little-endian; records are raw bytes.
template <typename T>
struct ElementCodec;

template <>
struct ElementCodec<uint8_t> {
  static constexpr uint32_t kSize = 1;
  static uint8_t Decode(const uint8_t* p) { return *p; }
  static void Encode(uint8_t* p, uint8_t v) { *p = v; }
};

template <>
struct ElementCodec<uint16_t> {
  static constexpr uint32_t kSize = 2;
  static uint16_t Decode(const uint8_t* p) { return DecodeU16(p); }
  static void Encode(uint8_t* p, uint16_t v) { EncodeU16(p, v); }
};

template <>
struct ElementCodec<uint32_t> {
  static constexpr uint32_t kSize = 4;
  static uint32_t Decode(const uint8_t* p) { return DecodeU32(p); }
  static void Encode(uint8_t* p, uint32_t v) { EncodeU32(p, v); }
};

template <size_t N>
struct RawRecord {
  std::array<uint8_t, N> bytes{};
  friend bool operator==(const RawRecord&, const RawRecord&) = default;
};

template <size_t N>
struct ElementCodec<RawRecord<N>> {
  static constexpr uint32_t kSize = N;
  static RawRecord<N> Decode(const uint8_t* p) {
    RawRecord<N> r;
    std::memcpy(r.bytes.data(), p, N);
    return r;
  }
  static void Encode(uint8_t* p, const RawRecord<N>& v) { std::memcpy(p, v.bytes.data(), N); }
};

template <typename T>
class TypedArray : public Object {
 public:
  static constexpr uint32_t kElementSize = ElementCodec<T>::kSize;
  // Stored grow-by that leaves the in-memory value alone when loaded.
  static constexpr uint32_t kKeepGrowBy = 0xFFFFFFFF;

  TypedArray() = default;
  TypedArray(const TypedArray& other) : Object(other), grow_by_(other.grow_by_) { CopyFrom(other); }
  TypedArray& operator=(const TypedArray& other) {
    if (this != &other) {
      grow_by_ = other.grow_by_;
      CopyFrom(other);
    }
    return *this;
  }

  uint32_t size() const { return size_; }
  uint32_t capacity() const { return capacity_; }
  uint32_t grow_by() const { return grow_by_; }
  bool empty() const { return size_ == 0; }
  T* data() { return data_; }
  const T* data() const { return data_; }
  T& operator[](uint32_t i) { return data_[i]; }
  const T& operator[](uint32_t i) const { return data_[i]; }
  const T* begin() const { return data_; }
  const T* end() const { return data_ + size_; }

  void set_grow_by(uint32_t grow_by) { grow_by_ = grow_by; }

  // Size 0 frees the storage. Growing past the capacity reallocates to the larger of the new
  // size and capacity + grow-by (grow-by 0: an eighth of the size, clamped to 4..1024); new
  // elements are zero.
  void SetSize(uint32_t new_size) {
    if (new_size == 0) {
      heap_.reset();
      data_ = nullptr;
      size_ = capacity_ = 0;
    } else if (!data_) {
      data_ = ZeroedStorage(new_size);
      size_ = capacity_ = new_size;
    } else if (new_size <= capacity_) {
      std::fill(data_ + std::min(size_, new_size), data_ + new_size, T{});
      size_ = new_size;
    } else {
      Reallocate(new_size);
    }
  }

  void Add(const T& value) {
    uint32_t at = size_;
    SetSize(size_ + 1);
    data_[at] = value;
  }

  void RemoveAt(uint32_t index) {
    if (index >= size_) return;
    std::copy(data_ + index + 1, data_ + size_, data_ + index);
    --size_;
  }

  void RemoveAll() { SetSize(0); }

  const char* ClassName() const override { return "TypedArray"; }

  void Serialize(Archive& ar) override {
    if (ar.IsStoring()) {
      ar.WriteU32(kElementSize);
      ar.WriteU32(size_);
      ar.WriteU32(grow_by_);
      uint8_t raw[kElementSize];
      for (uint32_t i = 0; i < size_; ++i) {
        ElementCodec<T>::Encode(raw, data_[i]);
        ar.Write(raw, kElementSize);
      }
      return;
    }
    ar.ReadU32();  // element size comes from the class
    uint32_t count = ar.ReadU32();
    uint32_t grow_by = ar.ReadU32();
    if (grow_by != kKeepGrowBy) grow_by_ = grow_by;
    ar.Require(uint64_t{count} * kElementSize);
    SetSize(count);
    uint8_t raw[kElementSize];
    for (uint32_t i = 0; i < count; ++i) {
      ar.Read(raw, kElementSize);
      data_[i] = ElementCodec<T>::Decode(raw);
    }
  }

 private:
  void Reallocate(uint32_t new_size) {
    uint32_t grow = grow_by_;
    if (grow == 0) grow = std::clamp<uint32_t>(size_ / 8, 4, 1024);
    uint64_t stepped = uint64_t{capacity_} + grow;
    uint32_t new_capacity = static_cast<uint32_t>(
        std::min<uint64_t>(std::max<uint64_t>(new_size, stepped), UINT32_MAX));
    if (new_capacity <= kInlineCount) {
      // Still fits the inline storage, which already holds the elements.
      std::fill(data_ + size_, data_ + new_capacity, T{});
    } else {
      auto fresh = std::make_unique<T[]>(new_capacity);
      std::copy(data_, data_ + size_, fresh.get());
      heap_ = std::move(fresh);
      data_ = heap_.get();
    }
    capacity_ = new_capacity;
    size_ = new_size;
  }

  void CopyFrom(const TypedArray& other) {
    SetSize(0);
    if (other.size_ == 0) return;
    SetSize(other.size_);
    std::copy(other.begin(), other.end(), data_);
  }

  // Arrays of up to eight bytes live inside the object: most arrays of small values hold a few
  // entries, and a discipline's indexes hold tens of thousands of them.
  static constexpr uint32_t kInlineCount = sizeof(T) <= 8 ? 8 / sizeof(T) : 0;

  // Room for `capacity` zeroed elements: the inline storage when it is large enough.
  T* ZeroedStorage(uint32_t capacity) {
    if (capacity <= kInlineCount) {
      heap_.reset();
      std::fill(inline_.begin(), inline_.begin() + capacity, T{});
      return inline_.data();
    }
    heap_ = std::make_unique<T[]>(capacity);
    return heap_.get();
  }

  std::unique_ptr<T[]> heap_;
  std::array<T, kInlineCount> inline_{};
  T* data_ = nullptr;
  uint32_t size_ = 0;
  uint32_t capacity_ = 0;
  uint32_t grow_by_ = 0;
};

using ByteArray = TypedArray<uint8_t>;
using WordArray = TypedArray<uint16_t>;
using DWordArray = TypedArray<uint32_t>;
using Record8 = RawRecord<8>;
using Record16 = RawRecord<16>;
using Record24 = RawRecord<24>;
using RecordArray8 = TypedArray<Record8>;
using RecordArray16 = TypedArray<Record16>;
using RecordArray24 = TypedArray<Record24>;

}  // namespace lumora

#pragma GCC visibility pop
