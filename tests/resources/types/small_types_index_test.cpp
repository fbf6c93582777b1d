// Index rebuilds and usage flags of types 5, 9, 10, 14, 19, 20, 21 and 28.
#include <lumora/resources/index_forms.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type21_index.h>
#include <lumora/resources/type_catalog.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "fixtures/temp_dir.h"
#include "resources/index_bytes.h"
#include "resources/resource_builders.h"
#include "resources/types/small_type_samples.h"

namespace lumora {
namespace {

std::vector<uint32_t> Sorted(const DWordArray& numbers) {
  std::vector<uint32_t> out(numbers.begin(), numbers.end());
  std::sort(out.begin(), out.end());
  return out;
}

// Every number the rebuilt index of `type` lists, in ascending order.
std::vector<uint32_t> ListedNumbers(uint32_t type, const std::string& index_folder) {
  auto index = NewTypeIndex(type);
  if (!index->Load(IndexFilePath(index_folder, type))) return {};
  DWordArray numbers;
  if (auto* groups = dynamic_cast<GroupsIndex*>(index.get())) {
    groups->groups.GetResourceNumbers(0, numbers);
  } else {
    numbers = dynamic_cast<Type21Index&>(*index).numbers;
  }
  return Sorted(numbers);
}

// Two courses, a name that is not seven digits, then an unreadable file: the rebuild lists
// exactly the resources it could read, and still writes the index when one fails.
TEST(SmallTypeIndexes, RebuildListsBothCoursesSkipsOddNamesAndSurvivesBadFiles) {
  for (auto& sample : testing::SmallTypeSamples()) {
    const uint32_t type = sample->GetType();
    SCOPED_TRACE(type);
    testing::TempDir dir;
    const std::string root = dir.path() + "content/";
    testing::WriteResource(root, MakeResourceId(1, 291), *sample);
    testing::WriteResource(root, MakeResourceId(2, 17), *sample);
    const std::string odd = ResourceFilePath(root, type, MakeResourceId(1, 5));
    dir.Write(odd.substr(dir.path().size(), odd.size() - dir.path().size() - 12) + "r12345.ars",
              "ignored");
    ASSERT_TRUE(BuildTypeIndex(type, root, dir.path()));
    EXPECT_EQ(ListedNumbers(type, dir.path()), (std::vector<uint32_t>{17, 291}));

    const std::string bad = ResourceFilePath(root, type, MakeResourceId(2, 3));
    dir.Write(bad.substr(dir.path().size()), "ARS");
    EXPECT_FALSE(BuildTypeIndex(type, root, dir.path()));
    EXPECT_EQ(ListedNumbers(type, dir.path()), (std::vector<uint32_t>{17, 291}));
  }
}

TEST(SmallTypeIndexes, GroupedUnderTheKeyByteOrTheFirstValue) {
  testing::TempDir dir;
  auto t20 = testing::Type20Sample();
  testing::WriteResource(dir.path(), MakeResourceId(1, 4), *t20);
  t20->groupKey = 2;
  testing::WriteResource(dir.path(), MakeResourceId(1, 6), *t20);
  ASSERT_TRUE(BuildTypeIndex(20, dir.path(), dir.path()));
  GroupsIndex groups;
  ASSERT_TRUE(groups.Load(IndexFilePath(dir.path(), 20)));
  DWordArray numbers;
  groups.groups.GetResourceNumbers(8, numbers);
  EXPECT_EQ(Sorted(numbers), (std::vector<uint32_t>{4}));
  groups.groups.GetResourceNumbers(2, numbers);
  EXPECT_EQ(Sorted(numbers), (std::vector<uint32_t>{6}));

  auto t21 = testing::Type21Sample();
  testing::WriteResource(dir.path(), MakeResourceId(1, 4), *t21);
  t21->firstValue = 0xAB;
  testing::WriteResource(dir.path(), MakeResourceId(1, 6), *t21);
  ASSERT_TRUE(BuildTypeIndex(21, dir.path(), dir.path()));
  using testing::U32;
  const testing::Bytes expected =
      testing::Concat({U32(1), U32(2), U32(0), {9, 0xAB}, U32(4), U32(2), U32(0), U32(4), U32(6)});
  EXPECT_EQ(dir.Read("r0000021.ari"), std::string(expected.begin(), expected.end()));
}

// Types 5 and 28 flag a resource that has sentences; types 9 and 21 flag every number.
TEST(SmallTypeIndexes, RebuiltUsageValuesFlagResourcesWithSentences) {
  testing::TempDir dir;
  Type5Resource empty5;
  Type28Resource empty28;
  Type9Resource empty9;
  for (auto* r : std::initializer_list<ExerciseResource*>{&empty5, &empty28, &empty9}) {
    testing::WriteResource(dir.path(), MakeResourceId(1, 1), *r);
  }
  testing::WriteResource(dir.path(), MakeResourceId(1, 2), *testing::Type5Sample());
  testing::WriteResource(dir.path(), MakeResourceId(1, 2), *testing::Type28Sample());
  testing::WriteResource(dir.path(), MakeResourceId(1, 2), *testing::Type9Sample());
  for (uint32_t type : {5u, 9u, 28u}) {
    SCOPED_TRACE(type);
    ASSERT_TRUE(BuildTypeIndex(type, dir.path(), dir.path()));
    auto index = NewTypeIndex(type);
    ASSERT_TRUE(index->Load(IndexFilePath(dir.path(), type)));
    EXPECT_EQ(index->GetResourceFlag(1), type == 9);
    EXPECT_TRUE(index->GetResourceFlag(2));
    EXPECT_EQ(index->GetResourceFlag(3), type == 9);  // absent
  }
  EXPECT_TRUE(NewTypeIndex(21)->GetResourceFlag(12345));
}

}  // namespace
}  // namespace lumora
