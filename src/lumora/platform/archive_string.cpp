#include <lumora/platform/archive.h>

namespace lumora {

std::string ReadArchiveString(Archive& ar) {
  uint32_t length = ar.ReadU8();
  if (length == 0xFF) {
    length = ar.ReadU16();
    if (length == 0xFFFF) length = ar.ReadU32();
  }
  ar.Require(length);
  std::string text(length, '\0');
  if (length > 0) ar.Read(text.data(), length);
  return text;
}

void WriteArchiveString(Archive& ar, const std::string& text) {
  const size_t length = text.size();
  if (length < 0xFF) {
    ar.WriteU8(static_cast<uint8_t>(length));
  } else if (length < 0xFFFE) {
    ar.WriteU8(0xFF);
    ar.WriteU16(static_cast<uint16_t>(length));
  } else {
    ar.WriteU8(0xFF);
    ar.WriteU16(0xFFFF);
    ar.WriteU32(static_cast<uint32_t>(length));
  }
  ar.Write(text.data(), length);
}

void IoArchiveString(Archive& ar, std::string& text) {
  if (ar.IsStoring()) {
    WriteArchiveString(ar, text);
  } else {
    text = ReadArchiveString(ar);
  }
}

void StringArray::Serialize(Archive& ar) {
  if (ar.IsStoring()) {
    const size_t count = items.size();
    if (count < 0xFFFF) {
      ar.WriteU16(static_cast<uint16_t>(count));
    } else {
      ar.WriteU16(0xFFFF);
      ar.WriteU32(static_cast<uint32_t>(count));
    }
    for (const auto& s : items) WriteArchiveString(ar, s);
    return;
  }
  uint32_t count = ar.ReadU16();
  if (count == 0xFFFF) count = ar.ReadU32();
  items.clear();
  // Each stored string takes at least its one-byte length.
  ar.Require(count);
  items.reserve(count);
  for (uint32_t i = 0; i < count; ++i) items.push_back(ReadArchiveString(ar));
}

}  // namespace lumora
