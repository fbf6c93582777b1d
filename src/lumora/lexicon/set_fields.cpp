#include <lumora/lexicon/set_fields.h>

namespace lumora {

void IoText(Archive& ar, std::u16string& text) {
  if (ar.IsStoring()) {
    ar.WriteU32(static_cast<uint32_t>(text.size()));
    for (char16_t unit : text) ar.WriteU16(unit);
    return;
  }
  const uint32_t length = ar.ReadU32();
  ar.Require(uint64_t{length} * 2);
  text.resize(length);
  // One read for the whole text, then each unit decoded where it landed.
  ar.Read(text.data(), size_t{length} * 2);
  for (char16_t& unit : text) unit = DecodeU16(reinterpret_cast<const uint8_t*>(&unit));
}

void IoU32List(Archive& ar, std::vector<uint32_t>& values) {
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

void IoFlag(Archive& ar, uint8_t& flag) {
  if (ar.IsStoring()) {
    ar.WriteU8(flag);
  } else {
    flag = ar.ReadU8() != 0 ? 1 : 0;
  }
}

}  // namespace lumora
