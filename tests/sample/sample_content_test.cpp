#include <lumora/sample/sample_content.h>

#include <lumora/lumora.h>
#include <lumora/resources/index_forms.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/resources/type21_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/type1003.h>
#include <lumora/resources/types/type1003_index.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type1005_index.h>
#include <lumora/resources/types/type1010_index.h>
#include <lumora/resources/types/type40.h>
#include <lumora/resources/types/type5.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "fixtures/run_cli.h"
#include "fixtures/temp_dir.h"
#include "frame/content_tree.h"

namespace lumora {
namespace {

namespace fs = std::filesystem;
using testing::LibraryTest;
using testing::RegisteredIds;
using testing::TempDir;

constexpr uint32_t kOpenDisciplines[] = {1, 2, 3};

void WriteSample(const TempDir& dir, int scale) {
  std::string error;
  ASSERT_TRUE(sample::WriteSampleContent(dir.path(), {scale, false}, &error)) << error;
}

ContentRequest UrlRequest(uint32_t discipline, uint8_t selector = 1) {
  ContentRequest request;
  request.disciplineId = discipline;
  request.pathKind = kPathUrl;
  request.mediaOrder = selector;
  return request;
}

// The resource numbers an index lists for each type that loads by number.
std::vector<uint32_t> ListedNumbers(const ResourceIndex& index, uint32_t type) {
  std::vector<uint32_t> numbers;
  if (type == kContentElementType) {
    const auto* elements = dynamic_cast<const Type1005Index*>(index.FindType(type));
    if (elements == nullptr) return numbers;
    const DWordArray& keys = elements->table.keys();
    numbers.assign(keys.begin(), keys.begin() + elements->table.size());
  } else {
    const auto* exercises = dynamic_cast<const GroupsIndex*>(index.FindType(type));
    if (exercises == nullptr) return numbers;
    DWordArray all;
    exercises->groups.GetResourceNumbers(0, all);
    numbers.assign(all.begin(), all.end());
  }
  return numbers;
}

// Every file below `root` by its path relative to it, with its bytes.
std::map<std::string, std::string> FilesBelow(const TempDir& dir) {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(dir.path())) {
    if (!entry.is_regular_file()) continue;
    const std::string name = fs::relative(entry.path(), dir.path()).string();
    files[name] = dir.Read(name);
  }
  return files;
}

size_t CountFiles(const TempDir& dir, const std::string& extension) {
  size_t count = 0;
  for (const auto& [name, bytes] : FilesBelow(dir)) count += name.ends_with(extension);
  return count;
}

// The resource numbers any index form lists, repeats kept.
std::multiset<uint32_t> IndexedNumbers(const TypeIndex& index) {
  const DWordArray* numbers = nullptr;
  DWordArray grouped;
  if (const auto* groups = dynamic_cast<const GroupsIndex*>(&index)) {
    groups->groups.GetResourceNumbers(0, grouped);
    numbers = &grouped;
  } else if (const auto* type1010 = dynamic_cast<const Type1010Index*>(&index)) {
    type1010->groups.GetResourceNumbers(0, grouped);
    numbers = &grouped;
  } else if (const auto* type21 = dynamic_cast<const Type21Index*>(&index)) {
    numbers = &type21->numbers;
  } else if (const auto* plain = dynamic_cast<const PlainNumberIndex*>(&index)) {
    numbers = &plain->numbers;
  } else if (const auto* videos = dynamic_cast<const Type1003Index*>(&index)) {
    numbers = &videos->table.keys();
    return std::multiset<uint32_t>(numbers->begin(), numbers->begin() + videos->table.size());
  }
  if (numbers == nullptr) return {};
  return std::multiset<uint32_t>(numbers->begin(), numbers->end());
}

// The numbers of the resource files of `type` in every course folder below `local`.
std::multiset<uint32_t> NumbersOnDisk(const std::string& local, uint32_t type) {
  std::multiset<uint32_t> numbers;
  for (const auto& course : fs::directory_iterator(local)) {
    std::error_code none;
    for (const auto& file : fs::directory_iterator(course.path() / NumberedName('r', type), none)) {
      if (file.path().extension() != ".ars") continue;
      numbers.insert(static_cast<uint32_t>(std::stoul(file.path().stem().string().substr(1))));
    }
  }
  return numbers;
}

class SampleContent : public LibraryTest {
 protected:
  void SetUp() override {
    WriteSample(dir, 1);
    ASSERT_TRUE(lmOpen(root().c_str(), 0));
  }

