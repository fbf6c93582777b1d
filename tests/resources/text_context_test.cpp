#include <lumora/resources/text_context.h>

#include <gtest/gtest.h>

#include "fixtures/archive_bytes.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::Concat;
using testing::U32;

TEST(TextContext, StoredFormRoundTripsWithoutTheUserField) {
  TextContext context(0xA4020500, -1, "note");
  context.userData = 0x55;
  const Bytes bytes = testing::StoreObject(context);
  EXPECT_EQ(bytes, Concat({U32(0xA4020500), U32(0xFFFFFFFF), {4, 'n', 'o', 't', 'e'}}));

  TextContext back(0, 3, "old");
  ASSERT_TRUE(testing::LoadObject(bytes, back));
  EXPECT_EQ(back.code, ContextCode(0xA4020500));
  EXPECT_EQ(back.wordIndex, -1);
  EXPECT_EQ(back.note, "note");
  for (size_t cut = 0; cut < bytes.size(); ++cut) {
    EXPECT_FALSE(testing::LoadObject(Bytes(bytes.begin(), bytes.begin() + cut), back)) << cut;
  }
}

TEST(TextContext, CloneCopiesAllButTheUserField) {
  TextContext context(0x40000700, 42, "Frage");
  context.userData = 9;
  const std::unique_ptr<TextContext> copy = context.Clone();
  EXPECT_EQ(copy->code, context.code);
  EXPECT_EQ(copy->wordIndex, 42);
  EXPECT_EQ(copy->note, "Frage");
  EXPECT_EQ(copy->userData, 0u);
}

}  // namespace
}  // namespace lumora
