// A diagnostic description of a text's context: the code in hexadecimal, what the code names
// field by field, the word number when there is one and a warning when the code is not valid.
// Lines are separated by "\n".
#pragma once

#include <lumora/resources/text_context.h>

#include <string>

namespace lumora {

// "No context" for null.
std::string DescribeContext(const TextContext* context);

}  // namespace lumora
