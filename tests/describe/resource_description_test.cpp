// The description of a resource: every exercise type has its fields, a type with a "media" field
// of its own keeps it beside the list of every medium gathered, and a resource that could not be
// read is described by its head and the reason.
#include <lumora/describe/resource_description.h>
#include <lumora/describe/resource_fields.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/type14.h>
#include <lumora/resources/types/type9.h>

#include <gtest/gtest.h>

#include <set>

namespace lumora {
namespace {

TEST(ResourceFields, EveryExerciseTypeHasOneRow) {
  std::multiset<uint32_t> rows;
  for (auto family : {TextTypeFields, MediaTypeFields, VideoTypeFields, ElementTypeFields}) {
    for (const TypeFields& row : family()) rows.insert(row.type);
  }
  for (uint32_t type : kExerciseTypes) EXPECT_EQ(rows.count(type), 1u) << type;
  EXPECT_EQ(rows.size(), kExerciseTypes.size());
}

TEST(ResourceDescription, OwnMediaFieldStaysBesideTheGatheredMedia) {
  Type9Resource picture;
  picture.media = MediaRef(2, 9, 0x100007);
  const Description nine = DescribeResource(picture, 0x100003, 0);
  EXPECT_EQ(nine["media"]["resource"], 0x100007);
  EXPECT_EQ(nine["allMedia"], Description::array({nine["media"]}));

  Type14Resource entries;
  entries.media.Add(std::make_unique<MediaRef>(1, 14, 0x100001));
  entries.media.Add(std::make_unique<MediaRef>(0, 0, 0));
  const Description fourteen = DescribeResource(entries, 0x100002, 0);
  ASSERT_EQ(fourteen["media"].size(), 2u) << "a medium of kind 0 stays in the resource's own list";
  EXPECT_EQ(fourteen["allMedia"], Description::array({fourteen["media"][0]}));
}

TEST(ResourceDescription, HeadSplitsTheIdAndUnreadOnesSayWhy) {
  const Description unread =
      DescribeUnreadResource(5, 0x00300002, "D001/C0003/r0000005/r0000002.ars: caf\xE9");
  EXPECT_EQ(unread.dump(),
            R"({"ok":false,"type":5,"resourceId":3145730,"course":3,"number":2,"allMedia":[],)"
            R"("reason":"D001/C0003/r0000005/r0000002.ars: caf)"
            "\xEF\xBF\xBD\"}");
}

}  // namespace
}  // namespace lumora
