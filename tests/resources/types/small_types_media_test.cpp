// Media resolution, export copying and verification of types 5, 9, 10, 14, 19, 20, 21, 28.
#include <lumora/resources/resource_files.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>

#include <filesystem>

#include "fixtures/temp_dir.h"
#include "resources/resource_builders.h"
#include "resources/types/small_type_samples.h"

namespace lumora {
namespace {

using testing::kSampleId;

ByteArray Folders(std::initializer_list<uint8_t> qs) {
  ByteArray folders;
  for (uint8_t q : qs) folders.Add(q);
  return folders;
}

class SmallTypeMedia : public ::testing::Test {
 protected:
  // Creates root + "C0001/" + relative.
  void Put(const std::string& relative) { dir_.Write("C0001/" + relative, "m"); }
  std::string Path(const std::string& relative) const { return root() + "C0001/" + relative; }
  const std::string& root() const { return dir_.path(); }

  // Verifies with `qs`, expecting `report`; the answer must be whether it is empty.
  void ExpectReport(ExerciseResource& resource, std::initializer_list<uint8_t> qs,
                    const std::string& expected) {
    std::string report = "old";
    EXPECT_EQ(resource.VerifyMedia(root(), Folders(qs), report, kSampleId), expected.empty());
    EXPECT_EQ(report, expected);
  }

