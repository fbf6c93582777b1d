#include <lumora/resources/index_forms.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/type1005_index.h>

#include <gtest/gtest.h>

#include "fixtures/temp_dir.h"
#include "resources/resource_builders.h"

namespace lumora {
namespace {

using Type40Index = UsageIndex<uint32_t, UsageFlag::kTopByte>;

// Type-1005 resources of course 1 by their flags: A (own medium), B (translations).
constexpr uint32_t kAOnly = 0x00100001;
constexpr uint32_t kBOnly = 0x00100002;
constexpr uint32_t kNeither = 0x00100003;
constexpr uint32_t kMissing = 0x00100009;

class IndexBuilder : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::WriteResource(root(), kAOnly, *testing::FullElement(u"a", 0x00100077, u"", 4));
    testing::WriteResource(root(), kBOnly, *testing::FullElement(u"b", 0, u"Salut"));
    testing::WriteResource(root(), kNeither, *testing::ReferenceElement(kAOnly));
  }

  std::string root() const { return dir_.path() + "content/"; }
  std::string index_folder() const { return dir_.path(); }

  void Write40(uint32_t id, Type40Resource& resource) {
    testing::WriteResource(root(), id, resource);
  }

  uint32_t UsageOf(const Type40Index& index, uint32_t number) {
    for (uint32_t i = 0; i < index.usageKeys.size(); ++i) {
      if (index.usageKeys[i] == number) return index.usageValues[i];
    }
    ADD_FAILURE() << "no usage value for " << number;
    return 0;
  }

  testing::TempDir dir_;
};

TEST_F(IndexBuilder, ElementEntriesCarryMediumTranslationAndAttributes) {
  ASSERT_TRUE(BuildTypeIndex(1005, root(), index_folder()));
  Type1005Index index;
  ASSERT_TRUE(index.Load(IndexFilePath(index_folder(), 1005)));
  ASSERT_EQ(index.table.size(), 3u);
  EXPECT_FALSE(index.table.sorted());
  const Type1005Entry* a = index.table.Find(1);
  ASSERT_NE(a, nullptr);
  EXPECT_TRUE(a->flagA);
  EXPECT_FALSE(a->flagB);
  ASSERT_EQ(a->values.size(), 1u);
  EXPECT_EQ(a->values[0], 4);
  EXPECT_FALSE(index.table.Find(2)->flagA);
  EXPECT_TRUE(index.table.Find(2)->flagB);
  EXPECT_FALSE(index.table.Find(3)->flagA);  // a reference has no medium of its own
}

TEST_F(IndexBuilder, UsageValueBytes) {
  Type40Resource both_parts;  // A then B lookups: the last entry found wins
  testing::AddItem(both_parts, {kAOnly}, {kBOnly});
  Type40Resource stops;  // both flags 0 ends the lookups before the missing reference
  testing::AddItem(stops, {kNeither, kMissing});
  testing::AddItem(stops, {}, {kAOnly});
  testing::AddItem(stops, {});
  Type40Resource many;  // 256 items: the count byte wraps to 0
  for (int i = 0; i < 256; ++i) testing::AddItem(many, {}, {kAOnly});
  Write40(0x00100001, both_parts);
  Write40(0x00100002, stops);
  Write40(0x00100003, many);

  ASSERT_TRUE(BuildTypeIndex(40, root(), index_folder()));
  Type40Index index;
  ASSERT_TRUE(index.Load(IndexFilePath(index_folder(), 40)));
  EXPECT_EQ(UsageOf(index, 1), 0x01010100u);
  EXPECT_EQ(UsageOf(index, 2), 0x03000000u);
  EXPECT_EQ(UsageOf(index, 3), 0x00010001u);
  EXPECT_TRUE(index.GetResourceFlag(1));
  EXPECT_FALSE(index.GetResourceFlag(3));
}

TEST_F(IndexBuilder, FailuresKeepLaterFlagsAtOneAndStillWriteTheIndex) {
  Type40Resource missing;
  testing::AddItem(missing, {kAOnly, kMissing, kNeither});
  Type40Resource later;
  testing::AddItem(later, {kNeither}, {kNeither});
  Write40(0x00100001, missing);
  Write40(0x00100002, later);
  const std::string garbage = ResourceFilePath(root(), 40, 0x00100003);
  dir_.Write(garbage.substr(dir_.path().size()), "ARS");

  EXPECT_FALSE(BuildTypeIndex(40, root(), index_folder()));
  Type40Index index;
  ASSERT_TRUE(index.Load(IndexFilePath(index_folder(), 40)));
  EXPECT_EQ(UsageOf(index, 1), 0x01000001u);  // A from kAOnly, B untouched by the miss
  EXPECT_EQ(UsageOf(index, 2), 0x01010101u);  // no lookups once the result is false
  EXPECT_EQ(index.usageKeys.size(), 2u);      // the unreadable file is left out
}

