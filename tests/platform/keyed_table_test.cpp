#include <lumora/platform/keyed_table.h>

#include <gtest/gtest.h>

#include <vector>

#include "fixtures/archive_bytes.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::Concat;
using testing::U32;

// A minimal element: one stored u32.
struct Value : Object {
  uint32_t v = 0;
  void Serialize(Archive& ar) override { ar.Io(v); }
};

Bytes StoredTable(uint8_t sorted, std::initializer_list<uint32_t> keys) {
  Bytes bytes = Concat({U32(static_cast<uint32_t>(keys.size())), {sorted}});
  if (keys.size() == 0) return bytes;
  bytes = Concat({bytes, U32(4), U32(static_cast<uint32_t>(keys.size())), U32(20)});
  for (uint32_t k : keys) bytes = Concat({bytes, U32(k)});
  for (uint32_t k : keys) bytes = Concat({bytes, U32(k * 10)});
  return bytes;
}

TEST(KeyedTable, SortedTableBisectsTryingLoBeforeHi) {
  KeyedTable<Value> table;
  ASSERT_TRUE(testing::LoadObject(StoredTable(1, {3, 7, 9}), table));
  EXPECT_TRUE(table.sorted());
  EXPECT_EQ(table.IndexOf(7), 1u);
  EXPECT_EQ(table.Find(4), nullptr);
  EXPECT_EQ(table.Find(9)->v, 90u);

  ASSERT_TRUE(testing::LoadObject(StoredTable(1, {5, 6}), table));
  EXPECT_EQ(table.Find(5)->v, 50u);
  EXPECT_EQ(table.Find(6)->v, 60u);
}

TEST(KeyedTable, SortedFlagOnDisorderedKeysMissesWhatAScanWouldFind) {
  // The flag is trusted: keys stored out of order under a sorted flag are bisected anyway.
  KeyedTable<Value> table;
  ASSERT_TRUE(testing::LoadObject(StoredTable(2, {9, 1, 5, 3}), table));
  EXPECT_EQ(table.Find(3), nullptr);
  ASSERT_TRUE(testing::LoadObject(StoredTable(0, {9, 1, 5, 3}), table));
  EXPECT_EQ(table.Find(3)->v, 30u);
}

TEST(KeyedTable, UnsignedKeysAndDuplicates) {
  KeyedTable<Value> table;
  ASSERT_TRUE(testing::LoadObject(StoredTable(1, {1, 0x80000000, 0xFFFFFFFF}), table));
  EXPECT_EQ(table.IndexOf(0xFFFFFFFF), 2u);
  EXPECT_EQ(table.IndexOf(0x80000000), 1u);

  KeyedTable<Value> dup;
  auto first = std::make_unique<Value>();
  first->v = 1;
  auto second = std::make_unique<Value>();
  second->v = 2;
  dup.Add(4, std::move(first));
  dup.Add(4, std::move(second));
  EXPECT_FALSE(dup.sorted());
  EXPECT_EQ(dup.Find(4)->v, 1u);
  dup.RemoveKey(4);
  EXPECT_EQ(dup.size(), 1u);
  EXPECT_EQ(dup.Find(4)->v, 2u);
}

TEST(KeyedTable, EmptyTableAndClear) {
  KeyedTable<Value> table;
  EXPECT_EQ(table.Find(0), nullptr);
  EXPECT_FALSE(table.sorted());
  table.Add(1, std::make_unique<Value>());
  table.Clear();
  EXPECT_TRUE(table.sorted());
  EXPECT_EQ(table.size(), 0u);
  EXPECT_EQ(table.Find(1), nullptr);
  EXPECT_EQ(testing::StoreObject(table), Concat({U32(0), {1}}));
  table.RemoveKey(1);  // absent key: nothing happens
}

TEST(KeyedTable, ClearDestroysInTableOrder) {
  struct Logged : Object {
    std::vector<int>* log = nullptr;
    int id = 0;
    ~Logged() override {
      if (log) log->push_back(id);
    }
  };
  std::vector<int> log;
  KeyedTable<Logged> table;
  for (int id : {3, 1, 2}) {
    auto object = std::make_unique<Logged>();
    object->log = &log;
    object->id = id;
    table.Add(static_cast<uint32_t>(id), std::move(object));
  }
  table.Clear();
  EXPECT_EQ(log, (std::vector<int>{3, 1, 2}));
}

TEST(KeyedTable, LoadedEntriesMixWithAddedOnesAndMoveWithTheTable) {
  KeyedTable<Value> loaded;
  ASSERT_TRUE(testing::LoadObject(StoredTable(0, {4, 8, 6}), loaded));
  loaded.RemoveKey(8);
  auto added = std::make_unique<Value>();
  added->v = 5;
  loaded.Add(2, std::move(added));

  KeyedTable<Value> moved;
  ASSERT_TRUE(testing::LoadObject(StoredTable(0, {1}), moved));
  moved = std::move(loaded);
  ASSERT_EQ(moved.size(), 3u);
  EXPECT_EQ(moved.Find(4)->v, 40u);
  EXPECT_EQ(moved.Find(6)->v, 60u);
  EXPECT_EQ(moved.Find(2)->v, 5u);
  EXPECT_EQ(moved.Find(8), nullptr);
  EXPECT_EQ(testing::StoreObject(moved), Concat({U32(3),
                                                 {0},
                                                 U32(4),
                                                 U32(3),
                                                 U32(20),
                                                 U32(4),
                                                 U32(6),
                                                 U32(2),
                                                 U32(40),
                                                 U32(60),
                                                 U32(5)}));
}

TEST(KeyedTable, StoreWritesCountFlagKeysThenElements) {
  KeyedTable<Value> table;
  for (uint32_t k : {3u, 1u}) {
    auto v = std::make_unique<Value>();
    v->v = k * 10;
    table.Add(k, std::move(v));
  }
  EXPECT_EQ(testing::StoreObject(table), StoredTable(0, {3, 1}));
  KeyedTable<Value> back;
  ASSERT_TRUE(testing::LoadObject(StoredTable(0, {3, 1}), back));
  EXPECT_FALSE(back.sorted());
  EXPECT_EQ(back.Find(1)->v, 10u);
}

TEST(KeyedTable, MalformedStoredFormsFail) {
  KeyedTable<Value> table;
  // Three entries announced, keys for two.
  Bytes mismatched = Concat({U32(3), {1}, U32(4), U32(2), U32(0), U32(1), U32(2)});
  EXPECT_FALSE(testing::LoadObject(mismatched, table));
  Bytes full = StoredTable(1, {3, 7, 9});
  for (size_t cut = 0; cut < full.size(); ++cut) {
    EXPECT_FALSE(testing::LoadObject(Bytes(full.begin(), full.begin() + cut), table)) << cut;
  }
}

}  // namespace
}  // namespace lumora
