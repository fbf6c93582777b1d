// Upper- and lower-case forms without accents for the Latin-1 range, used to compare words the
// way a learner types them: "Élève", "eleve" and "ELEVE" all reduce to the same plain letters.
// Only the accented vowels, Ç, Ñ and Ý/ý/ÿ lose their accent; Æ, Ð and Þ keep their letter and
// only change case; everything else (ß, ×, ÷, the 0x80..0x9F range, other letters of the
// Windows Western code page such as Š or Ÿ) is left as it is, and so is every unit of 256 and
// above.
#pragma once

namespace lumora {

class AccentTable {
 public:
  static char16_t UpperPlain(char16_t unit);
  static char16_t LowerPlain(char16_t unit);
};

}  // namespace lumora
