#include <lumora/resources/index_forms.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/resources/type_catalog.h>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "fixtures/archive_bytes.h"
#include "fixtures/temp_dir.h"
#include "resources/index_bytes.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::Concat;
using testing::Groups;
using testing::U32;
using testing::UsageTable;

TEST(ResourceGroups, EmptyIndexIsFiveBytes) {
  ResourceGroups groups;
  EXPECT_EQ(testing::StoreObject(groups), Groups(0, {}));
  ASSERT_TRUE(testing::LoadObject(Groups(1, {}), groups));
  EXPECT_EQ(groups.size(), 0u);
  EXPECT_EQ(groups.Find(0), nullptr);
}

TEST(ResourceGroups, LookupsAndResourceNumbers) {
  ResourceGroups groups;
  ASSERT_TRUE(testing::LoadObject(Groups(1, {{2, {7, 8}}, {5, {9}}, {9, {10, 11}}}), groups));
  EXPECT_TRUE(groups.sorted());
  ASSERT_NE(groups.Find(9), nullptr);
  EXPECT_EQ(groups.Find(9)->size(), 2u);
  EXPECT_EQ(groups.Find(3), nullptr);

  DWordArray numbers;
  numbers.Add(99);
  groups.GetResourceNumbers(0, numbers);
  EXPECT_EQ(std::vector<uint32_t>(numbers.begin(), numbers.end()),
            (std::vector<uint32_t>{7, 8, 9, 10, 11}));
  groups.GetResourceNumbers(5, numbers);
  EXPECT_EQ(std::vector<uint32_t>(numbers.begin(), numbers.end()), (std::vector<uint32_t>{9}));
  groups.GetResourceNumbers(4, numbers);
  EXPECT_TRUE(numbers.empty());
}

TEST(ResourceGroups, StoredFlagDecidesBetweenScanAndBisection) {
  ResourceGroups groups;
  ASSERT_TRUE(testing::LoadObject(Groups(0, {{9, {1}}, {2, {3, 4}}, {5, {6}}}), groups));
  EXPECT_FALSE(groups.sorted());
  for (uint8_t key : {9, 2, 5}) EXPECT_NE(groups.Find(key), nullptr) << int{key};
  DWordArray numbers;
  groups.GetResourceNumbers(0, numbers);  // in key-array order, not key order
  EXPECT_EQ(std::vector<uint32_t>(numbers.begin(), numbers.end()),
            (std::vector<uint32_t>{1, 3, 4, 6}));

  // Any nonzero flag byte is trusted, so disordered keys under it are missed by the bisection.
  ASSERT_TRUE(testing::LoadObject(Groups(2, {{9, {1}}, {2, {3, 4}}, {5, {6}}}), groups));
  EXPECT_TRUE(groups.sorted());
  EXPECT_EQ(groups.Find(9), nullptr);
  EXPECT_NE(groups.Find(5), nullptr);
}

TEST(ResourceGroups, InsertionClearsTheSortedFlagAndStoresIt) {
  ResourceGroups groups;
  ASSERT_TRUE(testing::LoadObject(Groups(1, {{5, {1}}}), groups));
  groups.FindOrInsert(3).Add(4);
  groups.FindOrInsert(5).Add(2);
  EXPECT_FALSE(groups.sorted());
  EXPECT_EQ(testing::StoreObject(groups), Groups(0, {{5, {1, 2}}, {3, {4}}}));
  EXPECT_EQ(groups.Find(3)->size(), 1u);  // found by scanning now
}

TEST(ResourceGroups, MalformedFormsFail) {
  ResourceGroups groups;
  Bytes good = Groups(1, {{2, {7, 8}}, {5, {9}}});
  for (size_t cut = 0; cut < good.size(); ++cut) {
    EXPECT_FALSE(testing::LoadObject(Bytes(good.begin(), good.begin() + cut), groups)) << cut;
  }
  Bytes wrong_keys = Concat({U32(3), {1}, U32(1), U32(1), U32(0), {2}});
  EXPECT_FALSE(testing::LoadObject(wrong_keys, groups));
  EXPECT_FALSE(testing::LoadObject(Concat({U32(0x7FFFFFFF), {1}}), groups));
}

