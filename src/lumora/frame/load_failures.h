// Why the open could not load a discipline's glossary or grammar, or the classification: the
// library goes on with whatever loaded (tables after the one that failed stay empty), and a
// program that shows the content tells its user why it looks empty.
#pragma once

#include <lumora/platform/load_result.h>

#include <cstdint>
#include <optional>

namespace lumora {

// The first table of open discipline `disciplineId`'s glossary that did not load, with the
// byte and the reason; none when it loaded whole or no such discipline is open.
std::optional<LoadFailure> GlossaryLoadFailure(uint32_t disciplineId);
// The same for its grammar.
std::optional<LoadFailure> GrammarLoadFailure(uint32_t disciplineId);
// The first classification table that the last open did not load; none when all five loaded or
// nothing is open.
std::optional<LoadFailure> ClassificationLoadFailure();

}  // namespace lumora
