// Labels of a context code, as narrow Windows-1252 texts ("n°" is the byte 0xB0).
//
// The technical label names exercises by type and number ("type2.001 - PART5"), the readable
// label by display name ("Word Order n°1 - PART5"). Places that are not exercises read the
// same in both. A code that names no known place labels "Error".
#pragma once

#include <lumora/resources/context_code.h>
#include <lumora/resources/text_context.h>

#include <string>

namespace lumora {

std::string TechnicalLabel(ContextCode code);
std::string ReadableLabel(const TextContext& context);

}  // namespace lumora
