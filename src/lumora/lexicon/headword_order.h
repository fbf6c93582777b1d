// The headword rules of a glossary's alphabetical order: the reduced form a written form is
// compared by, and the letter section a word falls in. Both depend only on the text and the
// glossary's language number.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lumora {

// The written form without punctuation and digits, without its parenthesised parts and
// without a leading article or pronoun of the language: "(to) go" and "the house" compare as
// "go" and "house". A text whose parentheses do not close is reported through Notify and keeps
// what is left of it.
std::u16string sortKey(std::u16string_view writing, uint8_t language);

// The letter section of a written form: the first code unit of its sort key, upper case and
// unaccented, cut to one byte ("été" falls under 'E'). 0 for an empty key.
uint8_t firstLetter(std::u16string_view writing, uint8_t language);

// The same for a sort key already at hand.
uint8_t LetterOfKey(std::u16string_view key);

}  // namespace lumora
