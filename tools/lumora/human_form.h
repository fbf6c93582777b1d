// The form for people of a description: texts, translations and media on one line each, media
// without a kind and empty or default values left out.
#pragma once

#include <lumora/descriptions.h>

namespace lumora::cli {

Description HumanForm(const Description& value);

}  // namespace lumora::cli
