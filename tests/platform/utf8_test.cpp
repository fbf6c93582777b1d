#include <lumora/platform/utf8.h>

#include <gtest/gtest.h>

#include <string>

namespace lumora {
namespace {

TEST(Utf8, WellFormedOnlyWhenEverySequenceIsComplete) {
  const std::string wellFormed[] = {"", "plain", std::string("a\0b", 3), "é", "日本", "😀"};
  for (const std::string& text : wellFormed) EXPECT_TRUE(IsUtf8(text)) << text;
  const std::string illFormed[] = {
      "caf\xE9",           // a code-page byte
      "\x80",              // a stray continuation byte
      "\xC0\x80",          // an overlong zero
      "\xED\xA0\x80",      // a surrogate
      "\xE6\x97",          // cut short at the end
      "\xF4\x90\x80\x80",  // beyond U+10FFFF
  };
  for (const std::string& text : illFormed) EXPECT_FALSE(IsUtf8(text)) << text;
}

}  // namespace
}  // namespace lumora
