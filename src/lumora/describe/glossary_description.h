// Descriptions of a discipline's glossary: what `lumora glossary ... --json` prints.
#pragma once

#include <lumora/describe/description.h>
#include <lumora/lexicon/glossary.h>

#include <cstdint>

namespace lumora {

// One word with everything the glossary holds about it: its record, written form, comments,
// translations, sound and recognition records (null when it has none), links and the path of
// its sound in quality folder `quality`. Null when the glossary has no word `fnId`.
Description DescribeGlossaryWord(const CGloV6& glossary, uint32_t fnId, uint8_t quality);

// The letters with words, each with its words in the buckets' order:
// [{"letterId", "letter", "words": [{"fnId", "writing"}]}].
Description DescribeWordBuckets(const CGloV6& glossary, const WordBuckets& buckets);

// Every letter section: [{"letterId", "letter"}].
Description DescribeLetters(const CGloV6& glossary);

}  // namespace lumora
