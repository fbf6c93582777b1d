// The words and instructions the sample's texts are made of: a course text in code page 1252
// with its English and French translations.
#pragma once

#include <cstdint>
#include <string_view>

namespace lumora::sample {

inline constexpr uint8_t kEnglish = 9;
inline constexpr uint8_t kFrench = 12;
inline constexpr uint16_t kWesternCodePage = 1252;

struct Phrase {
  std::u16string_view text;
  std::u16string_view english;
  std::u16string_view french;
};

// Words for content elements; any number picks one, cycling through the list.
const Phrase& WordAt(uint32_t n);
// Instructions for the items of an exercise, by item position, cycling as well.
const Phrase& InstructionAt(uint32_t n);
// Whole sentences, for dictations, riddles and video scripts; cycling as well.
const Phrase& SentenceAt(uint32_t n);
// The instruction of an item added to a revised exercise.
const Phrase& RevisionInstruction();

}  // namespace lumora::sample