// Every type with a usage table, at the boundaries of its value width. A flagged type answers
// the most significant byte of the value (the whole value when it is one byte) and false for a
// number missing from the table; the other usage types answer true for every number.
TEST(UsageIndex, FlagIsTheTopByteOfEachTypesWidth) {
  const std::vector<std::pair<uint32_t, bool>> boundaries[] = {
      {},
      {{0x01, true}, {0x80, true}, {0x00, false}},                    // 8-bit
      {{0x0100, true}, {0xFF00, true}, {0x00FF, false}, {0, false}},  // 16-bit
      {},
      {{0x01000000, true}, {0xFF000000, true}, {0x00FFFFFF, false}, {0, false}},  // 32-bit
  };
  const struct {
    uint32_t type;
    uint32_t width;
    bool flagged;
  } types[] = {{5, 2, true},  {8, 1, true},  {12, 1, true}, {13, 1, true},
               {15, 1, true}, {28, 1, true}, {40, 4, true}, {2, 2, false},
               {3, 1, false}, {7, 2, false}, {9, 1, false}};
  for (const auto& t : types) {
    for (const auto& [value, flag] : boundaries[t.width]) {
      SCOPED_TRACE(::testing::Message() << "type " << t.type << " value " << value);
      auto index = NewTypeIndex(t.type);
      ASSERT_NE(index, nullptr);
      // Resource 7, listed first, is flagged whatever the width; 500 carries the boundary.
      ASSERT_TRUE(testing::LoadObject(
          Concat({Groups(1, {{1, {7, 500}}}), UsageTable({7, 500}, t.width, {0xFFFFFFFF, value})}),
          *index));
      EXPECT_EQ(index->GetResourceFlag(500), flag || !t.flagged);
      EXPECT_TRUE(index->GetResourceFlag(7));
      EXPECT_EQ(index->GetResourceFlag(501), !t.flagged);
      EXPECT_EQ(index->GetResourceFlag(0), !t.flagged);
    }
  }
}

TEST(TypeCatalog, TypesWithoutATableFlagEveryNumber) {
  for (uint32_t type : {1u, 4u, 16u, 17u, 18u}) {
    auto index = NewTypeIndex(type);
    ASSERT_NE(index, nullptr);
    EXPECT_TRUE(index->GetResourceFlag(0));
    EXPECT_TRUE(index->GetResourceFlag(123456));
  }
  EXPECT_EQ(NewTypeIndex(6), nullptr);
  EXPECT_EQ(NewTypeIndex(11), nullptr);
  EXPECT_FALSE(IsExerciseType(6));
  EXPECT_TRUE(IsExerciseType(2000));
}

Type2000Entry Entry(uint8_t attribute, const char16_t* title) {
  Type2000Entry entry;
  entry.attribute = attribute;
  entry.titles.Add(17, CodePageText(1252, WideText(title)));
  entry.media = MediaRef(kMediaPicture, 2000, 5);
  return entry;
}

TEST(Type2000Index, GroupKeysAreDistinctAndAscendingAndEntriesCopy) {
  Type2000Index index;
  const uint8_t attributes[] = {3, 1, 3, 2};
  for (uint32_t i = 0; i < 4; ++i) {
    index.table.Add(10 + i, std::make_unique<Type2000Entry>(Entry(attributes[i], u"T")));
  }
  ByteArray keys;
  keys.Add(42);
  index.CollectGroupKeys(keys);
  EXPECT_EQ(std::vector<uint8_t>(keys.begin(), keys.end()), (std::vector<uint8_t>{1, 2, 3}));

  KeyedTable<Type2000Entry> copy;
  index.CopyEntries(3, copy);
  ASSERT_EQ(copy.size(), 2u);
  EXPECT_EQ(copy.KeyAt(0), 10u);
  EXPECT_EQ(copy.KeyAt(1), 12u);
  copy.Clear();
  index.CopyEntries(0, copy);
  EXPECT_EQ(copy.size(), 4u);
}

TEST(Type2000Index, EntryStoredForm) {
  Type2000Entry entry = Entry(7, u"Hi");
  EXPECT_EQ(testing::StoreObject(entry), Concat({{7},
                                                 U32(1),
                                                 {0},  // one title, unsorted
                                                 U32(1),
                                                 U32(1),
                                                 U32(0),
                                                 {17},  // its language key
                                                 {0xE4, 0x04},
                                                 U32(2),
                                                 {'H', 0, 'i', 0},  // code page 1252, "Hi"
                                                 {2, 0xD0, 0x07},
                                                 U32(5)}));  // picture in folder 2000
}

TEST(ResourceIndex, LoadsReadableFilesOnlyInLoadOrder) {
  testing::TempDir dir;
  GroupsIndex groups;
  ASSERT_TRUE(LoadArchiveFile(IndexFilePath(dir.path(), 1), true, groups));
  Type2000Index descriptions;
  ASSERT_TRUE(LoadArchiveFile(IndexFilePath(dir.path(), 2000), true, descriptions));
  dir.Write("r0000004.ari", "\x01");  // truncated
  EXPECT_EQ(IndexFilePath(dir.path(), 40), dir.path() + "r0000040.ari");

  ResourceIndex index(dir.path());
  EXPECT_EQ(std::vector<uint32_t>(index.types().begin(), index.types().end()),
            (std::vector<uint32_t>{1, 2000}));
  EXPECT_NE(dynamic_cast<Type2000Index*>(index.FindType(2000)), nullptr);
  EXPECT_EQ(index.FindType(4), nullptr);
  EXPECT_EQ(ResourceIndex(dir.path() + "missing/").types().size(), 0u);
}

}  // namespace
}  // namespace lumora
