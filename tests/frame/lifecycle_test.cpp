#include <lumora/platform/com_apartment.h>

#include <filesystem>

#include "frame/content_tree.h"

namespace lumora {
namespace {

using testing::LibraryTest;
using testing::RegisteredIds;
using testing::WriteDescriptions;

using Lifecycle = LibraryTest;

Discipline& Registered(uint32_t i) { return *Library().registry.ObjectAt(i); }

TEST_F(Lifecycle, RootWithOrWithoutSeparatorAndEmptyRootOpenTheSameFiles) {
  WriteIni("[001]\nDiscipline=7\n");
  const std::string without = root().substr(0, root().size() - 1);
  for (const std::string& given : {root(), without}) {
    ASSERT_TRUE(lmOpen(given.c_str(), 0)) << given;
    EXPECT_EQ(Registered(0).localRoot, root() + "D007/") << given;
    EXPECT_EQ(Library().commonLocal, root()) << given;
    lmClose();
  }

  // An empty root reads Content.ini from the current folder, and every root stays relative.
  const auto previous = std::filesystem::current_path();
  std::filesystem::current_path(root());
  const bool opened = lmOpen("", 0);
  std::filesystem::current_path(previous);
  ASSERT_TRUE(opened);
  EXPECT_EQ(Registered(0).localRoot, "D007/");
  EXPECT_EQ(Registered(0).dataFolder, "D007/");
  EXPECT_EQ(Library().commonURL, "");
}

TEST_F(Lifecycle, SectionsAreReadInNumberOrderUpToTheFirstGap) {
  WriteIni(
      "[002]\nDiscipline=20\n[001]\nDiscipline=10\n[004]\nDiscipline=40\n"
      "[003x]\nDiscipline=30\n");
  // "[003x]" begins with "[003" but not with "[003]", so the list ends at 3.
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  EXPECT_EQ(RegisteredIds(), (std::vector<uint32_t>{10, 20}));
  EXPECT_FALSE(Library().registry.sorted());
}

TEST_F(Lifecycle, FilterOpensOnlyTheNamedDiscipline) {
  WriteIni("[001]\nDiscipline=1\n[002]\nDiscipline=2\n[003]\nDiscipline=3\n");
  ASSERT_TRUE(lmOpen(root().c_str(), 2));
  EXPECT_EQ(RegisteredIds(), (std::vector<uint32_t>{2}));
  lmClose();
  EXPECT_FALSE(lmOpen(root().c_str(), 9));
  EXPECT_TRUE(RegisteredIds().empty());
  // Disciplines of an earlier open still count.
  ASSERT_TRUE(lmOpen(root().c_str(), 3));
  EXPECT_TRUE(lmOpen(root().c_str(), 9));
  EXPECT_EQ(RegisteredIds(), (std::vector<uint32_t>{3}));
}

TEST_F(Lifecycle, OnlyALowTypeByteOfZeroOpens) {
  WriteIni(
      "[001]\nDiscipline=1\nType=1\n[002]\nDiscipline=2\nType=257\n"
      "[003]\nDiscipline=3\nType=256\n[004]\nDiscipline=4\n");
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  EXPECT_EQ(RegisteredIds(), (std::vector<uint32_t>{3, 4}));
  lmClose();
  EXPECT_FALSE(lmOpen(root().c_str(), 1));
  EXPECT_TRUE(RegisteredIds().empty());
}

TEST_F(Lifecycle, DroppingADuplicateIdentifierDropsTheFirstRegistered) {
  WriteIni("[001]\nDiscipline=7\nParam=1\n[002]\nDiscipline=7\nParam=2\nType=1\n");
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  ASSERT_EQ(RegisteredIds(), (std::vector<uint32_t>{7}));
  EXPECT_EQ(Registered(0).info.Param, 2);
  EXPECT_EQ(Registered(0).resourceIndex, nullptr);
}

TEST_F(Lifecycle, CommonRootsFallBackToTheContentRoot) {
  WriteIni("[001]\nDiscipline=1\n");
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  EXPECT_EQ(Library().commonLocal, root());
  EXPECT_EQ(Library().commonUNC, root());
  EXPECT_EQ(Library().commonURL, root());
  lmClose();

  WriteIni("[Common]\nURL=http://cdn/course\nLocal=  /srv/shared  \nUNC=\n[001]\nDiscipline=1\n");
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  EXPECT_EQ(Library().commonLocal, "/srv/shared/");
  EXPECT_EQ(Library().commonUNC, root());
  EXPECT_EQ(Library().commonURL, "http://cdn/course");
}

TEST_F(Lifecycle, DisciplineRootsAndDataFolder) {
  WriteIni(
      "[Common]\nLocal=/srv/shared\n"
      "[001]\nDiscipline=7\n"
      "[002]\nURL=http://cdn/d8\nUNC=\\\\server\\d8\nLocal=/data/d8/\nDiscipline=8\n");
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  const Discipline& seven = Registered(0);
  EXPECT_EQ(seven.localRoot, root() + "D007/");
  EXPECT_EQ(seven.uncRoot, root() + "D007/");
  EXPECT_EQ(seven.urlRoot, root() + "D007/");
  EXPECT_EQ(seven.dataFolder, "/srv/shared/D007/");
  const Discipline& eight = Registered(1);
  EXPECT_EQ(eight.localRoot, "/data/d8/");
  // The network root gets the separator of network paths; the URL stays as written.
  EXPECT_EQ(eight.uncRoot, "\\\\server\\d8\\");
  EXPECT_EQ(eight.urlRoot, "http://cdn/d8");
  EXPECT_EQ(eight.dataFolder, "/srv/shared/D008/");
}

// A folder value that already ends in a separator of either kind is kept as written.
TEST_F(Lifecycle, FolderValuesEndingInEitherSeparatorAreKeptAsWritten) {
  WriteIni("[Common]\nLocal=E:\\Shared\\\n[001]\nDiscipline=7\nLocal=E:\\D7\\\n");
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  EXPECT_EQ(Library().commonLocal, "E:\\Shared\\");
  EXPECT_EQ(Registered(0).localRoot, "E:\\D7\\");
  EXPECT_EQ(Registered(0).dataFolder, "E:\\Shared\\D007/");
}

TEST_F(Lifecycle, DescriptionsGiveGroupKeysEntriesAndTheGlossaryLanguage) {
  WriteIni("[001]\nDiscipline=7\nParam=300\n[002]\nDiscipline=8\n");
  WriteDescriptions(root() + "D007/", {3, 1, 3, 2});
  ASSERT_TRUE(lmOpen(root().c_str(), 0));

  const Discipline& seven = Registered(0);
  EXPECT_EQ(std::vector<uint8_t>(seven.info.values.begin(), seven.info.values.end()),
            (std::vector<uint8_t>{1, 2, 3}));
  ASSERT_EQ(seven.type2000Table.size(), 4u);
  EXPECT_EQ(seven.type2000Table.Find(12)->attribute, 3);
  EXPECT_EQ(seven.info.Param, 300);
  EXPECT_EQ(seven.glossary.language, 44);
  EXPECT_EQ(seven.glossary.classification, lmGetClassification());

  // Without a description index both stay empty.
  const Discipline& eight = Registered(1);
  EXPECT_TRUE(eight.info.values.empty());
  EXPECT_EQ(eight.type2000Table.size(), 0u);
  EXPECT_NE(eight.resourceIndex, nullptr);
}

TEST_F(Lifecycle, SecondOpenRegistersBehindTheFirstAndLookupsFindTheFirst) {
  WriteIni("[001]\nDiscipline=7\n");
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  WriteIni("[Common]\nLocal=/elsewhere\n[001]\nDiscipline=7\nParam=5\n");
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  EXPECT_EQ(RegisteredIds(), (std::vector<uint32_t>{7, 7}));
  EXPECT_EQ(FindDiscipline(7), &Registered(0));
  EXPECT_EQ(FindDiscipline(7)->info.Param, 0);
  EXPECT_EQ(Library().commonLocal, "/elsewhere/");
}

TEST_F(Lifecycle, CloseEmptiesTheRegistryAndKeepsTheCommonRoots) {
  WriteIni("[Common]\nLocal=/srv/shared\n[001]\nDiscipline=7\n[002]\nDiscipline=8\n");
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  lmClose();
  EXPECT_EQ(Library().registry.size(), 0u);
  EXPECT_EQ(Library().registry.keys().capacity(), 0u);
  EXPECT_TRUE(Library().registry.sorted());
  ContentRequest request;
  request.disciplineId = 7;
  EXPECT_EQ(lmGetPathInfos(&request), "/srv/shared/");
  lmClose();  // closing a closed library is harmless
  EXPECT_EQ(lmGetPathInfos(&request), "/srv/shared/");
}

TEST_F(Lifecycle, EveryOpenLeavesOneInitializationForACloseToBalance) {
  WriteIni("[001]\nDiscipline=7\n");
  const int before = ComInitializations();
  EXPECT_FALSE(lmOpen((root() + "missing").c_str(), 0));
  EXPECT_TRUE(lmOpen(root().c_str(), 0));
  EXPECT_EQ(ComInitializations(), before + 2);
  lmClose();
  lmClose();
  EXPECT_EQ(ComInitializations(), before);
}

TEST_F(Lifecycle, UnreadableConfigurationChangesNothing) {
  WriteIni("[Common]\nLocal=/srv/shared\n[001]\nDiscipline=7\n");
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  testing::TempDir other;
  std::filesystem::create_directory(other.path() + "Content.ini");
  EXPECT_FALSE(lmOpen(other.path().c_str(), 0));
  EXPECT_FALSE(lmOpen(nullptr, 0));
  EXPECT_EQ(Library().commonLocal, "/srv/shared/");
  EXPECT_EQ(RegisteredIds(), (std::vector<uint32_t>{7}));
}

}  // namespace
}  // namespace lumora
