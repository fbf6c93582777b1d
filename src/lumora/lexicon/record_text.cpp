#include <lumora/lexicon/set_fields.h>

#include <cstring>

namespace lumora {
namespace {

// A block for `length` units with the length in front; none for an empty text.
char16_t* NewTextBlock(uint32_t length, uint32_t header) {
  if (length == 0) return nullptr;
  auto* block = new char16_t[header + length];
  std::memcpy(block, &length, sizeof length);
  return block;
}

}  // namespace

char16_t* RecordText::Resize(uint32_t length) {
  char16_t* fresh = NewTextBlock(length, kHeader);
  delete[] block_;
  block_ = fresh;
  return begin();
}

void RecordText::Assign(std::u16string_view text) {
  // The old block goes only after the copy: `text` may lie inside it.
  char16_t* fresh = NewTextBlock(static_cast<uint32_t>(text.size()), kHeader);
  if (fresh != nullptr) std::memcpy(fresh + kHeader, text.data(), text.size() * sizeof(char16_t));
  delete[] block_;
  block_ = fresh;
}

}  // namespace lumora
