#include <lumora/platform/keyed_table.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

using testing::TempDir;

TEST(Paths, SplittingAndComposing) {
  EXPECT_EQ(WithBackslash(""), "");
  EXPECT_EQ(WithBackslash("/data"), "/data/");
  EXPECT_EQ(WithBackslash("/data/"), "/data/");
  EXPECT_EQ(FolderOf("/c/d/r0000007.ars"), "/c/d/");
  EXPECT_EQ(FolderOf("r0000007.ars"), "");
  EXPECT_EQ(FileTitle("/c/d/r0000007.ars"), "r0000007");
  EXPECT_EQ(FileTitle("/c/d.x/name"), "name");
  EXPECT_EQ(ExtensionOf("/c/d/r0000007.ars"), ".ars");
  EXPECT_EQ(ExtensionOf("/c/d.x/name"), "");
  EXPECT_EQ(ChangeExtension("/c/d/r0000007.ars", "arh"), "/c/d/r0000007.arh");
  EXPECT_EQ(ChangeExtension("/c/d/r0000007.ars", ".aro"), "/c/d/r0000007.aro");
  EXPECT_EQ(ChangeExtension("/c/d/file", "txt"), "/c/d/file.txt");
}

TEST(Paths, ExistenceDistinguishesFilesAndFolders) {
  TempDir dir;
  std::string file = dir.Write("a.bin", "x");
  EXPECT_TRUE(FileExists(file));
  EXPECT_FALSE(FolderExists(file));
  EXPECT_FALSE(FileExists(dir.path()));
  EXPECT_TRUE(FolderExists(dir.path()));
  EXPECT_FALSE(FileExists(dir.path() + "missing"));
  EXPECT_FALSE(FolderExists(dir.path() + "missing"));
}

TEST(Paths, PathIsWithinResolvesDotsAndLinksBeforeComparing) {
  testing::TempDir dir;
  const std::string tree = dir.path() + "out/";
  dir.Write("out/D001/r.ars", "x");
  dir.Write("elsewhere/r.ars", "x");
  ASSERT_EQ(::symlink((dir.path() + "elsewhere").c_str(), (tree + "link").c_str()), 0);
  EXPECT_TRUE(PathIsWithin(tree, tree));
  EXPECT_TRUE(PathIsWithin(tree + "D001/", tree));
  EXPECT_TRUE(PathIsWithin(tree + "D002/not/yet/", tree));
  EXPECT_FALSE(PathIsWithin(tree + "D001/../../elsewhere/", tree));
  EXPECT_FALSE(PathIsWithin(tree + "link/", tree));
  EXPECT_FALSE(PathIsWithin(dir.path() + "outside/", tree));
  EXPECT_FALSE(PathIsWithin(dir.path() + "ou", tree));
  EXPECT_FALSE(PathIsWithin("E:\\Shared\\", tree));
}

// A folder that cannot be resolved must contain nothing: resolving the candidate afterwards
// once cleared the folder's error and left an empty folder, which contains every path.
TEST(Paths, PathIsWithinFailsClosedWhenEitherPathCannotBeResolved) {
  testing::TempDir dir;
  const std::string tree = dir.path() + "out/";
  dir.Write("out/D001/r.ars", "x");
  ASSERT_EQ(::symlink((tree + "loop").c_str(), (tree + "loop").c_str()), 0);
  EXPECT_FALSE(PathIsWithin(tree + "D001/", tree + "loop/"));
  EXPECT_FALSE(PathIsWithin(tree + "loop/D001/", tree));
  EXPECT_FALSE(PathIsWithin(tree + "D001/", ""));
  EXPECT_FALSE(PathIsWithin("", tree));
}

TEST(Paths, FirstExistingFileFollowsListOrder) {
  TempDir dir;
  dir.Write("m.avi", "");
  dir.Write("m.swf", "");
  std::filesystem::create_directory(dir.path() + "m.mpg");  // a folder never counts
  EXPECT_EQ(FirstExistingFile(dir.path() + "m", {".mpg", ".avi", ".swf"}), dir.path() + "m.avi");
  EXPECT_EQ(FirstExistingFile(dir.path() + "m", {".wav"}), "");
}

TEST(Paths, CreateFolderPathIsRepeatable) {
  TempDir dir;
  std::string deep = dir.path() + "A/B/C";
  EXPECT_TRUE(CreateFolderPath(deep));
  EXPECT_TRUE(FolderExists(dir.path() + "A/B/C/"));
  EXPECT_TRUE(CreateFolderPath(deep + "/"));
  EXPECT_TRUE(CreateFolderPath(dir.path() + "A//B/D"));
  EXPECT_TRUE(FolderExists(dir.path() + "A/B/D/"));
}

TEST(Paths, CreateFolderPathFailsThroughAFileOrAMissingShare) {
  TempDir dir;
  dir.Write("F", "not a folder");
  EXPECT_FALSE(CreateFolderPath(dir.path() + "F/child"));
  EXPECT_FALSE(CreateFolderPath(""));
  EXPECT_FALSE(CreateFolderPath("//"));
  EXPECT_FALSE(CreateFolderPath("//no-such-server-share/x"));
}

TEST(Paths, UniqueFileNameSkipsExistingNames) {
  TempDir dir;
  dir.Write("~AT0.tmp", "");
  dir.Write("~AT1.tmp", "");
  EXPECT_EQ(UniqueFileName(nullptr, dir.path().c_str(), nullptr), dir.path() + "~AT2.tmp");
  EXPECT_EQ(UniqueFileName("ars", dir.path().c_str(), "r"), dir.path() + "r0.ars");
  std::string in_temp = UniqueFileName();
  EXPECT_EQ(FolderOf(in_temp), WithBackslash(std::filesystem::temp_directory_path().string()));
}

struct Pair : Object {
  uint32_t a = 0;
  uint8_t b = 0;
  void Serialize(Archive& ar) override {
    ar.Io(a);
    ar.Io(b);
  }
};

TEST(Paths, LoadArchiveFileRoundTripAndFailures) {
  TempDir dir;
  Pair out;
  out.a = 0x11223344;
  out.b = 7;
  std::string path = dir.path() + "pair.bin";
  ASSERT_TRUE(LoadArchiveFile(path, true, out));
  EXPECT_EQ(dir.Read("pair.bin"), std::string("\x44\x33\x22\x11\x07", 5));

  Pair in;
  ASSERT_TRUE(LoadArchiveFile(path, false, in));
  EXPECT_EQ(in.a, out.a);
  EXPECT_EQ(in.b, out.b);

  dir.Write("short.bin", std::string("\x44\x33\x22\x11", 4));
  Pair partial;
  EXPECT_FALSE(LoadArchiveFile(dir.path() + "short.bin", false, partial));
  EXPECT_EQ(partial.a, 0x11223344u);  // what was read before the end stays

  EXPECT_FALSE(LoadArchiveFile(dir.path() + "missing.bin", false, in));
  EXPECT_FALSE(LoadArchiveFile(dir.path() + "no/such/folder/x.bin", true, out));
  EXPECT_FALSE(LoadArchiveFile(dir.path(), false, in));
}

TEST(Paths, ModuleFolderOfTheTestProgram) {
  std::string folder = ModuleFolder();
  ASSERT_FALSE(folder.empty());
  EXPECT_EQ(folder.back(), kPathSeparator);
  EXPECT_TRUE(FolderExists(folder));
  std::string library = ModuleFolder(reinterpret_cast<const void*>(&WithBackslash));
  EXPECT_TRUE(FolderExists(library));
}

}  // namespace
}  // namespace lumora
