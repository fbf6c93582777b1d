// Index rebuilds of types 8, 1003, 1006, 1010 and 2000 over a content tree of two courses.
#include <lumora/resources/index_forms.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/type1003_index.h>
#include <lumora/resources/types/type1010_index.h>

#include <gtest/gtest.h>

#include <vector>

#include "fixtures/temp_dir.h"
#include "resources/resource_builders.h"
#include "resources/types/video_type_builders.h"

namespace lumora {
namespace {

using testing::LinkRecord16;

std::vector<uint32_t> Values(const DWordArray& array) {
  return std::vector<uint32_t>(array.begin(), array.end());
}

class VideoTypesIndex : public ::testing::Test {
 protected:
  std::string root() const { return dir_.path() + "content/"; }
  void Write(uint32_t id, ExerciseResource& resource) {
    testing::WriteResource(root(), id, resource);
  }

  // Rebuilds the index of `type` twice: first over the tree as written, plus a well-formed
  // resource under a name of six digits that must be ignored; then with an unreadable
  // resource file added, which makes the result false while the same index is written.
  template <typename Index>
  void Rebuild(ExerciseResource& misnamed, Index& index) {
    const uint32_t type = misnamed.GetType();
    const std::string folder = "content/C0001/" + NumberedName('r', type) + "/";
    testing::WriteResource(dir_.path() + "elsewhere/", 0x00100001, misnamed);
    dir_.Write(folder + "r012345.ars",
               dir_.Read("elsewhere/C0001/" + NumberedName('r', type) + "/r0000001.ars"));
    ASSERT_TRUE(BuildTypeIndex(type, root(), dir_.path()));
    const std::string good = dir_.Read(NumberedName('r', type) + ".ari");

    dir_.Write(folder + "r0000099.ars", "ARS");
    EXPECT_FALSE(BuildTypeIndex(type, root(), dir_.path()));
    EXPECT_EQ(dir_.Read(NumberedName('r', type) + ".ari"), good);
    ASSERT_TRUE(index.Load(IndexFilePath(dir_.path(), type)));
    EXPECT_NE(ResourceIndex(dir_.path()).FindType(type), nullptr);
  }

  testing::TempDir dir_;
};

TEST_F(VideoTypesIndex, Type8GroupsAndUsableFlag) {
  Type8Resource playable = testing::RichType8();
  Type8Resource no_video = testing::RichType8();
  no_video.records.RemoveAll();
  no_video.records.Add(LinkRecord16(3, 1003, 1, 12));  // an item's kind of link
  Type8Resource no_questions = testing::RichType8();
  no_questions.items.Clear();
  no_questions.groupKey = 2;
  Write(0x00100003, playable);
  Write(0x00200003, no_video);
  Write(0x00200005, no_questions);

  UsageIndex<uint8_t, UsageFlag::kTopByte> index;
  Rebuild(playable, index);
  EXPECT_EQ(Values(*index.groups.Find(4)), (std::vector<uint32_t>{3, 3}));
  EXPECT_EQ(Values(*index.groups.Find(2)), (std::vector<uint32_t>{5}));
  EXPECT_EQ(Values(index.usageKeys), (std::vector<uint32_t>{3, 3, 5}));
  EXPECT_EQ(std::vector<uint8_t>(index.usageValues.begin(), index.usageValues.end()),
            (std::vector<uint8_t>{1, 0, 0}));
  EXPECT_TRUE(index.GetResourceFlag(3));  // the first of the two courses answers
  EXPECT_FALSE(index.GetResourceFlag(5));
  EXPECT_FALSE(index.GetResourceFlag(4));
}

TEST_F(VideoTypesIndex, Type1003ParagraphCounts) {
  Type1003Resource three = testing::RichType1003();
  Type1003Resource none;
  Write(0x0010000C, three);
  Write(0x00200002, none);

  Type1003Index index;
  Rebuild(three, index);
  ASSERT_EQ(index.table.size(), 2u);
  EXPECT_EQ(index.table.KeyAt(0), 12u);
  EXPECT_EQ(index.table.Find(12)->paragraphCount, 3u);
  EXPECT_EQ(index.table.Find(2)->paragraphCount, 0u);
  EXPECT_TRUE(index.GetResourceFlag(77));
}

TEST_F(VideoTypesIndex, Type1006NumbersInScanOrder) {
  Type1006Resource resource = testing::RichType1006();
  Write(0x00200001, resource);
  Write(0x00100009, resource);
  Write(0x00100004, resource);

  PlainNumberIndex index;
  Rebuild(resource, index);
  EXPECT_EQ(Values(index.numbers), (std::vector<uint32_t>{4, 9, 1}));
}

TEST_F(VideoTypesIndex, Type1010SixTables) {
  Type1010Resource keyed6 = testing::RichType1010();
  Type1010Resource keyed2 = testing::RichType1010();
  keyed2.groupKey = 2;
  keyed2.texts[0].translations = LanguageTexts();
  keyed2.texts[2].translations = LanguageTexts();
  Write(0x00100001, keyed6);
  Write(0x00100002, keyed2);
  Write(0x00200001, keyed2);

  Type1010Index index;
  Rebuild(keyed6, index);
  EXPECT_EQ(std::vector<uint8_t>(index.groupKeys.begin(), index.groupKeys.end()),
            (std::vector<uint8_t>{2, 6}));
  EXPECT_EQ(std::vector<uint8_t>(index.groups.keys().begin(), index.groups.keys().end()),
            (std::vector<uint8_t>{6, 2}));
  EXPECT_EQ(Values(*index.groups.Find(2)), (std::vector<uint32_t>{2, 1}));
  EXPECT_EQ(Values(index.translated[0]), (std::vector<uint32_t>{1}));
  EXPECT_EQ(Values(index.translated[1]), (std::vector<uint32_t>{1, 2, 1}));
  EXPECT_EQ(Values(index.translated[2]), (std::vector<uint32_t>{1}));
  EXPECT_EQ(Values(index.translated[3]), (std::vector<uint32_t>{1, 2, 1}));
}

TEST_F(VideoTypesIndex, Type2000EntriesAreTheDescriptions) {
  Type2000Resource first = testing::RichType2000();
  Type2000Resource second;
  second.description.attribute = 7;
  Write(0x00100005, first);
  Write(0x00200008, second);

  Type2000Index index;
  Rebuild(first, index);
  ASSERT_EQ(index.table.size(), 2u);
  const Type2000Entry* entry = index.table.Find(5);
  ASSERT_NE(entry, nullptr);
  EXPECT_EQ(entry->attribute, 2);
  EXPECT_EQ(entry->titles.Lookup(9).text.view(), u"Deutsch");
  EXPECT_EQ(entry->media.resource, 5u);
  EXPECT_EQ(index.table.Find(8)->attribute, 7);
}

TEST(TypeCatalog, VideoAndPictureTypesHaveTheirClasses) {
  for (uint32_t type : {8u, 1003u, 1006u, 1010u, 2000u}) {
    ASSERT_NE(NewResource(type), nullptr) << type;
    EXPECT_EQ(NewResource(type)->GetType(), type);
    EXPECT_NE(NewTypeIndex(type), nullptr) << type;
  }
  EXPECT_NE(dynamic_cast<Type1003Index*>(NewTypeIndex(1003).get()), nullptr);
  EXPECT_NE(dynamic_cast<Type1010Index*>(NewTypeIndex(1010).get()), nullptr);
}

}  // namespace
}  // namespace lumora
