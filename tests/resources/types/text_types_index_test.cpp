// Index rebuilds of the text-only exercise types over a small content tree.
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>

#include "fixtures/temp_dir.h"
#include "resources/index_bytes.h"
#include "resources/resource_builders.h"
#include "resources/types/text_type_samples.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::Concat;
using testing::Groups;
using testing::UsageTable;

// A resource under `key`: a sample has an entry in every list, an empty one has none.
template <typename Resource>
std::unique_ptr<ExerciseResource> Make(uint8_t key, bool filled) {
  auto resource = std::make_unique<Resource>();
  if (filled) testing::FillSample(*resource);
  resource->groupKey = key;
  return resource;
}

struct IndexCase {
  uint32_t type;
  std::unique_ptr<ExerciseResource> (*make)(uint8_t key, bool filled);
  uint32_t usage_width;  // bytes per usage value; 0 for a groups-only index
  bool flagged;          // GetResourceFlag reads the usage value instead of answering true
};

const IndexCase kCases[] = {
    {1, Make<Type1Resource>, 0, false},   {2, Make<Type2Resource>, 2, false},
    {3, Make<Type3Resource>, 1, false},   {4, Make<Type4Resource>, 0, false},
    {7, Make<Type7Resource>, 2, false},   {12, Make<Type12Resource>, 1, true},
    {13, Make<Type13Resource>, 1, true},  {15, Make<Type15Resource>, 1, true},
    {16, Make<Type16Resource>, 0, false}, {17, Make<Type17Resource>, 0, false},
    {18, Make<Type18Resource>, 0, false},
};

// Two courses: number 3 in both, an empty resource 1 in the first, and in the second a file
// whose name has five digits (not a resource) and an unreadable resource 9. The index lists
// 1 and both 3s, keys in the order met, and a usage value of 1 for the resources with entries.
TEST(TextTypeIndex, RebuildListsEveryReadableResourceOfTheTree) {
  for (const IndexCase& c : kCases) {
    SCOPED_TRACE(c.type);
    testing::TempDir dir;
    const std::string root = dir.path() + "content/";
    testing::WriteResource(root, 0x00100003, *c.make(5, true));
    testing::WriteResource(root, 0x00100001, *c.make(2, false));
    testing::WriteResource(root, 0x00200003, *c.make(5, true));
    const std::string misnamed = testing::WriteResource(root, 0x00200004, *c.make(9, true));
    std::rename(misnamed.c_str(), (FolderOf(misnamed) + "r12345.ars").c_str());
    const std::string unreadable = ResourceFilePath(root, c.type, 0x00200009);
    dir.Write(unreadable.substr(dir.path().size()), "ARS");

    EXPECT_FALSE(BuildTypeIndex(c.type, root, dir.path()));
    Bytes expected = Groups(0, {{2, {1}}, {5, {3, 3}}});
    if (c.usage_width != 0) {
      expected = Concat({expected, UsageTable({1, 3, 3}, c.usage_width, {0, 1, 1})});
    }
    const std::string stored = dir.Read(IndexFilePath("", c.type));
    EXPECT_EQ(Bytes(stored.begin(), stored.end()), expected);

    auto index = NewTypeIndex(c.type);
    ASSERT_TRUE(index->Load(IndexFilePath(dir.path(), c.type)));
    EXPECT_EQ(index->GetResourceFlag(1), !c.flagged);
    EXPECT_TRUE(index->GetResourceFlag(3));

    std::remove(unreadable.c_str());
    EXPECT_TRUE(BuildTypeIndex(c.type, root, dir.path()));
    EXPECT_FALSE(BuildTypeIndex(c.type, root, dir.path() + "missing/"));
  }
}

}  // namespace
}  // namespace lumora
