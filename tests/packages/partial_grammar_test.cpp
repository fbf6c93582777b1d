// The grammar an export carries: which points the lessons and the referenced descriptions
// bring in, which records come along with a point, and how picture folders and resource files
// are copied and reported. CopySwfFolder, which the picture copy is made of, is tested here too.
#include <lumora/lexicon/grammar.h>
#include <lumora/packages/partial_lexicon.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/types/type2000.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "fixtures/temp_dir.h"
#include "resources/types/video_type_builders.h"

namespace lumora {
namespace {

namespace fs = std::filesystem;
using testing::LinkRecord16;

template <typename Record>
std::vector<typename SetTable<Record>::Key> Keys(const SetTable<Record>& table) {
  std::vector<typename SetTable<Record>::Key> keys;
  for (const Record& record : table) keys.push_back(record.Key());
  return keys;
}

std::vector<std::string> FilesIn(const std::string& folder) {
  std::vector<std::string> names;
  if (!fs::is_directory(folder)) return names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// The description resource 0x00101805 (course 1, lesson bits 3, number 5) references points
// 4 (type 1002), 9 (no such point) and 5 (but as type 1003).
constexpr uint32_t kDescription = (1u << 20) | (3u << 11) | 5;

// The source grammar: points 2, 4, 5 and 6, each with a title, a subpoint P001 with its
// title, keyword and part, and bubbles in two languages; point 2 also has subpoint 2999 and
// pictures, its part names resource file 77, and point 5's part names 78. Subpoint 3001 and
// its records belong to no point. Links from lesson 3 lead to points 2 and 8 (which does not
// exist), from lesson 1 to point 6, from 7 (no lesson) to point 5.
class PartialGrammar : public ::testing::Test {
 protected:
  void SetUp() override {
    CGramV6 g;
    for (uint16_t p : {2, 4, 5, 6}) {
      const uint32_t subpoint = p * 1000u + 1;
      g.points.Insert({p, 0, 0, u"point"});
      g.titles.Insert({p, 14, u"title"});
      g.subpoints.Insert({subpoint, 1, 0});
      g.subpointTitles.Insert({subpoint, 14, u"subpoint"});
      g.keywords.Insert({subpoint * 100 + 1, u"keyword"});
      g.parts.Insert({subpoint, 1, 0, 0, p == 2 ? 77u : p == 5 ? 78u : 0u, 0, 0, 0});
      for (uint8_t language : {14, 17}) g.bubbles.Insert({language, p, 1, 1, u"bubble"});
    }
    g.subpoints.Insert({2999, 2, 0});
    g.keywords.Insert({299999, u"last keyword of point 2"});
    g.subpoints.Insert({3001, 1, 0});
    g.subpointTitles.Insert({3001, 14, u"orphan"});
    g.keywords.Insert({300101, u"orphan"});
    g.parts.Insert({3001, 1, 0, 0, 79, 0, 0, 0});
    g.pictures.Insert({2, 1, 0});
    g.pictures.Insert({2, 2, 0});
    g.pictures.Insert({5, 1, 0});
    g.links.Insert({3, 1, 200101, 1, 0});
    g.links.Insert({3, 2, 800101, 1, 0});
    g.links.Insert({1, 1, 600101, 1, 0});
    g.links.Insert({7, 1, 500101, 1, 0});
    g.setFolder(root + "C0000/r0001002/");
    ASSERT_TRUE(fs::create_directories(g.folder));
    ASSERT_TRUE(g.save());
    ASSERT_TRUE(source.load(g.folder));

    Type2000Resource description;
    description.resourceId = kDescription;
    description.records.Add(LinkRecord16(0, 1002, 0, 4));
    description.records.Add(LinkRecord16(0, 1002, 0, 9));
    description.records.Add(LinkRecord16(0, 1003, 0, 5));
    const std::string path = ResourceFilePath(root, Type2000Resource::kType, kDescription);
    ASSERT_TRUE(CreateFolderPath(FolderOf(path)));
    ASSERT_TRUE(LoadArchiveFile(path, true, description));
    ASSERT_TRUE(fs::create_directories(exported));
  }

  // Lesson 1 directly, lesson 3 through the description, and a description that is missing.
  bool Export(const ByteArray& qualities) {
    const std::set<uint32_t> referenced = {1, kDescription, MakeResourceId(1, 6)};
    const bool result = ExportPartialGrammar(source, root, referenced, qualities, exported, report);
    EXPECT_TRUE(partial.load(exported));
    return result;
  }

  std::string GrammarFile(const std::string& name) {
    return dir.Write("root/C0000/r0001002/" + name, name);
  }

  testing::TempDir dir;
  const std::string root = dir.path() + "root/";
  const std::string exported = dir.path() + "export/";
  CGramV6 source;
  CGramV6 partial;
  std::string report;
};

TEST_F(PartialGrammar, KeepsThePointsOfTheLessonsAndDescriptionsWithEverythingBelowThem) {
  GrammarFile("r0000077.ars");
  EXPECT_TRUE(Export({}));
  EXPECT_EQ(report, "");
  EXPECT_EQ(Keys(partial.points), (std::vector<uint16_t>{2, 4, 6}));
  using LinkKey = std::tuple<uint32_t, uint32_t, uint32_t>;
  EXPECT_EQ(Keys(partial.links),
            (std::vector<LinkKey>{{1, 1, 600101}, {3, 1, 200101}, {3, 2, 800101}}));
  EXPECT_EQ(Keys(partial.titles),
            (std::vector<std::tuple<uint16_t, uint8_t>>{{2, 14}, {4, 14}, {6, 14}}));
  EXPECT_EQ(Keys(partial.pictures), (std::vector<std::tuple<uint16_t, uint8_t>>{{2, 1}, {2, 2}}));
  EXPECT_EQ(Keys(partial.subpoints), (std::vector<uint32_t>{2001, 2999, 4001, 6001}));
  EXPECT_EQ(Keys(partial.subpointTitles),
            (std::vector<std::tuple<uint32_t, uint8_t>>{{2001, 14}, {4001, 14}, {6001, 14}}));
  EXPECT_EQ(Keys(partial.keywords), (std::vector<uint32_t>{200101, 299999, 400101, 600101}));
  using PartKey = std::tuple<uint32_t, uint8_t, uint8_t>;
  EXPECT_EQ(Keys(partial.parts), (std::vector<PartKey>{{2001, 1, 0}, {4001, 1, 0}, {6001, 1, 0}}));
  std::set<std::pair<uint8_t, uint16_t>> bubbles;
  for (const GrBubblesRecord& b : partial.bubbles) bubbles.insert({b.language, b.pointId});
  EXPECT_EQ(bubbles, (std::set<std::pair<uint8_t, uint16_t>>{
                         {14, 2}, {14, 4}, {14, 6}, {17, 2}, {17, 4}, {17, 6}}));
  // No quality folders: no pictures, but the resource files still come along.
  EXPECT_FALSE(fs::exists(exported + "Q1"));
  EXPECT_EQ(dir.Read("export/r0000077.ars"), "r0000077.ars");
}

TEST_F(PartialGrammar, CopiesThePictureFoldersOfTheKeptPointsPerQuality) {
  GrammarFile("r0000077.ars");
  for (const char* name : {"Q1/002/01.swf", "Q1/002/02.SWF", "Q3/002/01.swf", "Q1/005/01.swf"}) {
    GrammarFile(name);
  }
  EXPECT_TRUE(Export(testing::QualityFolderList({3, 1})));
  EXPECT_EQ(report, "");
  EXPECT_EQ(FilesIn(exported + "Q1/002"), (std::vector<std::string>{"01.swf", "02.SWF"}));
  EXPECT_EQ(FilesIn(exported + "Q3/002"), (std::vector<std::string>{"01.swf"}));
  EXPECT_EQ(dir.Read("export/Q1/002/02.SWF"), "Q1/002/02.SWF");
  EXPECT_FALSE(fs::exists(exported + "Q1/005"));
  EXPECT_FALSE(fs::exists(exported + "Q2"));
}

TEST_F(PartialGrammar, ReportsFailedCopiesAfterSaving) {
  // Resource file 77 is missing, and Q1 of the export is a file.
  dir.Write("export/Q1", "a file where the quality folder should be");
  EXPECT_FALSE(Export(testing::QualityFolderList({1})));
  const std::string from = source.folder;
  EXPECT_EQ(report, "Can not create directory : " + exported + "Q1/002/\nCannot copy media file: " +
                        from + "Q1/002/\nCannot copy ars file: " + from + "r0000077.ars\n");
  EXPECT_EQ(partial.points.size(), 3u);
}

TEST_F(PartialGrammar, AFolderThatCannotBeSavedIntoFailsWithoutALineEndAndCopiesNothing) {
  GrammarFile("r0000077.ars");
  dir.Write("blocked", "a file where the export folder should be");
  EXPECT_FALSE(ExportPartialGrammar(source, root, {1, 3}, {}, dir.path() + "blocked/g/", report));
  EXPECT_EQ(report, "Cannot save the files of the partial grammar");
}

TEST(CopySwfFolder, CopiesOnlyTheSwfFilesDirectlyInTheFolder) {
  testing::TempDir dir;
  for (const char* name : {"from/a.swf", "from/B.SWF", "from/notes.txt", "from/a.swf.bak",
                           "from/sub/c.swf", "from/folder.swf/d.swf"}) {
    dir.Write(name, name);
  }
  std::string report;
  CopyQueue copies(report);
  EXPECT_TRUE(CopySwfFolder(dir.path() + "from/", dir.path() + "to/new/", copies));
  EXPECT_EQ(report, "");
  EXPECT_EQ(FilesIn(dir.path() + "to/new"), (std::vector<std::string>{"B.SWF", "a.swf"}));
  EXPECT_EQ(dir.Read("to/new/a.swf"), "from/a.swf");

  // A missing source folder has nothing to copy; the destination is still made.
  EXPECT_TRUE(CopySwfFolder(dir.path() + "none/", dir.path() + "empty/", copies));
  EXPECT_TRUE(fs::is_directory(dir.path() + "empty"));
  EXPECT_EQ(report, "");
}

TEST(CopySwfFolder, ReportsEachFailedCopyAndGoesOn) {
  testing::TempDir dir;
  dir.Write("from/a.swf", "new a");
  dir.Write("from/b.swf", "new b");
  const std::string locked = dir.Write("to/a.swf", "old a");
  fs::permissions(locked, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                  fs::perm_options::remove);
  std::string report;
  CopyQueue copies(report);
  EXPECT_FALSE(CopySwfFolder(dir.path() + "from/", dir.path() + "to/", copies));
  EXPECT_EQ(report, "Cannot copy file: " + dir.path() + "from/a.swf\n");
  EXPECT_EQ(dir.Read("to/a.swf"), "old a");
  EXPECT_EQ(dir.Read("to/b.swf"), "new b");

  dir.Write("blocked", "a file where a folder should be");
  report.clear();
  EXPECT_FALSE(CopySwfFolder(dir.path() + "from/", dir.path() + "blocked/to/", copies));
  EXPECT_EQ(report, "Can not create directory : " + dir.path() + "blocked/to/\n");
}

}  // namespace
}  // namespace lumora
