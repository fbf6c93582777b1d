// One resource of each of the types 5, 9, 10, 14, 19, 20, 21 and 28 with every stored field
// holding something, so that every count, length and value of the form is on disk.
#pragma once

#include <lumora/resources/types/type10.h>
#include <lumora/resources/types/type14.h>
#include <lumora/resources/types/type19.h>
#include <lumora/resources/types/type20.h>
#include <lumora/resources/types/type21.h>
#include <lumora/resources/types/type28.h>
#include <lumora/resources/types/type5.h>
#include <lumora/resources/types/type9.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace lumora::testing {

// The ResourceId of every sample: course 1, resource 291.
inline constexpr uint32_t kSampleId = 0x00100123;

// A text with one record of each kind, so that both record arrays are on disk.
MarkedText SmallSampleText(const std::u16string& text);
// A link record to resource `number` of `type` (kind 1, as the authoring tool writes them).
Record16 LinkTo(uint32_t type, uint32_t number);

std::unique_ptr<Type5Resource> Type5Sample();
std::unique_ptr<Type9Resource> Type9Sample();
std::unique_ptr<Type10Resource> Type10Sample();
std::unique_ptr<Type14Resource> Type14Sample();
std::unique_ptr<Type19Resource> Type19Sample();
std::unique_ptr<Type20Resource> Type20Sample();
std::unique_ptr<Type21Resource> Type21Sample();
std::unique_ptr<Type28Resource> Type28Sample();

// All eight samples, in type order.
std::vector<std::unique_ptr<ExerciseResource>> SmallTypeSamples();

}  // namespace lumora::testing