TEST_F(IndexBuilder, ElementNumberInTwoCoursesTakesTheFlagsOfTheFirstScanned) {
  // Number 1 in course 3 has only flag B; course 1 is scanned first and has only flag A.
  testing::WriteResource(root(), 0x00300001, *testing::FullElement(u"c", 0, u"Salut"));
  Type40Resource resource;
  testing::AddItem(resource, {kAOnly});
  Write40(0x00100001, resource);

  ASSERT_TRUE(BuildTypeIndex(40, root(), index_folder()));
  Type40Index index;
  ASSERT_TRUE(index.Load(IndexFilePath(index_folder(), 40)));
  EXPECT_EQ(UsageOf(index, 1) & 0xFFFF, 0x0001u);
}

TEST_F(IndexBuilder, SameNumberInTwoCoursesIsListedTwiceUnsorted) {
  Type40Resource first;
  first.groupKey = 5;
  Type40Resource second;
  second.groupKey = 2;
  Write40(0x00100007, first);
  Write40(0x00200007, second);
  Write40(0x00200008, second);
  Write40(0x00300007, first);

  ASSERT_TRUE(BuildTypeIndex(40, root(), index_folder()));
  const std::string bytes = dir_.Read("r0000040.ari");
  ASSERT_GT(bytes.size(), 5u);
  EXPECT_EQ(bytes[4], 0);  // stored sorted flag
  Type40Index index;
  ASSERT_TRUE(index.Load(IndexFilePath(index_folder(), 40)));
  EXPECT_EQ(std::vector<uint8_t>(index.groups.keys().begin(), index.groups.keys().end()),
            (std::vector<uint8_t>{5, 2}));
  DWordArray numbers;
  index.groups.GetResourceNumbers(5, numbers);
  EXPECT_EQ(std::vector<uint32_t>(numbers.begin(), numbers.end()), (std::vector<uint32_t>{7, 7}));
  index.groups.GetResourceNumbers(2, numbers);
  EXPECT_EQ(std::vector<uint32_t>(numbers.begin(), numbers.end()), (std::vector<uint32_t>{7, 8}));
  EXPECT_EQ(index.usageKeys.size(), 4u);
}

TEST_F(IndexBuilder, UnwritableIndexFolderFailsWithoutAType40File) {
  EXPECT_FALSE(BuildTypeIndex(40, root(), dir_.path() + "missing/"));
  EXPECT_FALSE(BuildTypeIndex(1005, root(), dir_.path() + "missing/"));
  EXPECT_TRUE(BuildTypeIndex(40, dir_.path() + "empty/", index_folder()));
  EXPECT_EQ(dir_.Read("r0000040.ari").size(), 5u + 2 * 12);  // no groups, empty usage table
  EXPECT_FALSE(BuildTypeIndex(6, root(), index_folder()));
}

TEST(TypeCatalog, NewResourceKnowsTypes40And1005) {
  EXPECT_EQ(NewResource(40)->GetType(), 40u);
  EXPECT_EQ(NewResource(1005)->GetType(), 1005u);
  EXPECT_EQ(NewResource(6), nullptr);
  EXPECT_EQ(NewResource(11), nullptr);
}

TEST(LoadResource, PrefersARegularArhTwinAndResolvesWhenAsked) {
  testing::TempDir dir;
  Type40Resource ars;
  ars.groupKey = 1;
  const std::string path = testing::WriteResource(dir.path(), 0x00100123, ars);
  dir.Write("C0001/r0000040/Q1/p0000291.swf", "m");
  ContentRequest request;
  request.pathKind = kPathUrl;
  request.mediaOrder = 1;

  Type40Resource target;
  ASSERT_TRUE(LoadResource(dir.path(), "u/", request, 0x00100123, target, true));
  EXPECT_EQ(target.groupKey, 1);

  Type40Resource arh;
  arh.groupKey = 2;
  testing::AddItem(arh, {}).media.Add(std::make_unique<MediaRef>(kMediaPicture, 40, 0x00100123));
  ASSERT_TRUE(LoadArchiveFile(ChangeExtension(path, "arh"), true, arh));
  ASSERT_TRUE(LoadResource(dir.path(), "u/", request, 0x00100123, target, true));
  EXPECT_EQ(target.groupKey, 2);
  EXPECT_EQ(target.items[0].media[0].path, "u/C0001/r0000040/Q1/p0000291.swf");
  ASSERT_TRUE(LoadResource(dir.path(), "u/", request, 0x00100123, target, false));
  EXPECT_EQ(target.items[0].media[0].path, "");

  EXPECT_FALSE(LoadResource(dir.path(), "u/", request, 0x00100124, target, false));
  ContentElement other_type;  // looked for below folder r0001005
  EXPECT_FALSE(LoadResource(dir.path(), "u/", request, 0x00100123, other_type, false));
}

}  // namespace
}  // namespace lumora
