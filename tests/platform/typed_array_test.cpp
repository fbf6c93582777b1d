#include <lumora/platform/typed_array.h>

#include <gtest/gtest.h>

#include "fixtures/archive_bytes.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::Concat;
using testing::U32;

TEST(TypedArray, StoredFormGoldenBytes) {
  DWordArray words;
  words.set_grow_by(20);
  words.Add(7);
  words.Add(0x01020304);
  EXPECT_EQ(testing::StoreObject(words),
            Concat({U32(4), U32(2), U32(20), U32(7), {0x04, 0x03, 0x02, 0x01}}));

  ByteArray bytes;
  bytes.Add(0xAB);
  EXPECT_EQ(testing::StoreObject(bytes), Concat({U32(1), U32(1), U32(0), {0xAB}}));

  RecordArray16 records;
  Record16 r;
  r.bytes[0] = 3;
  r.bytes[15] = 9;
  records.Add(r);
  Bytes stored = testing::StoreObject(records);
  ASSERT_EQ(stored.size(), 12u + 16u);
  EXPECT_EQ(Bytes(stored.begin(), stored.begin() + 4), U32(16));
  RecordArray16 back;
  ASSERT_TRUE(testing::LoadObject(stored, back));
  ASSERT_EQ(back.size(), 1u);
  EXPECT_EQ(back[0], r);
}

TEST(TypedArray, LoadedGrowByReplacesUnlessAllOnes) {
  DWordArray words;
  words.set_grow_by(20);
  ASSERT_TRUE(testing::LoadObject(Concat({U32(4), U32(1), U32(0xFFFFFFFF), U32(5)}), words));
  EXPECT_EQ(words.grow_by(), 20u);
  ASSERT_TRUE(testing::LoadObject(Concat({U32(4), U32(1), U32(3), U32(5)}), words));
  EXPECT_EQ(words.grow_by(), 3u);
  EXPECT_EQ(words[0], 5u);
}

TEST(TypedArray, ElementSizeFieldIsIgnoredOnLoad) {
  DWordArray words;
  ASSERT_TRUE(testing::LoadObject(Concat({U32(99), U32(1), U32(0), U32(42)}), words));
  EXPECT_EQ(words[0], 42u);
}

TEST(TypedArray, CountZeroFreesStorage) {
  DWordArray words;
  for (uint32_t i = 0; i < 10; ++i) words.Add(i);
  ASSERT_TRUE(testing::LoadObject(Concat({U32(4), U32(0), U32(0)}), words));
  EXPECT_EQ(words.size(), 0u);
  EXPECT_EQ(words.capacity(), 0u);
  EXPECT_EQ(words.data(), nullptr);
}

TEST(TypedArray, GrowthRule) {
  struct Case {
    uint32_t grow_by;
    uint32_t start_size;  // first allocation is exact
    uint32_t new_size;
    uint32_t capacity;
  };
  const Case cases[] = {
      {0, 1, 2, 5},              // an eighth of 1 is below 4: grow by 4
      {0, 80, 81, 90},           // an eighth of 80
      {0, 16000, 16001, 17024},  // capped at 1024
      {20, 1, 2, 21},
      {2, 4, 100, 100},  // a jump beyond capacity + grow-by takes the new size
  };
  for (const auto& c : cases) {
    DWordArray a;
    a.set_grow_by(c.grow_by);
    a.SetSize(c.start_size);
    ASSERT_EQ(a.capacity(), c.start_size);
    a.SetSize(c.new_size);
    EXPECT_EQ(a.capacity(), c.capacity) << c.grow_by << " " << c.start_size;
    EXPECT_EQ(a.size(), c.new_size);
  }
}

TEST(TypedArray, GrowingKeepsElementsAndZeroesNewRoom) {
  DWordArray a;
  a.Add(1);
  a.Add(2);
  a.SetSize(1);
  a.SetSize(3);  // within capacity: the old second element must not reappear
  EXPECT_EQ(a[0], 1u);
  EXPECT_EQ(a[1], 0u);
  EXPECT_EQ(a[2], 0u);
}

TEST(TypedArray, AbsurdCountIsRefusedBeforeAllocating) {
  DWordArray a;
  EXPECT_FALSE(testing::LoadObject(Concat({U32(4), U32(0x40000000), U32(0), U32(1)}), a));
  ByteArray b;
  EXPECT_FALSE(testing::LoadObject(Concat({U32(1), U32(3), U32(0), {1, 2}}), b));
}

}  // namespace
}  // namespace lumora
