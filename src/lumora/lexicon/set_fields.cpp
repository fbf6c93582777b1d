#include <lumora/lexicon/set_fields.h>
#include <lumora/platform/archive.h>
#include <lumora/platform/typed_array.h>

#include <algorithm>
#include <bit>

namespace lumora {
namespace {

// Texts are most of a set file's bytes: on a little-endian machine the units are already in
// their stored order and go out as they are; elsewhere they are encoded a block at a time.
void WriteUnits(Archive& ar, std::u16string_view units) {
  if constexpr (std::endian::native == std::endian::little) {
    ar.Write(units.data(), units.size() * 2);
    return;
  }
  uint8_t block[512];
  while (!units.empty()) {
    const size_t n = std::min(units.size(), sizeof block / 2);
    for (size_t i = 0; i < n; ++i) EncodeU16(block + 2 * i, units[i]);
    ar.Write(block, 2 * n);
    units.remove_prefix(n);
  }
}

}  // namespace

void IoText(Archive& ar, RecordText& text) {
  if (ar.IsStoring()) {
    ar.WriteU32(text.size());
    WriteUnits(ar, text.view());
    return;
  }
  const uint32_t length = ar.ReadU32();
  ar.Require(uint64_t{length} * 2);
  char16_t* units = text.Resize(length);
  if (length == 0) return;
  // One read for the whole text, then each unit decoded where it landed.
  ar.Read(units, size_t{length} * 2);
  for (uint32_t i = 0; i < length; ++i) {
    units[i] = DecodeU16(reinterpret_cast<const uint8_t*>(units + i));
  }
}

void IoU32List(Archive& ar, U32List& values) {
  if (ar.IsStoring()) {
    ar.WriteU32(static_cast<uint32_t>(values.size()));
    for (uint32_t v : values) ar.WriteU32(v);
    return;
  }
  const uint32_t count = ar.ReadU32();
  ar.Require(uint64_t{count} * 4);
  values.resize(count);
  ar.Read(values.data(), size_t{count} * 4);
  for (uint32_t& v : values) v = DecodeU32(reinterpret_cast<const uint8_t*>(&v));
}

void IoByteList(Archive& ar, ByteList& bytes) {
  if (ar.IsStoring()) {
    ar.WriteU32(1);
    ar.WriteU32(bytes.size());
    ar.WriteU32(bytes.growBy);
    ar.Write(bytes.data(), bytes.size());
    return;
  }
  ar.ReadU32();  // the element size, always 1
  const uint32_t count = ar.ReadU32();
  const uint32_t growBy = ar.ReadU32();
  if (growBy != ByteArray::kKeepGrowBy) bytes.growBy = growBy;
  ar.Require(count);
  bytes.resize(count);
  ar.Read(bytes.data(), count);
}

void IoFlag(Archive& ar, uint8_t& flag) {
  if (ar.IsStoring()) {
    ar.WriteU8(flag);
  } else {
    flag = ar.ReadU8() != 0 ? 1 : 0;
  }
}

}  // namespace lumora
