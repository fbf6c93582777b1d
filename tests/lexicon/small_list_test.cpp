#include <lumora/lexicon/set_fields.h>
#include <lumora/lexicon/small_list.h>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "fixtures/archive_bytes.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::Concat;
using testing::U32;

std::vector<uint32_t> Values(const U32List& list) { return {list.begin(), list.end()}; }

TEST(SmallList, KeepsItsValuesWhenTheyOutgrowTheRecordAndWhenCopiedOrMoved) {
  U32List list{7};
  for (uint32_t v = 8; v < 40; ++v) list.push_back(v);
  ASSERT_EQ(list.size(), 33u);
  EXPECT_EQ(list[0], 7u);
  EXPECT_EQ(list[32], 39u);

  U32List copy = list;
  copy = U32List{1, 2};
  EXPECT_EQ(Values(copy), (std::vector<uint32_t>{1, 2}));
  EXPECT_EQ(list.size(), 33u);

  U32List moved = std::move(list);
  EXPECT_EQ(moved.size(), 33u);
  EXPECT_TRUE(list.empty());  // NOLINT(bugprone-use-after-move): a moved list is empty
  list.push_back(5);
  EXPECT_EQ(Values(list), std::vector<uint32_t>{5});

  moved = std::move(copy);
  EXPECT_EQ(moved, (U32List{1, 2}));
  moved.resize(4);
  EXPECT_EQ(moved, (U32List{1, 2, 0, 0}));
  moved.clear();
  EXPECT_EQ(moved, U32List{});
}

TEST(SmallList, StoredListsReadBackToTheSameBytes) {
  const Bytes numbers = Concat({U32(3), U32(1), U32(0x10000), U32(0xFFFFFFFF)});
  U32List values;
  ASSERT_TRUE(testing::LoadWith(numbers, [&](Archive& ar) { IoU32List(ar, values); }));
  EXPECT_EQ(values, (U32List{1, 0x10000, 0xFFFFFFFF}));
  EXPECT_EQ(testing::StoreWith([&](Archive& ar) { IoU32List(ar, values); }), numbers);

  // The growth step is carried through a read and a write.
  const Bytes bytes = Concat({U32(1), U32(2), U32(7), {9, 8}});
  ByteList list;
  ASSERT_TRUE(testing::LoadWith(bytes, [&](Archive& ar) { IoByteList(ar, list); }));
  EXPECT_EQ(list.growBy, 7u);
  EXPECT_EQ(testing::StoreWith([&](Archive& ar) { IoByteList(ar, list); }), bytes);

  // A stored step of 0xFFFFFFFF leaves the list's own.
  ASSERT_TRUE(testing::LoadWith(Concat({U32(1), U32(0), U32(0xFFFFFFFF)}),
                                [&](Archive& ar) { IoByteList(ar, list); }));
  EXPECT_EQ(list.growBy, 7u);
  EXPECT_TRUE(list.empty());
}

TEST(SmallList, ACountBeyondTheBytesLeftIsRefused) {
  U32List values;
  EXPECT_FALSE(testing::LoadWith(Concat({U32(0x40000000), U32(1)}),
                                 [&](Archive& ar) { IoU32List(ar, values); }));
  ByteList bytes;
  EXPECT_FALSE(testing::LoadWith(Concat({U32(1), U32(0xFFFFFFF0), U32(0), {1}}),
                                 [&](Archive& ar) { IoByteList(ar, bytes); }));
}

}  // namespace
}  // namespace lumora
