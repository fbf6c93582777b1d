// The prepared text search answers what the glossary's own search answers, cut to the limit.
#include <lumora/lexicon/glossary_search_index.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <set>
#include <string>

#include "lexicon/glossary_fixture.h"

namespace lumora {
namespace {

// The small glossary and the cases a prepared search can get wrong: a word the alphabetical
// order lists twice, a word whose written form is missing, one with an empty form, a letter
// beyond the letter records, a word the order leaves out, a unit above 255, shared prefixes.
void FillQuirkyGlossary(CGloV6& glossary) {
  testing::FillSmallGlossary(glossary);
  glossary.fns.Insert({12, 512, 0, 1, {55000}, {}, 1, 0, 1});
  glossary.writings.Insert({512, u"AMIE"});
  glossary.fns.Insert({13, 999, 0, 1, {}, {}, 1, 0, 1});  // no written form 999
  glossary.fns.Insert({14, 514, 0, 1, {}, {}, 1, 0, 1});
  glossary.writings.Insert({514, u""});
  glossary.fns.Insert({15, 515, 0, 1, {}, {}, 1, 0, 1});  // not in the order
  glossary.writings.Insert({515, u"amiral"});
  glossary.fns.Insert({32, 532, 0, 1, {}, {}, 1, 0, 3});
  glossary.writings.Insert({532, u"līre"});
  glossary.fns.Insert({40, 540, 0, 1, {}, {}, 1, 0, 4});  // letter 4 has no record
  glossary.writings.Insert({540, u"ami"});
  uint16_t position = 100;
  for (uint16_t fnId : {12, 13, 14, 32, 40, 12}) glossary.sorted.Insert({position++, fnId});
}

WordBuckets Cut(WordBuckets buckets, std::optional<uint32_t> limit) {
  uint64_t left = limit.value_or(UINT32_MAX);
  for (std::vector<uint16_t>& words : buckets) {
    if (words.size() > left) words.resize(left);
    left -= words.size();
  }
  return buckets;
}

TEST(GlossarySearchIndex, FindsWhatTheGlossarySearchFindsForEveryPieceOfEveryWord) {
  CGloV6 glossary;
  FillQuirkyGlossary(glossary);
  const GlossarySearchIndex index(glossary);
  std::set<std::u16string> queries = {u"z", u"amix", u"LĪ", u"ÉLÈ", u"AMI", u"Ē"};
  for (const GloWritingRecord& writing : glossary.writings) {
    const std::u16string text(writing.writing.view());
    for (size_t start = 0; start < text.size(); ++start) {
      for (size_t length = 1; start + length <= text.size(); ++length) {
        queries.insert(text.substr(start, length));
      }
    }
  }
  const std::optional<uint32_t> limits[] = {std::nullopt, 0, 1, 2, 3};
  for (const std::u16string& query : queries) {
    for (bool prefix : {true, false}) {
      for (bool needCode : {false, true}) {
        WordBuckets expected;
        glossary.findWords(expected, 0, query, 0, needCode ? 1 : 0, prefix);
        for (std::optional<uint32_t> limit : limits) {
          EXPECT_EQ(index.Find(query, needCode, prefix, limit), Cut(expected, limit))
              << std::string(query.begin(), query.end()) << " prefix " << prefix << " code "
              << needCode << " limit " << limit.value_or(99);
        }
      }
    }
  }
  EXPECT_TRUE(index.Find(u"", false, true, std::nullopt).empty());
}

TEST(GlossarySearchIndex, KnowsTablesThatChangedSizeOrPlace) {
  CGloV6 glossary;
  testing::FillSmallGlossary(glossary);
  const GlossarySearchIndex index(glossary);
  EXPECT_TRUE(index.MadeFrom(glossary));
  CGloV6 same;
  testing::FillSmallGlossary(same);
  EXPECT_FALSE(index.MadeFrom(same));
  glossary.letters.Insert({u"M", 4, 0, 0});
  EXPECT_FALSE(index.MadeFrom(glossary));
  EXPECT_FALSE(GlossarySearchIndex(CGloV6()).MadeFrom(glossary));
  EXPECT_TRUE(GlossarySearchIndex(CGloV6()).Find(u"a", false, false, std::nullopt).empty());
}

}  // namespace
}  // namespace lumora
