#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/glossary_rebuild.h>
#include <lumora/lumora.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

#include <lumora/sample/sample_content.h>
#include "frame/content_tree.h"

namespace lumora {
namespace {

using testing::LibraryTest;

std::vector<std::pair<uint16_t, uint16_t>> Order(const CGloV6& g) {
  std::vector<std::pair<uint16_t, uint16_t>> order;
  for (const GloFNSortedRecord& r : g.sorted) order.emplace_back(r.position, r.fnId);
  return order;
}

class SampleGlossary : public LibraryTest {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::WriteSampleContent(root(), {1, false}, &error)) << error;
    ASSERT_TRUE(lmOpen(root().c_str(), 0));
  }

  static const CGloV6& Of(uint32_t discipline) {
    ContentRequest request;
    request.disciplineId = discipline;
    const CGloV6* glossary = lmGetGlossary(&request);
    EXPECT_NE(glossary, nullptr);
    return *glossary;
  }
};

TEST_F(SampleGlossary, EachDisciplineSavesTheOrderTheLibraryComputes) {
  const std::pair<uint32_t, uint8_t> disciplines[] = {{1, 17}, {2, 18}, {3, 15}};
  for (const auto& [discipline, language] : disciplines) {
    const CGloV6& g = Of(discipline);
    EXPECT_EQ(g.language, language);
    EXPECT_GE(g.sorted.size(), 300u) << discipline;
    CGloV6 fresh;
    fresh.language = g.language;
    fresh.fns = g.fns;
    fresh.writings = g.writings;
    ASSERT_TRUE(rebuildSortAndLetters(fresh));
    EXPECT_EQ(Order(fresh), Order(g)) << discipline;
    ASSERT_EQ(fresh.letters.size(), g.letters.size()) << discipline;
    for (const GloFNRecord& fn : g.fns) {
      EXPECT_EQ(fresh.fns.Find(fn.fnId)->letterId, fn.letterId) << discipline << " " << fn.fnId;
    }
  }
}

TEST_F(SampleGlossary, FillsEveryTableAndIndexesOnlyTheFirstDiscipline) {
  for (uint32_t discipline : {1u, 2u, 3u}) {
    const CGloV6& g = Of(discipline);
    std::set<uint8_t> translated, commentTypes;
    for (const GloFNTranslationRecord& t : g.translations) translated.insert(t.language);
    for (const GloCommentRecord& c : g.comments) commentTypes.insert(c.commentType);
    EXPECT_EQ(translated.size(), 2u) << discipline;
    EXPECT_FALSE(translated.count(g.language)) << discipline;
    EXPECT_EQ(commentTypes, (std::set<uint8_t>{1, 2, 3, 7})) << discipline;
    EXPECT_FALSE(g.links.empty() || g.clouds.empty()) << discipline;
    // Read through its indexes, the first discipline holds offsets instead of records.
    EXPECT_EQ(g.soundIndex.empty(), discipline != 1) << discipline;
    EXPECT_EQ(g.sounds.empty(), discipline == 1) << discipline;
    EXPECT_EQ(g.recos.empty(), discipline == 1) << discipline;
  }
}

}  // namespace
}  // namespace lumora
