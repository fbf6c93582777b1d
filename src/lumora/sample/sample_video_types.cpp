// Videos and what builds on them. Video n (type 1003) has its script, its movie in Q3 and a
// picture in every quality folder, where the questions of type 8 look for them; types 10 and
// 21 carry media of their own.
#include <lumora/platform/archive.h>
#include <lumora/resources/link_record.h>
#include <lumora/resources/types/type10.h>
#include <lumora/resources/types/type1003.h>
#include <lumora/resources/types/type21.h>
#include <lumora/resources/types/type8.h>

#include <span>

#include <lumora/sample/sample_exercise_types.h>
#include <lumora/sample/sample_texts.h>
#include <lumora/sample/sample_type_files.h>

namespace lumora::sample {
namespace {

constexpr uint32_t kVideos = 2;
constexpr uint32_t kParagraphsPerVideo = 3;
constexpr uint32_t kPerType = 2;
constexpr uint32_t kWordsPerPhonetics = 3;

// A video's script is three sentences of the phrase list, starting at its own number.
void BuildType1003(Type1003Resource& r, uint32_t n, uint32_t course) {
  for (uint32_t p = 0; p < kParagraphsPerVideo; ++p) {
    AddText(r.script.paragraphs, SentenceAt(n + p).text);
  }
  r.video = TypeMedium(kMediaVideo, Type1003Resource::kType, n, course);
  r.title = PlainText(n == 1 ? u"En la estación" : u"Un día en la playa");
  r.picture = TypeMedium(kMediaPicture, Type1003Resource::kType, n, course);
}

// A link to video `number`: at resource level with paragraph 0, from a question with the
// paragraph it asks about.
Record16 VideoLink(uint32_t number, uint16_t paragraph) {
  Record16 link;
  EncodeU16(&link.bytes[0], kVideoLinkKind);
  EncodeU16(&link.bytes[8], static_cast<uint16_t>(Type1003Resource::kType));
  EncodeU16(&link.bytes[10], paragraph);
  EncodeU32(&link.bytes[12], number);
  return link;
}

constexpr uint32_t kMissingParagraphResource = 3;
constexpr uint16_t kMissingParagraph = 9;

// Video Questions: one question per paragraph of its video, each linking to that paragraph,
// with the right answer first and a wrong one second. A `broken` one names paragraph 9 in its
// last question instead.
void AddQuestions(Type8Resource& r, uint32_t video, bool broken) {
  for (uint16_t p = 1; p <= kParagraphsPerVideo; ++p) {
    VideoQuestion& item = r.items.AddNew();
    const bool missing = broken && p == kParagraphsPerVideo;
    SetMarked(item.question, InstructionAt(p).text);
    item.question.records16.Add(VideoLink(video, missing ? kMissingParagraph : p));
    AddText(item.firstTexts, SentenceAt(video + p - 1).english);
    AddText(item.secondTexts, SentenceAt(video + p).english);
  }
}

// Deliberate problem: resource 3 asks about video 1 but its last question names paragraph 9,
// which that three-paragraph video does not have, so the verification reports "Paragraph n°9
// of video 1 does not exist".
void BuildType8(Type8Resource& r, uint32_t n) {
  const uint32_t video = n == kMissingParagraphResource ? 1 : n;
  r.groupKey = static_cast<uint8_t>(n);
  r.records.Add(VideoLink(video, 0));
  AddQuestions(r, video, n == kMissingParagraphResource);
}

uint32_t ItemMediumNumber(uint32_t n, uint32_t i) { return n * 10 + i; }

// Phonetics: each word with the Flash video of a mouth saying it.
void BuildType10(Type10Resource& r, uint32_t n, uint32_t course) {
  r.groupKey = static_cast<uint8_t>(n);
  SetMarked(r.instruction, InstructionAt(0).text);
  for (uint32_t w = 0; w < kWordsPerPhonetics; ++w) {
    TextWithMedia& word = r.words.AddNew();
    SetMarked(word.text, WordAt(n + w).text);
    word.media = TypeMedium(kMediaVideo, Type10Resource::kType, ItemMediumNumber(n, w), course);
  }
}

// Riddle: the clues are pictures; the two leading values file it in the type's index.
void BuildType21(Type21Resource& r, uint32_t n) {
  r.firstValue = static_cast<uint8_t>(n);
  r.secondValue = 1;
  r.title = PlainText(u"Adivinanza");
  SetMarked(r.riddle, u"Tengo hojas pero no soy un libro. ¿Qué soy?");
  SetMarked(r.answer, WordAt(5).text);
  for (uint32_t c = 0; c < 2; ++c) {
    TextWithMedia& clue = r.clues.AddNew();
    SetMarked(clue.text, WordAt(n + c).text);
    clue.media = TypeMedium(kMediaPicture, Type21Resource::kType, ItemMediumNumber(n, c));
  }
}

// One picture more than the clues show, as delivered.
bool WriteClueMedia(const std::string& root, std::string* error) {
  for (uint32_t n = 1; n <= kPerType; ++n) {
    for (uint32_t i = 0; i < 3; ++i) {
      if (!WriteTypeMedium(root, Type21Resource::kType, 'p', ItemMediumNumber(n, i), ".swf", {1},
                           error)) {
        return false;
      }
    }
  }
  return true;
}

}  // namespace

bool WriteVideoTypes(const std::string& root, std::string* error) {
  for (uint32_t n = 1; n <= kVideos; ++n) {
    if (!WriteVideo(root, kTypeCourse, n, error)) return false;
  }
  for (uint32_t n = 1; n <= kPerType; ++n) {
    if (!WritePhonetics(root, kTypeCourse, n, error)) return false;
  }
  return StoreNumbered<Type8Resource>(root, kMissingParagraphResource, BuildType8, error) &&
         StoreNumbered<Type21Resource>(root, kPerType, BuildType21, error) &&
         WriteClueMedia(root, error);
}

bool WriteVideo(const std::string& root, uint32_t course, uint32_t number, std::string* error) {
  Type1003Resource video;
  BuildType1003(video, number, course);
  const uint32_t type = Type1003Resource::kType;
  return StoreResourceFile(root, MakeResourceId(course, number), video, error) &&
         WriteTypeMedium(root, type, 'v', number, ".mpg", {3}, error, course) &&
         WriteTypeMedium(root, type, 'p', number, ".swf", {1, 2, 3}, error, course);
}

bool WriteVideoQuestions(const std::string& root, uint32_t course, uint32_t number,
                         std::span<const uint32_t> videos, std::string* error) {
  Type8Resource questions;
  questions.groupKey = 1;
  for (uint32_t video : videos) questions.records.Add(VideoLink(video, 0));
  AddQuestions(questions, videos.front(), false);
  return StoreResourceFile(root, MakeResourceId(course, number), questions, error);
}

bool WritePhonetics(const std::string& root, uint32_t course, uint32_t number, std::string* error) {
  Type10Resource phonetics;
  BuildType10(phonetics, number, course);
  if (!StoreResourceFile(root, MakeResourceId(course, number), phonetics, error)) return false;
  for (uint32_t w = 0; w < kWordsPerPhonetics; ++w) {
    if (!WriteTypeMedium(root, Type10Resource::kType, 'v', ItemMediumNumber(number, w), ".swf", {1},
                         error, course)) {
      return false;
    }
  }
  return true;
}

}  // namespace lumora::sample
