// The glossary and grammar of an open discipline as they are, for readers on several threads:
// unlike lmGetGlossary and lmGetGrammar, these leave the media pattern and folder as they stand.
#pragma once

#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/grammar.h>

#include <cstdint>

namespace lumora {

// Null when no discipline with identifier `id` is open.
const CGloV6* OpenedGlossary(uint32_t id);
const CGramV6* OpenedGrammar(uint32_t id);

}  // namespace lumora
