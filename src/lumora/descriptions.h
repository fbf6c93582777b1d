// The descriptions of what the library read: each is the tree of named fields that
// `lumora ... --json` prints, for a resource of any exercise type, an index, glossary words,
// grammar points and lists, the classification and the package lists. Programs that read
// through lumora.h's entry points describe the objects they were handed; ContentRoot answers
// with the same documents.
#pragma once

#include <lumora/describe/description.h>
#include <lumora/lumora.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

// A decoded resource of discipline `disciplineId`; null for a type without a description.
Description DescribeResource(const ExerciseResource& resource, uint32_t resourceId,
                             uint32_t disciplineId);
// What is printed for a resource that could not be read: ok false and the reason.
Description DescribeUnreadResource(uint32_t type, uint32_t resourceId, const std::string& reason);

// Every type's index, or only `onlyType`'s.
Description DescribeIndex(const ResourceIndex& index, const ContentRequest& request,
                          std::optional<uint32_t> onlyType);

Description DescribeGlossaryWord(const CGloV6& glossary, uint32_t fnId, uint8_t quality);
Description DescribeWordBuckets(const CGloV6& glossary, const WordBuckets& buckets);
Description DescribeLetters(const CGloV6& glossary);

Description DescribeGrammarPoint(const CGramV6& grammar, uint32_t point);
Description DescribeFoundPoints(const CGramV6& grammar, const std::vector<uint32_t>& points,
                                uint8_t language);
Description DescribeGrammarLevels(const CGramV6& grammar, uint32_t first, uint32_t second);
Description DescribeGrammarCategories(const CGramV6& grammar, uint32_t first, uint32_t second);

Description DescribeClassification(const Classification& classification);

Description DescribePackages(const PackageList& packages, const TranslationList& translations);
Description DescribePackageResources(const PackageResourceList& rows);

}  // namespace lumora

#pragma GCC visibility pop
