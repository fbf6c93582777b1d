#include <lumora/platform/archive.h>
#include <lumora/resources/text_context.h>

namespace lumora {

void TextContext::Serialize(Archive& ar) {
  ar.Io(code.value);
  uint32_t word = static_cast<uint32_t>(wordIndex);
  ar.Io(word);
  wordIndex = static_cast<int32_t>(word);
  IoArchiveString(ar, note);
}

std::unique_ptr<TextContext> TextContext::Clone() const {
  return std::make_unique<TextContext>(code, wordIndex, note);
}

// Which fields a code of each kind must and must not fill in. Exercise codes of the types with
// a two-level part number (12, 13, 15) need that number; the other exercise types accept any
// code, and item-based types need their item and a part.
bool TextContext::IsValid() const {
  const ContextCode c = code;
  if (c.value == 0) return wordIndex >= 0;
  switch (c.TopByte()) {
    case 0x00:
      return (c.value & ~0xFFu) == 0x4000 || (c.value & ~0xFFu) == 0x8000;
    case 0x20:
      return c.Bits(28, 18) == 0 && c.Question() != 0 && c.AnswerNumber() != 0;
    case 0x40:
      return c.Bits(28, 14) == 0 && c.Question() != 0;
    case 0x60:
      return c.Bits(28, 19) == 0 && c.Question() != 0 && c.AnswerPart() != 0;
    case 0x80:
      return c.Bits(28, 22) == 0 && c.Question() == 0;
    case 0xA2:
    case 0xA4:
    case 0xA6:
    case 0xA8:
    case 0xAA:
    case 0xAE:
    case 0xB0:
    case 0xB2:
    case 0xB4:
      return true;
    case 0xB8:
    case 0xBA:
    case 0xBE:
      return c.Bits(16, 12) != 0;
    case 0xC1:
      return c.Bits(15, 13) == 0 && c.Bits(12, 8) == 1;
    case 0xC2:
    case 0xC3:
    case 0xC4:
    case 0xC5:
      return c.ItemNumber() != 0 && c.Bits(12, 8) != 0;
    default:
      return false;
  }
}

}  // namespace lumora
