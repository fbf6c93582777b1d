#include <lumora/resources/type_catalog.h>

#include <gtest/gtest.h>

#include "fixtures/archive_bytes.h"
#include "resources/resource_builders.h"
#include "resources/types/small_type_samples.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::Concat;
using testing::U16;
using testing::U32;

// A text without records: code page, length, units, then two empty record arrays.
Bytes BareText(uint16_t code_page, const std::u16string& text) {
  Bytes out = Concat({U16(code_page), U32(static_cast<uint32_t>(text.size()))});
  for (char16_t unit : text) out = Concat({out, U16(unit)});
  return Concat({out, U32(16), U32(0), U32(0), U32(24), U32(0), U32(0)});
}

TEST(Type5Resource, StoredFormIsKeyTitleThenSentences) {
  Type5Resource resource;
  resource.resourceId = 0x00100123;
  resource.groupKey = 4;
  resource.title = CodePageText(1252, WideText(u"Ab"));
  DictationSentence& sentence = resource.sentences.AddNew();
  sentence.value = 0x01020304;
  sentence.texts.Add(std::make_unique<MarkedText>(1250, WideText(u"x")));
  sentence.media = MediaRef(kMediaSound, 5, 0x00100007);

  const Bytes expected = Concat({testing::ResourceHead(0x00100123),
                                 U32(5),
                                 {4},
                                 U16(1252),
                                 U32(2),
                                 U16('A'),
                                 U16('b'),
                                 U32(1),  // sentences
                                 U32(0x01020304),
                                 U32(1),                // value, texts
                                 BareText(1250, u"x"),  //
                                 {1},
                                 U16(5),
                                 U32(0x00100007)});
  EXPECT_EQ(testing::StoreObject(resource), expected);

  Type5Resource back;
  ASSERT_TRUE(testing::LoadObject(expected, back));
  EXPECT_EQ(back.groupKey, 4);
  EXPECT_EQ(back.title.codePage, 1252);
  EXPECT_EQ(back.title.text.view(), u"Ab");
  ASSERT_EQ(back.sentences.size(), 1u);
  EXPECT_EQ(back.sentences[0].value, 0x01020304u);
  EXPECT_EQ(back.sentences[0].texts[0].codePage, 1250);
  EXPECT_EQ(back.sentences[0].media.folder, 5u);
  EXPECT_EQ(back.sentences[0].media.resource, 0x00100007u);
}

// Store, load into a fresh object of the type's class, store again: the same bytes. The
// last field of each type is checked after loading, so a field read out of order shows.
TEST(SmallTypes, RoundTripKeepsEveryField) {
  for (auto& sample : testing::SmallTypeSamples()) {
    SCOPED_TRACE(sample->GetType());
    const Bytes bytes = testing::StoreObject(*sample);
    auto back = NewResource(sample->GetType());
    ASSERT_NE(back, nullptr);
    ASSERT_TRUE(testing::LoadObject(bytes, *back));
    EXPECT_EQ(testing::StoreObject(*back), bytes);
    EXPECT_EQ(back->resourceId, testing::kSampleId);
    EXPECT_EQ(back->records.size(), 1u);
  }
  Type5Resource t5;
  ASSERT_TRUE(testing::LoadObject(testing::StoreObject(*testing::Type5Sample()), t5));
  EXPECT_EQ(t5.sentences[1].texts[1].text.view(), u"Il fait beau.");
  EXPECT_EQ(t5.sentences[1].media.resource, 0x0010000Cu);

  Type9Resource t9;
  ASSERT_TRUE(testing::LoadObject(testing::StoreObject(*testing::Type9Sample()), t9));
  EXPECT_EQ(t9.strings.items, (std::vector<std::string>{"cat", "dog"}));
  EXPECT_EQ(t9.media.kind, kMediaPicture);

  Type10Resource t10;
  ASSERT_TRUE(testing::LoadObject(testing::StoreObject(*testing::Type10Sample()), t10));
  EXPECT_EQ(t10.instruction.records24.size(), 1u);
  EXPECT_EQ(t10.words[1].media.resource, 0x00100016u);

  Type14Resource t14;
  ASSERT_TRUE(testing::LoadObject(testing::StoreObject(*testing::Type14Sample()), t14));
  EXPECT_EQ(t14.secondWord, 0x3344);
  EXPECT_EQ(t14.secondTitle.codePage, 1251);
  EXPECT_EQ(t14.thirdEntries[0].value, 3u);
  EXPECT_EQ(t14.media[1].kind, kMediaPicture);
  EXPECT_EQ(t14.closingText.text.view(), u"Fin");

  Type19Resource t19;
  ASSERT_TRUE(testing::LoadObject(testing::StoreObject(*testing::Type19Sample()), t19));
  EXPECT_EQ(t19.secondValue, 0x22222222u);
  EXPECT_EQ(t19.groupKey, 7);
  EXPECT_EQ(t19.names.items[1], "bouche");

  Type20Resource t20;
  ASSERT_TRUE(testing::LoadObject(testing::StoreObject(*testing::Type20Sample()), t20));
  EXPECT_EQ(t20.groupKey, 8);
  EXPECT_EQ(t20.pieces[1].text.text.view(), u"pièce");

  Type21Resource t21;
  ASSERT_TRUE(testing::LoadObject(testing::StoreObject(*testing::Type21Sample()), t21));
  EXPECT_EQ(t21.secondValue, 0xFE);
  EXPECT_EQ(t21.answer.text.view(), u"Le vent");
  EXPECT_EQ(t21.clues[0].media.folder, 21u);

  Type28Resource t28;
  ASSERT_TRUE(testing::LoadObject(testing::StoreObject(*testing::Type28Sample()), t28));
  EXPECT_EQ(t28.groupKey, 10);
  EXPECT_EQ(t28.sentences[1].media.resource, 0x0010002Au);
}

// A file of another type is refused: its tag, right after the head, does not match.
TEST(SmallTypes, TypeTagComesRightAfterTheHeadAndMustMatch) {
  for (auto& sample : testing::SmallTypeSamples()) {
    SCOPED_TRACE(sample->GetType());
    Bytes bytes = testing::StoreObject(*sample);
    const size_t tag_at = 8 + 12 + 16;
    ASSERT_EQ(bytes[tag_at], sample->GetType());
    auto back = NewResource(sample->GetType());
    bytes[tag_at] = sample->GetType() == 5 ? 28 : 5;
    EXPECT_FALSE(testing::LoadObject(bytes, *back));
  }
}

}  // namespace
}  // namespace lumora
