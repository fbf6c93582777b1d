#include <lumora/resources/types/type40.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>

#include "fixtures/archive_bytes.h"
#include "fixtures/temp_dir.h"
#include "resources/resource_builders.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::Concat;
using testing::ResourceHead;
using testing::U32;

// Two items; the first has media, both part lists, a part value and flag, and records.
Type40Resource FullResource() {
  Type40Resource resource;
  resource.resourceId = 0x00100123;
  resource.groupKey = 7;
  ExerciseItem& item = testing::AddItem(resource, {0x00100001, 0x00100002}, {0x00100003});
  item.content = *testing::FullElement(u"Question", 0x00100004, u"Frage", 3);
  item.media.Add(std::make_unique<MediaRef>(kMediaVideo, 40, 0x00100123));
  item.records.Add(Record16{{1, 2, 3}});
  item.firstParts[0].value = 0x1234;
  item.firstParts[0].flag = true;
  item.firstParts[0].content = *testing::FullElement(u"Part");
  item.firstParts[0].elements.Add(testing::FullElement(u"Inline", 0x00100005));
  testing::AddItem(resource, {});
  return resource;
}

TEST(Type40Resource, EmptyResourceStoredForm) {
  Type40Resource resource;
  resource.resourceId = 0x00100123;
  resource.groupKey = 9;
  const Bytes expected = Concat({ResourceHead(0x00100123), U32(40), {9}, U32(0)});
  EXPECT_EQ(testing::StoreObject(resource), expected);
  Type40Resource back;
  ASSERT_TRUE(testing::LoadObject(expected, back));
  EXPECT_EQ(back.groupKey, 9);
  EXPECT_TRUE(back.items.empty());
}

TEST(Type40Resource, RoundTripKeepsEveryField) {
  Type40Resource resource = FullResource();
  const Bytes bytes = testing::StoreObject(resource);
  Type40Resource back;
  ASSERT_TRUE(testing::LoadObject(bytes, back));
  EXPECT_EQ(testing::StoreObject(back), bytes);

  ASSERT_EQ(back.items.size(), 2u);
  const ExerciseItem& item = back.items[0];
  EXPECT_EQ(item.content.text.text.view(), u"Question");
  EXPECT_EQ(item.content.firstAttributes[0], 3);
  ASSERT_EQ(item.media.size(), 1u);
  EXPECT_EQ(item.media[0].kind, kMediaVideo);
  EXPECT_EQ(item.records[0].bytes[2], 3);
  ASSERT_EQ(item.firstParts.size(), 1u);
  EXPECT_EQ(item.firstParts[0].value, 0x1234);
  EXPECT_TRUE(item.firstParts[0].flag);
  ASSERT_EQ(item.firstParts[0].elements.size(), 3u);
  EXPECT_EQ(item.firstParts[0].elements[1].reference, 0x00100002u);
  EXPECT_EQ(item.firstParts[0].elements[2].media.resource, 0x00100005u);
  EXPECT_EQ(item.secondParts[0].elements[0].reference, 0x00100003u);
  EXPECT_TRUE(back.items[1].secondParts.empty());
}

TEST(Type40Resource, StoreStampsOwnIdOnContentsAndOneOnPartElements) {
  Type40Resource resource = FullResource();
  Type40Resource back;
  ASSERT_TRUE(testing::LoadObject(testing::StoreObject(resource), back));
  for (const Type40Resource* r : {&resource, &back}) {
    for (auto& item : r->items) {
      EXPECT_EQ(item->content.resourceId, 0x00100123u);
      for (ItemPart* part : item->Parts()) {
        EXPECT_EQ(part->content.resourceId, 0x00100123u);
        for (auto& element : part->elements) EXPECT_EQ(element->resourceId, 1u);
      }
    }
  }
}

TEST(Type40Resource, MalformedFilesFailToLoad) {
  Type40Resource resource = FullResource();
  const Bytes good = testing::StoreObject(resource);
  for (size_t cut = 0; cut < good.size(); ++cut) {
    Type40Resource back;
    EXPECT_FALSE(testing::LoadObject(Bytes(good.begin(), good.begin() + cut), back)) << cut;
  }

  testing::TempDir dir;
  auto write = [&](Bytes bytes) {
    return dir.Write("r.ars", std::string(bytes.begin(), bytes.end()));
  };
  Bytes wrong_magic = good;
  wrong_magic[3] = 1;
  Bytes wrong_tag = Concat({ResourceHead(1), U32(5), {9}, U32(0)});
  Bytes huge_count = Concat({ResourceHead(1), U32(40), {9}, U32(0x7FFFFFFF)});
  Bytes truncated(good.begin(), good.begin() + good.size() / 2);
  for (const Bytes& bytes : {wrong_magic, wrong_tag, huge_count, truncated}) {
    Type40Resource back;
    EXPECT_FALSE(LoadArchiveFile(write(bytes), false, back));
  }
  Type40Resource back;
  EXPECT_TRUE(LoadArchiveFile(write(good), false, back));
  EXPECT_FALSE(LoadArchiveFile(dir.path() + "missing.ars", false, back));
}

}  // namespace
}  // namespace lumora
