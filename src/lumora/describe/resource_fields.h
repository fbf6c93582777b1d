// The type's own fields of a decoded resource, one row per exercise type, in four families. A
// row's function writes the fields into the resource's description.
#pragma once

#include <lumora/describe/resource_describer.h>
#include <lumora/resources/exercise_resource.h>

#include <cstdint>
#include <span>

namespace lumora {

using FieldsFn = void (*)(ResourceDescriber& writer, const ExerciseResource& resource,
                          Description& out);

struct TypeFields {
  uint32_t type;
  FieldsFn fields;
};

// Adapts the fields of one resource class to a row.
template <typename Resource, void (*kFields)(ResourceDescriber&, const Resource&, Description&)>
void FieldsOf(ResourceDescriber& writer, const ExerciseResource& resource, Description& out) {
  kFields(writer, static_cast<const Resource&>(resource), out);
}

// Types whose resources hold texts only.
std::span<const TypeFields> TextTypeFields();
// Types whose resources hold sounds and pictures of their own.
std::span<const TypeFields> MediaTypeFields();
// Types built around a video: questions on a linked video and video scripts.
std::span<const TypeFields> VideoTypeFields();
// The content element and the exercise made of items of content elements.
std::span<const TypeFields> ElementTypeFields();

// The row of a type, from whichever family holds it; null for a number of no family.
const TypeFields* FieldsOfType(uint32_t type);

}  // namespace lumora
