// Sentences with their sounds: dictations (type 5) and the listening sentences of type 28.
// Sound n·10 + s is sentence s of resource n, in the resource's type folder.
#include <lumora/resources/types/type28.h>
#include <lumora/resources/types/type5.h>

#include <lumora/sample/sample_exercise_types.h>
#include <lumora/sample/sample_texts.h>
#include <lumora/sample/sample_type_files.h>

namespace lumora::sample {
namespace {

constexpr uint32_t kPerType = 2;
constexpr uint32_t kSentencesPerResource = 2;

uint32_t SoundNumber(uint32_t n, uint32_t s) { return n * 10 + s; }

void BuildType5(Type5Resource& r, uint32_t n, uint32_t course) {
  r.groupKey = static_cast<uint8_t>(n);
  r.title = PlainText(u"Dictado");
  for (uint32_t s = 0; s < kSentencesPerResource; ++s) {
    const Phrase& sentence = SentenceAt(n + s);
    DictationSentence& item = r.sentences.AddNew();
    item.value = s + 1;
    AddText(item.texts, sentence.text);
    AddText(item.texts, sentence.english);
    item.media = TypeMedium(kMediaSound, Type5Resource::kType, SoundNumber(n, s), course);
  }
}

void BuildType28(Type28Resource& r, uint32_t n, uint32_t course) {
  r.groupKey = static_cast<uint8_t>(n);
  for (uint32_t s = 0; s < kSentencesPerResource; ++s) {
    Type28Sentence& item = r.sentences.AddNew();
    AddText(item.texts, SentenceAt(n + s + 2).text);
    item.media = TypeMedium(kMediaSound, Type28Resource::kType, SoundNumber(n, s), course);
  }
}

// A dictation's export fills every quality folder, so its sounds lie in all three; type 28
// only needs each sound somewhere, and keeps it in Q2.
bool WriteSounds(const std::string& root, uint32_t course, uint32_t n, std::string* error) {
  for (uint32_t s = 0; s < kSentencesPerResource; ++s) {
    const uint32_t sound = SoundNumber(n, s);
    if (!WriteTypeMedium(root, Type5Resource::kType, 's', sound, ".swf", {1, 2, 3}, error,
                         course) ||
        !WriteTypeMedium(root, Type28Resource::kType, 's', sound, ".swf", {2}, error, course)) {
      return false;
    }
  }
  return true;
}

}  // namespace

bool WriteSoundTypes(const std::string& root, std::string* error) {
  for (uint32_t n = 1; n <= kPerType; ++n) {
    if (!WriteSoundPair(root, kTypeCourse, n, error)) return false;
  }
  return true;
}

bool WriteSoundPair(const std::string& root, uint32_t course, uint32_t number, std::string* error) {
  Type5Resource dictation;
  BuildType5(dictation, number, course);
  Type28Resource listening;
  BuildType28(listening, number, course);
  const uint32_t id = MakeResourceId(course, number);
  return StoreResourceFile(root, id, dictation, error) &&
         StoreResourceFile(root, id, listening, error) && WriteSounds(root, course, number, error);
}

}  // namespace lumora::sample
