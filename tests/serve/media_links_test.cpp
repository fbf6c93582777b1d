// A medium gains the server's address of its file exactly when its URL, below the discipline's
// URL root, names a file that the media route serves: wherever the medium sits in the document,
// with its name escaped, and never for a URL that climbs out of the root or leaves it by a link.
#include "serve/media_links.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "fixtures/temp_dir.h"

namespace lumora::testing {
namespace {

constexpr char kUrlRoot[] = "http://cdn.test/course/D001/";

nlohmann::ordered_json Medium(const std::string& path) {
  return {{"kind", 2}, {"folder", 5}, {"resource", 10}, {"path", path}};
}

TEST(MediaLinks, OnlyFilesBelowTheRootGainAnAddress) {
  TempDir dir;
  dir.Write("D001/C0001/r0000005/Q1/s0000010.swf", "swf");
  dir.Write("D001/a b%.mp3", "mp3");
  dir.Write("secret.swf", "secret");
  ASSERT_EQ(::symlink((dir.path() + "secret.swf").c_str(), (dir.path() + "D001/out.swf").c_str()),
            0);
  const serve::MediaLinks links({{1, {kUrlRoot, dir.path() + "D001/"}}});
  const std::string root = kUrlRoot;

  const std::pair<std::string, const char*> cases[] = {
      {root + "C0001/r0000005/Q1/s0000010.swf", "/media/d/1/C0001/r0000005/Q1/s0000010.swf"},
      {root + "a%20b%25.mp3", "/media/d/1/a%20b%25.mp3"},
      {root + "C0001/r0000005/Q1/s0000011.swf", nullptr},  // no such file
      {root + "C0001/r0000005/Q1", nullptr},               // a folder
      {root + "../secret.swf", nullptr},
      {root + "%2e%2e/secret.swf", nullptr},
      {root + "C0001/..%2f..%2fsecret.swf", nullptr},
      {root + "out.swf", nullptr},  // a link leading out
      {"http://other.test/course/D001/C0001/r0000005/Q1/s0000010.swf", nullptr},
      {root, nullptr},
      {"", nullptr},
  };
  for (const auto& [path, href] : cases) {
    SCOPED_TRACE(path);
    nlohmann::ordered_json document = {{"media", Medium(path)}};
    links.Add(1, document);
    if (href == nullptr) {
      EXPECT_FALSE(document["media"].contains("href")) << document.dump();
    } else {
      EXPECT_EQ(document["media"]["href"], href);
    }
  }
}

TEST(MediaLinks, EveryMediumOfTheDocumentIsLinked) {
  TempDir dir;
  dir.Write("D001/C0001/r0000005/Q1/s0000010.swf", "swf");
  const serve::MediaLinks links({{1, {kUrlRoot, dir.path() + "D001/"}}});
  const nlohmann::ordered_json medium =
      Medium(std::string(kUrlRoot) + "C0001/r0000005/Q1/s0000010.swf");
  nlohmann::ordered_json document = {
      {"title", {{"text", "media"}}},
      {"sentences", {{{"value", 1}, {"media", medium}}, {{"value", 2}, {"media", medium}}}},
      {"pieces", {{{"element", {{"media", {medium, Medium("")}}}}}}},
      {"media", {medium}}};
  links.Add(1, document);
  const std::string href = "/media/d/1/C0001/r0000005/Q1/s0000010.swf";
  EXPECT_EQ(document["sentences"][0]["media"]["href"], href);
  EXPECT_EQ(document["sentences"][1]["media"]["href"], href);
  EXPECT_EQ(document["pieces"][0]["element"]["media"][0]["href"], href);
  EXPECT_FALSE(document["pieces"][0]["element"]["media"][1].contains("href"));
  EXPECT_EQ(document["media"][0]["href"], href);
  EXPECT_EQ(document["title"], nlohmann::ordered_json({{"text", "media"}}));

  // Another discipline's document is left as it is.
  nlohmann::ordered_json other = {{"media", {medium}}};
  links.Add(2, other);
  EXPECT_FALSE(other["media"][0].contains("href"));
}

}  // namespace
}  // namespace lumora::testing
