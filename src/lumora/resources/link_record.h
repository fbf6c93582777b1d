// The fields the library reads from a 16-byte link record: u16 kind at 0, the target type
// in the u32 at 8 whose high half is the paragraph number inside the target, and the u32
// target resource number at 12. Bytes 2 to 7 belong to the authoring tool.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/typed_array.h>

#include <cstdint>

namespace lumora {

inline constexpr uint16_t kVideoLinkKind = 3;

struct LinkRecord {
  explicit LinkRecord(const Record16& record) : bytes(record.bytes.data()) {}

  uint16_t kind() const { return DecodeU16(bytes); }
  // Links at resource level compare this whole value with a type, so a link that names a
  // paragraph never matches there.
  uint32_t targetTypeAndParagraph() const { return DecodeU32(bytes + 8); }
  uint16_t targetType() const { return DecodeU16(bytes + 8); }
  uint16_t paragraph() const { return DecodeU16(bytes + 10); }
  uint32_t targetNumber() const { return DecodeU32(bytes + 12); }

  const uint8_t* bytes;
};

}  // namespace lumora