  testing::TempDir dir_;
};

// Item number printed for the samples: kSampleId in decimal.
const std::string kItem = "1048867";

TEST_F(SmallTypeMedia, Type5ReportsNoSentencesLostSoundsAndMissingCopies) {
  Type5Resource empty;
  ExpectReport(empty, {1}, "\t\tNo sentences found for Item n\xB0" + kItem + "!\n");

  auto resource = testing::Type5Sample();  // sounds s0000011 and s0000012
  resource->sentences.AddNew().media = MediaRef(kMediaSound, 5, 0x0010000D);
  Put("r0000005/Q1/s0000011.swf");
  Put("r0000005/Q2/s0000011.swf");
  Put("r0000005/Q1/s0000012.swf");
  ExpectReport(*resource, {1, 2},
               "\t\tFile not found: " + Path("r0000005/Q2/s0000012.swf") + "\n" +
                   "\t\tFile not found: " + Path("r0000005/Q1/s0000013.swf") + "!\n");
  Put("r0000005/Q2/s0000012.swf");
  Put("r0000005/Q2/s0000013.swf");
  ExpectReport(*resource, {2}, "");
}

TEST_F(SmallTypeMedia, Type28ReportsNoSentencesAndLostSounds) {
  Type28Resource empty;
  ExpectReport(empty, {1}, "\t\tNo sentences found for Item n\xB0" + kItem + "!\n");

  auto resource = testing::Type28Sample();  // sounds s0000041 and s0000042
  Put("r0000028/Q3/s0000041.swf");          // found through the fallback order
  ExpectReport(*resource, {1}, "\t\tFile not found: " + Path("r0000028/Q1/s0000042.swf") + "!\n");
}

TEST_F(SmallTypeMedia, Type9ReportsALostPictureOnceAndMissingCopies) {
  auto resource = testing::Type9Sample();  // picture p0000291
  ExpectReport(*resource, {1, 3}, "\t\tMedia not found for Item n\xB0" + kItem + "!\n");
  Put("r0000009/Q1/p0000291.swf");
  ExpectReport(*resource, {1, 3},
               "\t\tFile not found : " + Path("r0000009/Q3/p0000291.swf") + "\n");
  ExpectReport(*resource, {1}, "");
}

TEST_F(SmallTypeMedia, Type10ReportsNoWordsLostVideosAndMissingLinkedFiles) {
  Type10Resource empty;
  ExpectReport(empty, {1}, "\t\tNo words found for Item n\xB0" + kItem + "!\n");

  auto resource = testing::Type10Sample();  // videos v0000021, v0000022; a link to 1003/77
  resource->records.Add(testing::LinkTo(5, 8));
  Put("r0000010/Q2/v0000021.swf");
  Put("r0000005/r0000008.ars");
  ExpectReport(*resource, {1},
               "\t\tFile not found: " + Path("r0000010/Q1/v0000022.mpg") + "!\n" +
                   "\t\tFile not found: " + Path("r0001003/r0000077.ars") + "!\n");
}

TEST_F(SmallTypeMedia, Type14ReportsLostMediaOnly) {
  auto resource = testing::Type14Sample();  // sound and picture 291
  Put("r0000014/Q1/s0000291.swf");
  ExpectReport(*resource, {1}, "\t\tFile not found: " + Path("r0000014/Q1/p0000291.swf") + "!\n");
  Type14Resource none;
  ExpectReport(none, {1}, "");
}

TEST_F(SmallTypeMedia, Type19ReportsPictureLinkedFilesAndUnknownPositions) {
  auto resource = testing::Type19Sample();  // positions 2 and 1 of two names
  resource->records.Add(testing::LinkTo(5, 8));
  resource->records.Add(testing::LinkTo(5, 9));
  resource->positions.Add(0);
  resource->positions.Add(3);
  Put("r0000005/r0000008.ars");  // not a resource file
  Type5Resource readable;
  testing::WriteResource(root(), 0x00100009, readable);
  ExpectReport(*resource, {1},
               "\t\tFile not found: " + Path("r0000019/Q3/p0000291.swf") + "!\n" +
                   "\t\tFile not found: " + Path("r0001003/r0000077.ars") + "!\n" +
                   "\t\tCan not open file: " + Path("r0000005/r0000008.ars") + "!\n" +
                   "\t\tPositon Id: 0 not found for Item : " + kItem + "!\n" +
                   "\t\tPositon Id: 3 not found for Item : " + kItem + "!\n");

  auto clean = testing::Type19Sample();
  clean->records.RemoveAll();
  Put("r0000019/Q3/p0000291.swf");
  ExpectReport(*clean, {1}, "");
}

TEST_F(SmallTypeMedia, Type20ReportsNoPiecesAndEveryFolderLackingACopy) {
  Type20Resource empty;
  ExpectReport(empty, {1}, "\t\tNo media found for Item n\xB0" + kItem + "!\n");

  auto resource = testing::Type20Sample();  // pictures p0000031 and p0000032
  Put("r0000020/Q1/p0000031.swf");
  Put("r0000020/Q2/p0000031.swf");
  Put("r0000020/Q1/p0000032.swf");
  ExpectReport(*resource, {1, 2}, "\t\tFile not found: " + Path("r0000020/Q2/p0000032.swf") + "\n");
}

TEST_F(SmallTypeMedia, Type21ReportsNoCluesLostCluesAndMissingLinkedFiles) {
  Type21Resource empty;
  ExpectReport(empty, {1}, "\t\tNo Clues found for Item: " + kItem + "!\n");

  auto resource = testing::Type21Sample();  // clue sound 291; a link to 1003/77
  ExpectReport(*resource, {2},
               "\t\tFile noy found: " + Path("r0000021/Q2/s0000291.swf") + "!\n" +
                   "\t\tFile not found: " + Path("r0001003/r0000077.ars") + "!\n");
}

// A video counts as copied when Q3 holds it, whichever quality folders are listed.
TEST_F(SmallTypeMedia, VideoCopiesAreExpectedInQ3Only) {
  Type20Resource resource;
  resource.pieces.AddNew().media = MediaRef(kMediaVideo, 20, kSampleId);
  Put("r0000020/Q1/v0000291.avi");
  ExpectReport(resource, {1, 2}, "\t\tFile not found: " + Path("r0000020/Q3/v0000291.mpg") + "\n");
  Put("r0000020/Q3/v0000291.avi");
  ExpectReport(resource, {1, 2}, "");
}

TEST_F(SmallTypeMedia, ResolveBuildsEveryMediumPath) {
  for (const char* file :
       {"r0000005/Q1/s0000011.swf", "r0000009/Q1/p0000291.swf", "r0000010/Q1/v0000022.avi",
        "r0000014/Q1/p0000291.swf", "r0000020/Q1/p0000032.swf", "r0000021/Q1/s0000291.swf",
        "r0000028/Q1/s0000042.swf"}) {
    Put(file);
  }
  ContentRequest request;
  request.pathKind = kPathUrl;
  request.mediaOrder = 1;
  auto samples = testing::SmallTypeSamples();
  for (auto& sample : samples) sample->ResolveMedia(request, root(), "u/");
  const std::string url = "u/C0001/";
  auto& t5 = static_cast<Type5Resource&>(*samples[0]);
  EXPECT_EQ(t5.sentences[0].media.path, url + "r0000005/Q1/s0000011.swf");
  EXPECT_EQ(t5.sentences[1].media.path, "");
  EXPECT_EQ(static_cast<Type9Resource&>(*samples[1]).media.path, url + "r0000009/Q1/p0000291.swf");
  EXPECT_EQ(static_cast<Type10Resource&>(*samples[2]).words[1].media.path,
            url + "r0000010/Q1/v0000022.avi");
  EXPECT_EQ(static_cast<Type14Resource&>(*samples[3]).media[1].path,
            url + "r0000014/Q1/p0000291.swf");
  EXPECT_EQ(static_cast<Type20Resource&>(*samples[5]).pieces[1].media.path,
            url + "r0000020/Q1/p0000032.swf");
  EXPECT_EQ(static_cast<Type21Resource&>(*samples[6]).clues[0].media.path,
            url + "r0000021/Q1/s0000291.swf");
  EXPECT_EQ(static_cast<Type28Resource&>(*samples[7]).sentences[1].media.path,
            url + "r0000028/Q1/s0000042.swf");
}

TEST_F(SmallTypeMedia, CopyFillsTheDestinationTypeFolder) {
  for (const char* file :
       {"r0000005/Q1/s0000011.swf", "r0000009/Q1/p0000291.swf", "r0000010/Q1/v0000022.avi",
        "r0000014/Q1/p0000291.swf", "r0000020/Q1/p0000032.swf", "r0000021/Q1/s0000291.swf",
        "r0000028/Q1/s0000042.swf"}) {
    Put(file);
  }
  testing::TempDir destination;
  for (auto& sample : testing::SmallTypeSamples()) {
    EXPECT_TRUE(sample->CopyMedia(destination.path(), 0x00200005, Folders({1}), root()))
        << sample->GetType();
  }
  const std::string to = destination.path() + "C0002/";
  for (const char* file :
       {"r0000005/Q1/s0000011.swf", "r0000009/Q1/p0000291.swf", "r0000010/Q3/v0000022.avi",
        "r0000014/Q1/p0000291.swf", "r0000020/Q1/p0000032.swf"}) {
    EXPECT_TRUE(FileExists(to + file)) << file;
  }
  // Types 19, 21 and 28 copy nothing for an export.
  EXPECT_FALSE(FolderExists(to + "r0000021/"));
  EXPECT_FALSE(FolderExists(to + "r0000028/"));

  // Without items there is nothing to export.
  Type5Resource t5;
  Type10Resource t10;
  Type20Resource t20;
  for (ExerciseResource* empty : std::initializer_list<ExerciseResource*>{&t5, &t10, &t20}) {
    EXPECT_FALSE(empty->CopyMedia(destination.path(), 0x00200005, Folders({1}), root()));
  }
}

}  // namespace
}  // namespace lumora
