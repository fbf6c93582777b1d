// The vocabulary of the sample glossaries: one row per meaning, written as an English, a
// French and a German headword would be (with their articles, the particles in parentheses and
// the odd number), with its grammatical category and semantic family in the sample
// classification.
#pragma once

#include <cstdint>
#include <span>

namespace lumora::sample {

struct GlossaryConcept {
  const char16_t* english;
  const char16_t* french;
  const char16_t* german;
  uint32_t category;  // t_CatGram id
  uint32_t family;    // t_FamSem id, 0 for none
};

std::span<const GlossaryConcept> GlossaryConcepts();

}  // namespace lumora::sample
