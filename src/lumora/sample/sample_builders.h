// The sample's resources as objects, before they are stored: one type-1005 element per
// (course, unit, element slot) and one type-40 exercise per (course, unit, exercise slot).
#pragma once

#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type40.h>

#include <cstdint>

namespace lumora::sample {

// Fills a fresh element with the text, translations, medium and attributes of its slot.
void BuildElement(ContentElement& element, uint32_t course, int unit, int slot);

// Fills a fresh exercise with its group key and items.
void BuildExercise(Type40Resource& exercise, uint32_t course, int unit, int slot);

// Appends the item that tells a revised exercise from the one first delivered.
void AddRevisionItem(Type40Resource& exercise, uint32_t course, int unit, int slot);

}  // namespace lumora::sample
