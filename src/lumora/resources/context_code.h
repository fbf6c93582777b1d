// The 32-bit code that ties a course text to the place where it occurs.
//
// The top byte says what kind of place it is: a title (0x00), a computer message (0x20), a
// question (0x40), a student answer (0x60), a pedagogical video (0x80), an exercise (0xA2 to
// 0xBE, the type in bits 28..25), or one of the item-based types (0xC1 to 0xC5). The other
// fields depend on that kind; each accessor names the kind it is meant for.
#pragma once

#include <cstdint>

namespace lumora {

class ContextCode {
 public:
  constexpr ContextCode(uint32_t value = 0) : value(value) {}

  // Bits high..low, shifted down.
  constexpr uint32_t Bits(int high, int low) const {
    const int width = high - low + 1;
    const uint32_t mask = width >= 32 ? 0xFFFFFFFFu : (1u << width) - 1;
    return (value >> low) & mask;
  }

  constexpr uint32_t TopByte() const { return value >> 24; }
  constexpr int Category() const { return static_cast<int>(Bits(31, 29)); }

  // Titles (top byte 0x00).
  constexpr bool LongTitle() const { return Bits(15, 15) != 0; }
  constexpr bool ShortTitle() const { return Bits(14, 14) != 0; }
  // Computer messages (category 1).
  constexpr int AnswerNumber() const { return static_cast<int>(Bits(17, 14)); }
  // Student answers (category 3).
  constexpr int AnswerPart() const { return static_cast<int>(Bits(18, 14)); }
  // Pedagogical videos (category 4).
  constexpr int Paragraph() const { return static_cast<int>(Bits(21, 14)); }
  // Exercises (category 5).
  constexpr int ExerciseType() const { return static_cast<int>(Bits(28, 25)); }
  constexpr int ExerciseNumber() const { return static_cast<int>(Bits(24, 17)); }
  constexpr int Column() const { return static_cast<int>(Bits(16, 14)); }
  // Item-based types (top byte 0xC1 to 0xC5).
  constexpr int ItemNumber() const { return static_cast<int>(Bits(23, 16)); }
  // Every kind: the question, sentence or item, and the word within it.
  constexpr int Question() const { return static_cast<int>(Bits(13, 8)); }
  constexpr int WordNumber() const { return static_cast<int>(Bits(7, 0)); }

  // The category diagnostics sort a code into: the stored one, or for a code without one 8
  // (short title), 9 (long title) or 10 (a question with no further place).
  constexpr int DescriptionCategory() const {
    if (Category() != 0) return Category();
    if (ShortTitle()) return 8;
    if (LongTitle()) return 9;
    return 10;
  }

  friend constexpr bool operator==(ContextCode a, ContextCode b) { return a.value == b.value; }

  uint32_t value;
};

}  // namespace lumora
