#include <filesystem>

#include "frame/content_tree.h"

namespace lumora {
namespace {

using testing::LibraryTest;
using testing::WriteDescriptions;

using DisciplineList = LibraryTest;

std::vector<uint8_t> Values(const DisciplineInfo& info) {
  return std::vector<uint8_t>(info.values.begin(), info.values.end());
}

// A list the host filled before: its records must go.
KeyedTable<DisciplineInfo> Prefilled() {
  KeyedTable<DisciplineInfo> list;
  list.Add(99, std::make_unique<DisciplineInfo>());
  return list;
}

TEST_F(DisciplineList, ListsEverySectionWithItsDescriptionKeys) {
  WriteIni("[Common]\nLocal=" + root() + "shared\nUNC=//ignored\n" +
           "[001]\nDiscipline=8\nType=1\nParam=300\n[002]\nDiscipline=3\n[004]\nDiscipline=4\n");
  WriteDescriptions(root() + "shared/D008/", {3, 1, 3, 2});
  WriteDescriptions(root() + "shared/D003/", {});
  KeyedTable<DisciplineInfo> list = Prefilled();

  ASSERT_TRUE(lmGetDisciplines(root().c_str(), &list));
  ASSERT_EQ(list.size(), 2u);
  EXPECT_FALSE(list.sorted());
  EXPECT_EQ(list.KeyAt(0), 8u);
  EXPECT_EQ(list.ObjectAt(0)->Type, 1);
  EXPECT_EQ(list.ObjectAt(0)->Param, 300);
  EXPECT_EQ(Values(*list.ObjectAt(0)), (std::vector<uint8_t>{1, 2, 3}));
  // The scratch index is reloaded for every section: nothing carries over.
  EXPECT_EQ(list.KeyAt(1), 3u);
  EXPECT_TRUE(Values(*list.ObjectAt(1)).empty());
}

TEST_F(DisciplineList, WithoutSectionsTheListIsEmptyAndSorted) {
  WriteIni("[Common]\nLocal=/nowhere\n");
  KeyedTable<DisciplineInfo> list = Prefilled();
  ASSERT_TRUE(lmGetDisciplines(root().c_str(), &list));
  EXPECT_EQ(list.size(), 0u);
  EXPECT_TRUE(list.sorted());
}

TEST_F(DisciplineList, MissingDescriptionStopsWithTheRecordsSoFar) {
  WriteIni("[001]\nDiscipline=1\nParam=5\n[002]\nDiscipline=2\nParam=6\n[003]\nDiscipline=3\n");
  WriteDescriptions(root() + "D001/", {9});
  KeyedTable<DisciplineInfo> list;
  EXPECT_FALSE(lmGetDisciplines(root().c_str(), &list));
  ASSERT_EQ(list.size(), 2u);
  EXPECT_EQ(Values(*list.ObjectAt(0)), (std::vector<uint8_t>{9}));
  EXPECT_EQ(list.KeyAt(1), 2u);
  EXPECT_EQ(list.ObjectAt(1)->Param, 6);
  EXPECT_TRUE(Values(*list.ObjectAt(1)).empty());
}

TEST_F(DisciplineList, UnreadableConfigurationLeavesTheListEmpty) {
  KeyedTable<DisciplineInfo> list = Prefilled();
  EXPECT_FALSE(lmGetDisciplines(root().c_str(), &list));
  EXPECT_EQ(list.size(), 0u);

  std::filesystem::create_directory(root() + "Content.ini");
  list = Prefilled();
  EXPECT_FALSE(lmGetDisciplines(root().c_str(), &list));
  EXPECT_EQ(list.size(), 0u);
  EXPECT_FALSE(lmGetDisciplines(root().c_str(), nullptr));
}

TEST_F(DisciplineList, LeavesTheRegistryAndTheCommonRootsAlone) {
  WriteIni("[Common]\nLocal=/srv/shared\n[001]\nDiscipline=7\n");
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  testing::TempDir other;
  other.Write("Content.ini", "[Common]\nLocal=" + other.path() + "x\n[001]\nDiscipline=7\n");
  WriteDescriptions(other.path() + "x/D007/", {1});
  KeyedTable<DisciplineInfo> list;
  ASSERT_TRUE(lmGetDisciplines(other.path().c_str(), &list));
  EXPECT_EQ(Library().commonLocal, "/srv/shared/");
  EXPECT_EQ(Library().registry.size(), 1u);
}

}  // namespace
}  // namespace lumora
