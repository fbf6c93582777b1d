// Stored forms of the text-only exercise types, which keep the base class's media behaviour.
#include <lumora/resources/type_catalog.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "fixtures/archive_bytes.h"
#include "fixtures/temp_dir.h"
#include "resources/resource_builders.h"
#include "resources/types/text_type_samples.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::U32;

template <typename List>
Bytes Stored(List& list) {
  return testing::StoreWith([&](Archive& ar) { list.Serialize(ar); });
}

struct TypeCase {
  uint32_t type;
  std::unique_ptr<ExerciseResource> (*sample)();
  // The stored form of every field after the type tag, in the order the file holds them.
  std::vector<Bytes> (*fields)(ExerciseResource&);
};

template <typename Resource>
Resource& As(ExerciseResource& resource) {
  return static_cast<Resource&>(resource);
}

template <typename Resource>
std::vector<Bytes> SentencePracticeFields(ExerciseResource& resource) {
  auto& r = As<Resource>(resource);
  return {
      U32(r.value), {r.groupKey}, Stored(r.leadingRecord), Stored(r.records), Stored(r.plainText)};
}

const std::vector<TypeCase>& Cases() {
  using testing::Sample;
  static const std::vector<TypeCase> cases = {
      {1, Sample<Type1Resource>,
       [](ExerciseResource& e) -> std::vector<Bytes> {
         auto& r = As<Type1Resource>(e);
         return {U32(r.value), {r.groupKey}, Stored(r.firstTexts), Stored(r.secondTexts)};
       }},
      {2, Sample<Type2Resource>,
       [](ExerciseResource& e) -> std::vector<Bytes> {
         auto& r = As<Type2Resource>(e);
         return {{r.groupKey}, Stored(r.sentence), Stored(r.words)};
       }},
      {3, Sample<Type3Resource>,
       [](ExerciseResource& e) -> std::vector<Bytes> {
         auto& r = As<Type3Resource>(e);
         return {{r.groupKey}, Stored(r.texts)};
       }},
      {4, Sample<Type4Resource>,
       [](ExerciseResource& e) -> std::vector<Bytes> {
         auto& r = As<Type4Resource>(e);
         return {{r.groupKey}, Stored(r.plainText), Stored(r.firstText), Stored(r.secondText)};
       }},
      {7, Sample<Type7Resource>,
       [](ExerciseResource& e) -> std::vector<Bytes> {
         auto& r = As<Type7Resource>(e);
         return {{r.groupKey}, Stored(r.text), Stored(r.choices), Stored(r.words)};
       }},
      {12, Sample<Type12Resource>, SentencePracticeFields<Type12Resource>},
      {13, Sample<Type13Resource>, SentencePracticeFields<Type13Resource>},
      {15, Sample<Type15Resource>,
       [](ExerciseResource& e) -> std::vector<Bytes> {
         auto& r = As<Type15Resource>(e);
         return {U32(r.value), {r.groupKey}, Stored(r.plainText), Stored(r.items)};
       }},
      {16, Sample<Type16Resource>,
       [](ExerciseResource& e) -> std::vector<Bytes> {
         auto& r = As<Type16Resource>(e);
         return {U32(r.value), {r.groupKey}, Stored(r.text)};
       }},
      {17, Sample<Type17Resource>,
       [](ExerciseResource& e) -> std::vector<Bytes> {
         auto& r = As<Type17Resource>(e);
         return {{r.groupKey}, Stored(r.firstItems), Stored(r.secondItems)};
       }},
      {18, Sample<Type18Resource>,
       [](ExerciseResource& e) -> std::vector<Bytes> {
         auto& r = As<Type18Resource>(e);
         return {{r.groupKey}, U32(r.value)};
       }},
  };
  return cases;
}

TEST(TextTypes, Type1GoldenBytes) {
  Type1Resource resource;
  resource.resourceId = 0x00100123;
  resource.value = 0x11223344;
  resource.groupKey = 7;
  resource.firstTexts.Add(std::make_unique<MarkedText>(1252, WideText(u"Hi")));
  const Bytes expected = {
      0x41, 0x52, 0x53, 0x00,                                                  // magic "ARS"
      0x23, 0x01, 0x10, 0x00,                                                  // resource id
      0x10, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,  // no links
      0x01, 0x00, 0x00, 0x00,                                                  // type tag
      0x44, 0x33, 0x22, 0x11,                                                  // value
      0x07,                                                                    // group key
      0x01, 0x00, 0x00, 0x00,                                      // first list: one text
      0xE4, 0x04, 0x02, 0x00, 0x00, 0x00, 'H',  0x00, 'i',  0x00,  // code page 1252, "Hi"
      0x10, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,  // 16-byte marks
      0x18, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,  // 24-byte marks
      0x00, 0x00, 0x00, 0x00,                                                  // second list: empty
  };
  EXPECT_EQ(testing::StoreObject(resource), expected);

  Type1Resource back;
  ASSERT_TRUE(testing::LoadObject(expected, back));
  EXPECT_EQ(back.value, 0x11223344u);
  EXPECT_EQ(back.groupKey, 7);
  ASSERT_EQ(back.firstTexts.size(), 1u);
  EXPECT_EQ(back.firstTexts[0].text.view(), u"Hi");
  EXPECT_TRUE(back.secondTexts.empty());
}

