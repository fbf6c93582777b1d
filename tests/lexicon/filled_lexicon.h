// Grammars and classifications with one record in every table, each field a distinct value, so
// that a swapped or resized field shows in the bytes and every table kind has a file to damage.
#pragma once

#include <lumora/lexicon/classification.h>
#include <lumora/lexicon/grammar.h>

namespace lumora::testing {

inline CGramV6 GrammarWithOneOfEach() {
  CGramV6 g;
  g.points.Insert({0x0102, 0x03, 1, u"Pt"});
  g.titles.Insert({0x0203, 0x04, u"T"});
  g.pictures.Insert({0x0304, 0x05, 0x06});
  g.subpoints.Insert({0x01020304, 0x07, 0x05060708});
  g.parts.Insert({0x0A0B0C0D, 1, 2, 3, 0x11121314, 0x21222324, 4, 5});
  g.subpointTitles.Insert({0x31323334, 0x08, u"S"});
  g.keywords.Insert({0x41424344, u"kw"});
  g.links.Insert({0x51525354, 0x61626364, 0x71727374, 0x0809, 0x0A});
  g.bubbles.Insert({0x0B, 0x0C0D, 0x0E, 0x0F, u""});
  return g;
}

// Fills `c` (which cannot be copied) and points it at `folder` for a save.
inline void FillClassificationWithOneOfEach(Classification& c, const std::string& folder) {
  c.SetFolder(folder);
  c.famSem.Insert({1, u"f", 1});
  CatGramRecord category;
  category.id = 2;
  category.labels[1] = u"noun";
  c.catGram.Insert(category);
  c.grammarPointCategories.Insert({3, u"g", 3});
  c.verbTenses.Insert({4, u"v", 4});
  c.syntacticFunctions.Insert({5, u"s", 5});
}

}  // namespace lumora::testing
