#include "resources/types/small_type_samples.h"

#include <lumora/platform/archive.h>
#include <lumora/resources/resource_id.h>

namespace lumora::testing {

MarkedText SmallSampleText(const std::u16string& text) {
  MarkedText marked(1250, WideText(text));
  marked.records16.Add(Record16{{1, 2, 3}});
  marked.records24.Add(Record24{{4, 5, 6}});
  return marked;
}

Record16 LinkTo(uint32_t type, uint32_t number) {
  Record16 link{{1}};
  EncodeU32(link.bytes.data() + 8, type);
  EncodeU32(link.bytes.data() + 12, number);
  return link;
}

namespace {

template <typename T>
std::unique_ptr<T> WithHead() {
  auto resource = std::make_unique<T>();
  resource->resourceId = kSampleId;
  resource->records.Add(LinkTo(1003, 77));
  return resource;
}

void AddTexts(TextList& list, std::initializer_list<const char16_t*> texts) {
  for (const char16_t* text : texts) list.Add(std::make_unique<MarkedText>(SmallSampleText(text)));
}

}  // namespace

std::unique_ptr<Type5Resource> Type5Sample() {
  auto resource = WithHead<Type5Resource>();
  resource->groupKey = 3;
  resource->title = CodePageText(1252, WideText(u"Dictée"));
  for (uint32_t n : {1u, 2u}) {
    DictationSentence& sentence = resource->sentences.AddNew();
    sentence.value = 0x01020300 + n;
    AddTexts(sentence.texts, {u"Il pleut.", u"Il fait beau."});
    sentence.media = MediaRef(kMediaSound, 5, MakeResourceId(1, 10 + n));
  }
  return resource;
}

std::unique_ptr<Type9Resource> Type9Sample() {
  auto resource = WithHead<Type9Resource>();
  resource->groupKey = 4;
  AddTexts(resource->words, {u"chat", u"chien"});
  resource->strings.items = {"cat", "dog"};
  resource->media = MediaRef(kMediaPicture, 9, kSampleId);
  return resource;
}

std::unique_ptr<Type10Resource> Type10Sample() {
  auto resource = WithHead<Type10Resource>();
  resource->groupKey = 5;
  resource->instruction = SmallSampleText(u"Écoutez");
  for (uint32_t n : {1u, 2u}) {
    TextWithMedia& word = resource->words.AddNew();
    word.text = SmallSampleText(u"mot");
    word.media = MediaRef(kMediaVideo, 10, MakeResourceId(1, 20 + n));
  }
  return resource;
}

std::unique_ptr<Type14Resource> Type14Sample() {
  auto resource = WithHead<Type14Resource>();
  resource->value = 0x0A0B0C0D;
  resource->firstWord = 0x1122;
  resource->secondWord = 0x3344;
  resource->groupKey = 6;
  resource->firstTitle = CodePageText(1252, WideText(u"Un"));
  resource->secondTitle = CodePageText(1251, WideText(u"Два"));
  resource->numbers.Add(7);
  resource->numbers.Add(8);
  uint32_t value = 1;
  for (auto* list : {&resource->firstEntries, &resource->secondEntries, &resource->thirdEntries}) {
    Type14Entry& entry = list->AddNew();
    entry.value = value++;
    entry.text = SmallSampleText(u"entrée");
  }
  resource->media.Add(std::make_unique<MediaRef>(kMediaSound, 14, kSampleId));
  resource->media.Add(std::make_unique<MediaRef>(kMediaPicture, 14, kSampleId));
  resource->closingText = SmallSampleText(u"Fin");
  return resource;
}

std::unique_ptr<Type19Resource> Type19Sample() {
  auto resource = WithHead<Type19Resource>();
  resource->firstValue = 0x11111111;
  resource->secondValue = 0x22222222;
  resource->groupKey = 7;
  resource->positions.Add(2);
  resource->positions.Add(1);
  resource->names.items = {"nez", "bouche"};
  return resource;
}

std::unique_ptr<Type20Resource> Type20Sample() {
  auto resource = WithHead<Type20Resource>();
  resource->value = 0x05060708;
  resource->groupKey = 8;
  for (uint32_t n : {1u, 2u}) {
    PatchWorkPiece& piece = resource->pieces.AddNew();
    piece.media = MediaRef(kMediaPicture, 20, MakeResourceId(1, 30 + n));
    piece.text = SmallSampleText(u"pièce");
  }
  return resource;
}

std::unique_ptr<Type21Resource> Type21Sample() {
  auto resource = WithHead<Type21Resource>();
  resource->firstValue = 9;
  resource->secondValue = 0xFE;
  resource->title = CodePageText(1252, WideText(u"Devinette"));
  resource->riddle = SmallSampleText(u"Qui suis-je ?");
  resource->answer = SmallSampleText(u"Le vent");
  TextWithMedia& clue = resource->clues.AddNew();
  clue.text = SmallSampleText(u"Il souffle");
  clue.media = MediaRef(kMediaSound, 21, kSampleId);
  return resource;
}

std::unique_ptr<Type28Resource> Type28Sample() {
  auto resource = WithHead<Type28Resource>();
  resource->groupKey = 10;
  for (uint32_t n : {1u, 2u}) {
    Type28Sentence& sentence = resource->sentences.AddNew();
    AddTexts(sentence.texts, {u"phrase"});
    sentence.media = MediaRef(kMediaSound, 28, MakeResourceId(1, 40 + n));
  }
  return resource;
}

std::vector<std::unique_ptr<ExerciseResource>> SmallTypeSamples() {
  std::vector<std::unique_ptr<ExerciseResource>> samples;
  samples.push_back(Type5Sample());
  samples.push_back(Type9Sample());
  samples.push_back(Type10Sample());
  samples.push_back(Type14Sample());
  samples.push_back(Type19Sample());
  samples.push_back(Type20Sample());
  samples.push_back(Type21Sample());
  samples.push_back(Type28Sample());
  return samples;
}

}  // namespace lumora::testing