  static std::string UrlRoot(uint32_t discipline) {
    return "http://content.lumora.test/course/D00" + std::to_string(discipline) + "/";
  }

  // Loads number `n` of the exercise or element type from whichever course holds it; fails
  // the test unless exactly one course does.
  template <typename Resource>
  void LoadFromOneCourse(uint32_t discipline, uint32_t n, Resource& loaded) {
    int found = 0;
    const ContentRequest request = UrlRequest(discipline);
    for (uint32_t course : {0u, 1u, 2u}) {
      Resource probe;
      if (!lmGetResource(&request, MakeResourceId(course, n), &probe, false)) continue;
      ++found;
      ASSERT_TRUE(lmGetResource(&request, MakeResourceId(course, n), &loaded, true));
    }
    EXPECT_EQ(found, 1) << "discipline " << discipline << ", number " << n;
  }
};

TEST_F(SampleContent, OpensTheTypeZeroDisciplinesAndListsAllFour) {
  EXPECT_EQ(RegisteredIds(), (std::vector<uint32_t>{1, 2, 3}));
  KeyedTable<DisciplineInfo> list;
  ASSERT_TRUE(lmGetDisciplines(root().c_str(), &list));
  ASSERT_EQ(list.size(), 4u);
  const uint32_t ids[] = {1, 2, 3, 9};
  const int32_t params[] = {17, 18, 15, 17};
  for (uint32_t i = 0; i < 4; ++i) {
    EXPECT_EQ(list.KeyAt(i), ids[i]);
    EXPECT_EQ(list.ObjectAt(i)->Type, i == 3 ? 1 : 0);
    EXPECT_EQ(list.ObjectAt(i)->Param, params[i]);
  }
}

TEST_F(SampleContent, EveryDisciplineIndexesExercisesElementsAndDescriptions) {
  for (uint32_t d : kOpenDisciplines) {
    const ContentRequest request = UrlRequest(d);
    const ResourceIndex* index = lmGetResourceInfos(&request);
    ASSERT_NE(index, nullptr);
    const DWordArray& types = index->types();
    // The first discipline also holds every other type, the others only those of their
    // course-0 package besides; the index files load in their order.
    const std::vector<uint32_t> expected =
        d == 1 ? std::vector<uint32_t>(kIndexLoadOrder.begin(), kIndexLoadOrder.end())
               : std::vector<uint32_t>{5, 8, 10, 28, 40, 1003, 2000, 1005};
    EXPECT_EQ(std::vector<uint32_t>(types.begin(), types.end()), expected);
    EXPECT_EQ(ListedNumbers(*index, 40).size(), 5u) << "four of the unit and the package's";
    EXPECT_EQ(ListedNumbers(*index, kContentElementType).size(), 8u);

    const auto* descriptions = dynamic_cast<const Type2000Index*>(index->FindType(2000));
    ASSERT_NE(descriptions, nullptr);
    ByteArray keys;
    descriptions->CollectGroupKeys(keys);
    EXPECT_EQ(std::vector<uint8_t>(keys.begin(), keys.end()), (std::vector<uint8_t>{1, 2, 3}));
  }
}

// Loading with media fills every reference from the element it names, so a reference to a
// missing element shows as an element that stayed a reference.
TEST_F(SampleContent, EveryIndexedExerciseLoadsWithItsReferencesAndMedia) {
  for (uint32_t d : kOpenDisciplines) {
    const ContentRequest request = UrlRequest(d);
    std::set<std::string> videos;
    for (uint32_t n : ListedNumbers(*lmGetResourceInfos(&request), 40)) {
      Type40Resource exercise;
      LoadFromOneCourse(d, n, exercise);
      ASSERT_GE(exercise.items.size(), 2u);
      for (auto& item : exercise.items) {
        EXPECT_FALSE(item->content.text.text.empty());
        for (ItemPart* part : item->Parts()) {
          for (auto& element : part->elements) EXPECT_FALSE(element->isReference);
        }
        for (auto& medium : item->media) videos.insert(medium->path);
      }
    }
    // Some videos answer as MPEG, some as AVI, and the one never delivered keeps no path.
    EXPECT_TRUE(videos.contains(""));
    const auto below_url = [&](const char* extension) {
      return std::count_if(videos.begin(), videos.end(), [&](const std::string& path) {
        return path.starts_with(UrlRoot(d)) && path.ends_with(extension);
      });
    };
    EXPECT_GT(below_url(".mpg"), 0);
    EXPECT_GT(below_url(".avi"), 0);
  }
}

TEST_F(SampleContent, EveryIndexedElementLoadsAndSomeMediaAreMissing) {
  for (uint32_t d : kOpenDisciplines) {
    const ContentRequest request = UrlRequest(d);
    size_t with_path = 0, without_path = 0;
    for (uint32_t n : ListedNumbers(*lmGetResourceInfos(&request), kContentElementType)) {
      ContentElement element;
      LoadFromOneCourse(d, n, element);
      EXPECT_FALSE(element.text.text.empty());
      if (element.media.resource == 0) continue;
      if (element.media.path.empty()) {
        ++without_path;
      } else {
        EXPECT_TRUE(element.media.path.starts_with(UrlRoot(d))) << element.media.path;
        ++with_path;
      }
    }
    EXPECT_GT(with_path, 0u);
    EXPECT_GT(without_path, 0u);
  }
}

// Pictures lie in Q1 and Q3, sounds in Q2 only: the selector picks among the first, and every
// selector still finds the second.
TEST_F(SampleContent, QualityFoldersAnswerInTheSelectorsOrder) {
  std::map<uint8_t, std::multiset<std::string>> folders;
  for (uint8_t selector : {1, 2, 3}) {
    for (uint32_t n : {1u, 2u}) {
      ContentElement element;
      const ContentRequest request = UrlRequest(1, selector);
      ASSERT_TRUE(lmGetResource(&request, MakeResourceId(1, n), &element, true));
      folders[selector].insert(element.media.path.substr(UrlRoot(1).size(), 19));
    }
  }
  using Found = std::multiset<std::string>;
  EXPECT_EQ(folders[1], (Found{"C0001/r0001005/Q1/p", "C0001/r0001005/Q2/s"}));
  EXPECT_EQ(folders[2], (Found{"C0001/r0001005/Q3/p", "C0001/r0001005/Q2/s"}));
  EXPECT_EQ(folders[3], (Found{"C0001/r0001005/Q3/p", "C0001/r0001005/Q2/s"}));
}

TEST_F(SampleContent, TheArhTwinIsWhatLoads) {
  const uint32_t id = MakeResourceId(1, 1);
  const std::string ars = ResourceFilePath(root() + "D001/", 40, id);
  ASSERT_TRUE(FileExists(ChangeExtension(ars, "arh")));
  Type40Resource stored, loaded;
  ASSERT_TRUE(LoadArchiveFile(ars, false, stored));
  const ContentRequest request = UrlRequest(1);
  ASSERT_TRUE(lmGetResource(&request, id, &loaded, false));
  EXPECT_EQ(loaded.items.size(), stored.items.size() + 1);
}

// Types 40 and 1005 are checked above; the descriptions are indexed from their own entries,
// not from files.
bool IsOtherType(uint32_t type) { return type != 40 && type != 1005 && type != 2000; }

// The first discipline indexes every type (checked above), the others their package's.
TEST_F(SampleContent, EveryOtherTypeIndexesExactlyTheResourceFilesOnDisk) {
  for (uint32_t d : kOpenDisciplines) {
    const ContentRequest request = UrlRequest(d);
    const ResourceIndex* index = lmGetResourceInfos(&request);
    ASSERT_NE(index, nullptr);
    for (uint32_t type : index->types()) {
      if (!IsOtherType(type)) continue;
      SCOPED_TRACE(::testing::Message() << "discipline " << d << ", type " << type);
      const std::multiset<uint32_t> listed = IndexedNumbers(*index->FindType(type));
      EXPECT_GE(listed.size(), d == 1 ? 2u : 1u);
      EXPECT_EQ(listed, NumbersOnDisk(root() + "D00" + std::to_string(d) + "/", type));
    }
  }
}

// Every type reads back through the library, and the media land where each type looks them up:
// a video's movie in Q3 and the sounds of a dictation in every quality folder.
TEST_F(SampleContent, OneResourceOfEveryTypeReadsWithItsMedia) {
  const ContentRequest request = UrlRequest(1, 3);
  for (uint32_t type : kExerciseTypes) {
    if (type == 2000) continue;
    SCOPED_TRACE(type);
    std::unique_ptr<ExerciseResource> resource = NewResource(type);
    ASSERT_NE(resource, nullptr);
    ASSERT_TRUE(lmGetResource(&request, MakeResourceId(1, 1), resource.get(), true));
    EXPECT_EQ(resource->resourceId, MakeResourceId(1, 1));
  }
  Type1003Resource video;
  ASSERT_TRUE(lmGetResource(&request, MakeResourceId(1, 1), &video, true));
  EXPECT_EQ(video.video.path, UrlRoot(1) + "C0001/r0001003/Q3/v0000001.mpg");
  EXPECT_EQ(video.script.paragraphs.size(), 3u);
  Type5Resource dictation;
  ASSERT_TRUE(lmGetResource(&request, MakeResourceId(1, 1), &dictation, true));
  ASSERT_EQ(dictation.sentences.size(), 2u);
  EXPECT_EQ(dictation.sentences[0].media.path, UrlRoot(1) + "C0001/r0000005/Q3/s0000010.swf");
}

// The sample plants problems for the verification to find: three in the exercise types and
// the element pictures that were never delivered (one per unit); everything else passes.
TEST_F(SampleContent, VerifyingDisciplineOneFindsExactlyThePlantedProblems) {
  const testing::CliResult result = testing::RunCli("verify '" + root() + "' -d 1 --json");
  EXPECT_EQ(result.exit_code, 1);
  std::set<uint32_t> types;
  std::map<std::pair<uint32_t, uint32_t>, std::string> problems;
  for (const auto& checked : nlohmann::json::parse(result.out)) {
    const uint32_t type = checked["type"];
    types.insert(type);
    if (checked["ok"] == false) problems[{type, checked["resourceId"]}] = checked["report"];
  }
  EXPECT_EQ(types.size(), kExerciseTypes.size()) << "every type, the descriptions among them";

  const uint32_t third = MakeResourceId(1, 3);
  using Key = std::pair<uint32_t, uint32_t>;
  std::vector<Key> found;
  for (const auto& [key, report] : problems) found.push_back(key);
  const uint32_t element_1 = MakeResourceId(1, 4);
  const uint32_t element_2 = MakeResourceId(2, 8);
  ASSERT_EQ(found,
            (std::vector<Key>{
                {8, third}, {19, third}, {1005, element_1}, {1005, element_2}, {1006, third}}));
  EXPECT_EQ(problems[Key(1005, element_2)],
            "\t\tFile not found: " + root() + "D001/C0002/r0001005/Q1/p0000008.swf!\n");
  EXPECT_EQ(problems[Key(8, third)],
            "\t\tParagraph n\xc2\xb0"
            "9 of video 1 does not exist for Item: 1048579\n");
  EXPECT_EQ(problems[Key(19, third)], "\t\tPositon Id: 4 not found for Item : 1048579!\n");
  EXPECT_EQ(problems[Key(1006, third)],
            "\t\tFile not found: " + root() + "D001/C0001/r0001006/Q1/p0000033.swf!\n");
}

TEST(SampleContentWriter, WritesTheSameBytesEveryTime) {
  TempDir first, second;
  WriteSample(first, 1);
  WriteSample(second, 1);
  const auto files = FilesBelow(first);
  EXPECT_GT(files.size(), 50u);
  EXPECT_EQ(files, FilesBelow(second));
}

TEST(SampleContentWriter, ResourcesGrowWithTheScale) {
  TempDir small, large;
  WriteSample(small, 1);
  WriteSample(large, 3);
  // Twelve resource files per unit and discipline; the other types' few do not grow.
  EXPECT_EQ(CountFiles(large, ".ars") - CountFiles(small, ".ars"), 3u * 24);
}

TEST(SampleContentWriter, RefusesAScaleOutOfRangeAndAnUnwritableFolder) {
  TempDir dir;
  std::string error;
  EXPECT_FALSE(sample::WriteSampleContent(dir.path() + "zero", {0}, &error));
  EXPECT_FALSE(error.empty());
  EXPECT_FALSE(fs::exists(dir.path() + "zero"));

  dir.Write("blocked", "a file where a folder should be");
  error.clear();
  EXPECT_FALSE(sample::WriteSampleContent(dir.path() + "blocked/inner", {1}, &error));
  EXPECT_NE(error.find("blocked"), std::string::npos) << error;
}

}  // namespace
}  // namespace lumora
