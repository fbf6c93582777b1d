// The table of exercise types: each row makes objects of its own type, the index files load in
// the order disciplines load them, and the index class of each row reads exactly the file that
// its rebuild writes.
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type_catalog.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "fixtures/archive_bytes.h"
#include "fixtures/sample_suite.h"
#include "fixtures/temp_dir.h"

namespace lumora::testing {
namespace {

TEST(ExerciseTypeTable, EveryRowMakesObjectsOfItsOwnType) {
  ASSERT_EQ(ExerciseTypes().size(), kExerciseTypeCount);
  for (const ExerciseType& row : ExerciseTypes()) {
    SCOPED_TRACE(row.number);
    EXPECT_EQ(FindExerciseType(row.number), &row);
    ASSERT_NE(NewResource(row.number), nullptr);
    EXPECT_EQ(NewResource(row.number)->GetType(), row.number);
    EXPECT_NE(NewTypeIndex(row.number), nullptr);
  }
  for (uint32_t other : {0u, 6u, 11u, 1001u, 1002u, 0xFFFFFFFFu}) {
    EXPECT_FALSE(IsExerciseType(other)) << other;
    EXPECT_EQ(NewResource(other), nullptr) << other;
    EXPECT_EQ(NewTypeIndex(other), nullptr) << other;
    EXPECT_EQ(ExerciseDisplayName(other), nullptr) << other;
  }
}

TEST(ExerciseTypeTable, IndexFilesLoadInTheDisciplinesOrder) {
  EXPECT_THAT(kIndexLoadOrder,
              ::testing::ElementsAre(1, 2, 3, 4, 5, 7, 8, 9, 10, 12, 13, 14, 15, 16, 17, 18, 19, 20,
                                     21, 28, 40, 1010, 1006, 1003, 2000, 1005));
  EXPECT_TRUE(std::is_sorted(kExerciseTypes.begin(), kExerciseTypes.end()));
}

class ExerciseTypeIndexes : public SampleContentSuite {};

// A row whose index class disagrees with its rebuild (a usage value one byte too wide, groups
// where a table is written) leaves bytes unread or runs past the end.
TEST_F(ExerciseTypeIndexes, EachRowsIndexClassReadsWhatItsRebuildWrites) {
  TempDir scratch;
  for (const ExerciseType& row : ExerciseTypes()) {
    SCOPED_TRACE(row.number);
    ASSERT_TRUE(BuildTypeIndex(row.number, root() + "D001/", scratch.path()));
    std::ifstream file(IndexFilePath(scratch.path(), row.number), std::ios::binary);
    const Bytes bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    std::unique_ptr<TypeIndex> index = row.newIndex();
    EXPECT_TRUE(LoadObject(bytes, *index));
    EXPECT_EQ(StoreObject(*index), bytes);
  }
}

}  // namespace
}  // namespace lumora::testing
