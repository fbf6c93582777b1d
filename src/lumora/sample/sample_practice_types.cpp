// Grammar and sentence practice: an instruction, then sentences with the answers expected.
#include <lumora/resources/types/type12.h>
#include <lumora/resources/types/type13.h>
#include <lumora/resources/types/type15.h>

#include <lumora/sample/sample_exercise_types.h>
#include <lumora/sample/sample_texts.h>
#include <lumora/sample/sample_type_files.h>

namespace lumora::sample {
namespace {

constexpr uint32_t kPerType = 2;
constexpr uint32_t kSentencesPerResource = 2;

// Types 12 and 13 share their fields: the instruction leads, each sentence follows with its
// translation as the expected answer.
void BuildPractice(SentencePracticeResource& r, uint32_t n, std::u16string_view title) {
  r.value = n;
  r.groupKey = static_cast<uint8_t>(n);
  const Phrase& instruction = InstructionAt(n);
  SetMarked(r.leadingRecord.text, instruction.text);
  AddText(r.leadingRecord.texts, instruction.english);
  for (uint32_t s = 0; s < kSentencesPerResource; ++s) {
    const Phrase& sentence = SentenceAt(n * kSentencesPerResource + s);
    PracticeRecord& record = r.records.AddNew();
    SetMarked(record.text, sentence.text);
    AddText(record.texts, sentence.english);
  }
  r.plainText = PlainText(title);
}

void BuildType12(Type12Resource& r, uint32_t n) { BuildPractice(r, n, u"Grammar practice"); }

void BuildType13(Type13Resource& r, uint32_t n) { BuildPractice(r, n, u"Sentence practice"); }

// Sentences to complete, each with the words that may fill it.
void BuildType15(Type15Resource& r, uint32_t n) {
  r.value = n;
  r.groupKey = static_cast<uint8_t>(n);
  r.plainText = PlainText(u"Complete the sentences");
  for (uint32_t s = 0; s < kSentencesPerResource; ++s) {
    Type15Item& item = r.items.AddNew();
    item.value = s + 1;
    SetMarked(item.text, SentenceAt(n + s).text);
    AddText(item.answers.texts, WordAt(n + s).text);
  }
}

}  // namespace

bool WritePracticeTypes(const std::string& root, std::string* error) {
  return StoreNumbered<Type12Resource>(root, kPerType, BuildType12, error) &&
         StoreNumbered<Type13Resource>(root, kPerType, BuildType13, error) &&
         StoreNumbered<Type15Resource>(root, kPerType, BuildType15, error);
}

}  // namespace lumora::sample
