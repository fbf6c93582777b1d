// The parts of the glossary check, each over one discipline's glossary as the library loaded
// it, and what they share.
#pragma once

#include <lumora/check/checked_root.h>
#include <lumora/check/content_check.h>
#include <lumora/lexicon/glossary.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace lumora {

// The two tables read through their index (sound and recognition data) against their set
// files, and the sound files the glossary says it has.
void CheckGlossaryIndexes(const CheckedRoot& root, const CGloV6& g, CheckReport& report);
// The stored alphabetical order and letters against a rebuild from the written forms.
void CheckGlossaryOrder(const CheckedRoot& root, const CGloV6& g, CheckReport& report);

// A file of the glossary's folder, relative to the content root.
std::string GlossaryFile(const CheckedRoot& root, const CGloV6& g, std::string_view name);
// "word 12" followed by its written form in quotes when it has one.
std::string WordText(const CGloV6& g, uint16_t fnId);

}  // namespace lumora
