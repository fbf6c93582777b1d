// A small glossary for the glossary's tests: three letters, seven words with written forms
// that differ by accents and case, and a few records of every other table.
//
//   letter 1 "A": 11 "Ami" (level 3, code 50001, class 1020100), 10 "avion" (level 1)
//   letter 2 "E": 20 "élève" (level 2, code 60000), 22 "entre" (kind 2: not an entry),
//                 21 "été" (level 3, codes 49999 and 55555, class 1020101)
//   letter 3 "L": 30 "lire" (level 0)
//   no letter:    31 "là"
//
// Links from 10 name 20 and 21, from 11 name 30. Word 10 has every comment type and two
// translations, sound (present) and reco; 11 an absent sound.
#pragma once

#include <lumora/lexicon/glossary.h>

namespace lumora::testing {

// Fills `glossary` with the words above (nothing is written).
void FillSmallGlossary(CGloV6& glossary);

}  // namespace lumora::testing
