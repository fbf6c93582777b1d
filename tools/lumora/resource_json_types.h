// The per-family halves of ResourceJsonWriter::Fields. Each answers false for a type outside its
// family, so the writer asks them in turn.
#pragma once

#include <lumora/resources/exercise_resource.h>

#include <nlohmann/json.hpp>

#include "resource_json.h"

namespace lumora::cli {

// Types whose resources hold texts only.
bool TextTypeFields(ResourceJsonWriter& writer, const ExerciseResource& resource,
                    nlohmann::ordered_json& out);
// Types whose resources hold sounds and pictures of their own.
bool MediaTypeFields(ResourceJsonWriter& writer, const ExerciseResource& resource,
                     nlohmann::ordered_json& out);
// Types built around a video: questions on a linked video and video scripts.
bool VideoTypeFields(ResourceJsonWriter& writer, const ExerciseResource& resource,
                     nlohmann::ordered_json& out);
// The content element and the exercise made of items of content elements.
bool ElementTypeFields(ResourceJsonWriter& writer, const ExerciseResource& resource,
                       nlohmann::ordered_json& out);

}  // namespace lumora::cli