TEST(TextTypes, Type18StoresTheKeyBeforeTheValue) {
  Type18Resource resource;
  resource.resourceId = 0x00200005;
  resource.groupKey = 0x05;
  resource.value = 0x0A0B0C0D;
  const Bytes expected = {
      0x41, 0x52, 0x53, 0x00,                                                  // magic "ARS"
      0x05, 0x00, 0x20, 0x00,                                                  // resource id
      0x10, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,  // no links
      0x12, 0x00, 0x00, 0x00,                                                  // type tag 18
      0x05,                                                                    // group key
      0x0D, 0x0C, 0x0B, 0x0A,  // value, and nothing after it
  };
  EXPECT_EQ(testing::StoreObject(resource), expected);

  Type18Resource back;
  ASSERT_TRUE(testing::LoadObject(expected, back));
  EXPECT_EQ(back.groupKey, 0x05);
  EXPECT_EQ(back.value, 0x0A0B0C0Du);
}

// Each field's own stored form, in the order of the type's file, after the head and the tag;
// and every field reads back as it was stored. The samples store no two fields alike, so a
// swapped pair of fields shows.
TEST(TextTypes, StoredFormsFollowTheFieldOrderAndRoundTrip) {
  for (const TypeCase& c : Cases()) {
    SCOPED_TRACE(c.type);
    auto original = c.sample();
    original->resourceId = 0x00300042;
    original->records.Add(Record16{{3, 0, 9}});
    const std::vector<Bytes> fields = c.fields(*original);
    for (size_t i = 0; i < fields.size(); ++i) {
      for (size_t j = i + 1; j < fields.size(); ++j) ASSERT_NE(fields[i], fields[j]) << i << j;
    }
    Bytes expected = testing::Concat(
        {U32(kResourceMagic), U32(0x00300042), Stored(original->records), U32(c.type)});
    for (const Bytes& field : fields) expected = testing::Concat({expected, field});
    const Bytes bytes = testing::StoreObject(*original);
    EXPECT_EQ(bytes, expected);

    auto back = NewResource(c.type);
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(back->GetType(), c.type);
    ASSERT_TRUE(testing::LoadObject(bytes, *back));
    EXPECT_EQ(back->resourceId, 0x00300042u);
    EXPECT_EQ(back->records.size(), 1u);
    EXPECT_EQ(c.fields(*back), fields);
    EXPECT_EQ(testing::StoreObject(*back), bytes);
  }
}

TEST(TextTypes, Type7KeepsItsExtraStringOutOfTheFile) {
  Type7Resource resource;
  testing::FillSample(resource);
  const Bytes with_text = testing::StoreObject(resource);
  resource.transientText.clear();
  EXPECT_EQ(testing::StoreObject(resource), with_text);

  Type7Resource back;
  back.transientText = "before";
  ASSERT_TRUE(testing::LoadObject(with_text, back));
  EXPECT_EQ(back.transientText, "before");
}

// These types have no media: whatever a resource holds, verification reports nothing and an
// export copies nothing.
TEST(TextTypes, MediaOperationsKeepTheBaseBehaviour) {
  testing::TempDir dir;
  ByteArray quality_folders;
  quality_folders.Add(1);
  quality_folders.Add(3);
  for (const TypeCase& c : Cases()) {
    SCOPED_TRACE(c.type);
    auto resource = c.sample();
    std::string report = "earlier report";
    EXPECT_TRUE(resource->VerifyMedia(dir.path(), quality_folders, report, 0x00100001));
    EXPECT_EQ(report, "");
    EXPECT_TRUE(resource->CopyMedia(dir.path() + "out/", 0x00100001, quality_folders, dir.path()));
  }
  EXPECT_FALSE(std::filesystem::exists(dir.path() + "out"));
}

}  // namespace
}  // namespace lumora
