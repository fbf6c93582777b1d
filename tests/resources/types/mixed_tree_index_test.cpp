// Index rebuilds over one mixed content tree, once for each form of index file: a resource
// number used in two course folders is listed twice, names that are not "r" and seven digits
// are not resources, and an unreadable resource file fails the rebuild without stopping it.
#include <lumora/resources/index_forms.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type21_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/type1010_index.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "fixtures/temp_dir.h"
#include "resources/resource_builders.h"
#include "resources/types/small_type_samples.h"
#include "resources/types/text_type_samples.h"
#include "resources/types/video_type_builders.h"

namespace lumora {
namespace {

std::vector<uint32_t> Sorted(const DWordArray& numbers) {
  std::vector<uint32_t> out(numbers.begin(), numbers.end());
  std::sort(out.begin(), out.end());
  return out;
}

// The numbers an index file lists in its groups, ascending; empty when it does not load.
template <typename Index>
std::vector<uint32_t> GroupedNumbers(const std::string& path) {
  Index index;
  if (!index.Load(path)) return {};
  DWordArray numbers;
  index.groups.GetResourceNumbers(0, numbers);
  return Sorted(numbers);
}

// The numbers of an index file whose main table is one array of them.
template <typename Index>
std::vector<uint32_t> ListedNumbers(const std::string& path) {
  Index index;
  if (!index.Load(path)) return {};
  return Sorted(index.numbers);
}

struct TreeCase {
  const char* form;
  std::unique_ptr<ExerciseResource> (*sample)();
  std::vector<uint32_t> (*listed)(const std::string& index_path);
};

TEST(MixedTreeIndex, BothCoursesKeptOddNamesIgnoredUnreadableFilesFail) {
  using Type5Index = UsageIndex<uint16_t, UsageFlag::kTopByte>;
  const TreeCase cases[] = {
      {"groups", testing::Sample<Type1Resource>, GroupedNumbers<GroupsIndex>},
      {"groups and usage table",
       []() -> std::unique_ptr<ExerciseResource> { return testing::Type5Sample(); },
       GroupedNumbers<Type5Index>},
      {"byte list", []() -> std::unique_ptr<ExerciseResource> { return testing::Type21Sample(); },
       ListedNumbers<Type21Index>},
      {"plain number array",
       []() -> std::unique_ptr<ExerciseResource> {
         return std::make_unique<Type1006Resource>(testing::RichType1006());
       },
       ListedNumbers<PlainNumberIndex>},
      {"six tables",
       []() -> std::unique_ptr<ExerciseResource> {
         return std::make_unique<Type1010Resource>(testing::RichType1010());
       },
       GroupedNumbers<Type1010Index>},
  };
  for (const TreeCase& c : cases) {
    SCOPED_TRACE(c.form);
    testing::TempDir dir;
    const std::string root = dir.path() + "content/";
    auto resource = c.sample();
    const uint32_t type = resource->GetType();
    testing::WriteResource(root, MakeResourceId(0, 400), *resource);
    testing::WriteResource(root, MakeResourceId(1, 400), *resource);
    const std::string readable = testing::WriteResource(root, MakeResourceId(1, 12), *resource);
    for (const char* odd_name : {"r12345.ars", "r00000400.ars"}) {
      std::filesystem::copy_file(readable, FolderOf(readable) + odd_name);
    }
    const std::string index_path = IndexFilePath(dir.path(), type);
    ASSERT_TRUE(BuildTypeIndex(type, root, dir.path()));
    EXPECT_EQ(c.listed(index_path), (std::vector<uint32_t>{12, 400, 400}));

    const std::string unreadable = ResourceFilePath(root, type, MakeResourceId(0, 9));
    dir.Write(unreadable.substr(dir.path().size()), "ARS");
    std::filesystem::remove(index_path);
    EXPECT_FALSE(BuildTypeIndex(type, root, dir.path()));
    EXPECT_EQ(c.listed(index_path), (std::vector<uint32_t>{12, 400, 400}));
  }
}

}  // namespace
}  // namespace lumora
