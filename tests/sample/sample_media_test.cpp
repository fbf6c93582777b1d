#include <lumora/sample/sample_media.h>

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "fixtures/sample_suite.h"
#include "sample/swf_reading.h"

namespace lumora::sample {
namespace {

using testing::ReadSwf;
using testing::SampleContentSuite;
using testing::SwfRead;

constexpr uint16_t kDefineShape = 2, kDefineSound = 14;

// What a file of the sample holds: "picture", "tone", "clip" (both), or "bytes" when it is no
// Flash movie.
std::string KindOf(const std::string& bytes) {
  const SwfRead swf = ReadSwf(bytes);
  if (swf.signature != "FWS" || swf.fileLength != bytes.size()) return "bytes";
  bool shape = false, sound = false;
  for (const auto& tag : swf.tags) {
    shape |= tag.code == kDefineShape;
    sound |= tag.code == kDefineSound;
  }
  return shape && sound ? "clip" : shape ? "picture" : sound ? "tone" : "empty movie";
}

std::string WholeFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

class SampleMedia : public SampleContentSuite {};

// Every place the sample writes Flash media: elements, the description, the glossary's word
// sounds, the grammar's point pictures and the videos some types deliver as Flash.
TEST_F(SampleMedia, FlashMediaArePicturesTonesOrClipsAfterTheirKind) {
  for (const auto& [path, kind] : {
           std::pair{"D001/C0001/r0001005/Q1/p0000001.swf", "picture"},
           {"D001/C0001/r0001005/Q2/s0000002.swf", "tone"},
           {"D001/C0000/r0002000/Q1/p0000010.swf", "picture"},
           {"D001/C0000/r0001001/Q1/000/01.swf", "tone"},
           {"D001/C0000/r0001002/Q1/002/01.swf", "picture"},
           {"D001/C0001/r0000010/Q1/v0000010.swf", "clip"},
           {"D001/C0001/r0000040/Q1/v0000010.mpg", "bytes"},
       }) {
    EXPECT_EQ(KindOf(WholeFile(root() + path)), kind) << path;
  }
}

TEST(MediumBytes, OnlyFlashFilesAreMovies) {
  EXPECT_EQ(KindOf(MediumBytes('v', 10, ".swf")), "clip");
  EXPECT_EQ(MediumBytes('v', 10, ".avi"), "sample v0000010.avi\n");
}

}  // namespace
}  // namespace lumora::sample
