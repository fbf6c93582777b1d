#include <lumora/sample/sample_builders.h>

#include <lumora/resources/resource_id.h>

#include <memory>
#include <string>

#include <lumora/sample/sample_layout.h>
#include <lumora/sample/sample_phrases.h>

namespace lumora::sample {
namespace {

constexpr uint8_t kGroupKeys = 4;

void SetText(ContentElement& element, const Phrase& phrase, bool translated) {
  element.text = MarkedText(kWesternCodePage, WideText(phrase.text));
  if (!translated) return;
  element.translations.Add(kEnglish, CodePageText(kWesternCodePage, WideText(phrase.english)));
  element.translations.Add(kFrench, CodePageText(kWesternCodePage, WideText(phrase.french)));
}

std::unique_ptr<ContentElement> Reference(uint32_t course, int unit, int slot) {
  auto element = std::make_unique<ContentElement>();
  element->isReference = true;
  element->reference = MakeResourceId(course, ElementNumber(course, unit, slot));
  return element;
}

// The first part names two elements of the unit; the second exercise's first item starts with
// an element of the other course, as shared vocabulary does.
void AddFirstPart(ExerciseItem& item, uint32_t course, int unit, int slot, int position) {
  ItemPart& part = item.firstParts.AddNew();
  part.value = static_cast<uint16_t>(position + 1);
  const bool borrowed = slot == 1 && position == 0;
  const uint32_t first_course = borrowed ? OtherCourse(course) : course;
  part.elements.Add(Reference(first_course, unit, position % kElementsPerUnit));
  part.elements.Add(Reference(course, unit, (position + 1) % kElementsPerUnit));
}

void AddSecondPart(ExerciseItem& item, uint32_t course, int unit) {
  ItemPart& part = item.secondParts.AddNew();
  part.flag = true;
  part.elements.Add(Reference(course, unit, kPlainSlot));
}

// Items alternate between having a second part and not, and each shows one video.
void AddItem(Type40Resource& exercise, uint32_t course, int unit, int slot, const Phrase& phrase) {
  const int position = static_cast<int>(exercise.items.size());
  ExerciseItem& item = exercise.items.AddNew();
  SetText(item.content, phrase, true);
  // The item keeps its own text but also names the stored element it was written from, as
  // authored items do: checking an exercise looks for the file of every item's element.
  item.content.reference = MakeResourceId(course, ElementNumber(course, unit, kPlainSlot));
  AddFirstPart(item, course, unit, slot, position);
  if (position % 2 == 0) AddSecondPart(item, course, unit);
  const uint32_t video = VideoNumber(course, unit, slot, position);
  item.media.Add(
      std::make_unique<MediaRef>(kMediaVideo, kExerciseFolder, MakeResourceId(course, video)));
}

}  // namespace

void BuildElement(ContentElement& element, uint32_t course, int unit, int slot) {
  const uint32_t number = ElementNumber(course, unit, slot);
  SetText(element, WordAt(number - 1), slot != kMissingPictureSlot);
  const uint32_t medium = MakeResourceId(course, ElementNumber(course, MediaUnit(unit), slot));
  switch (slot) {
    case kPictureSlot:
      element.media = MediaRef(kMediaPicture, kElementFolder, medium);
      element.firstAttributes.Add(1);
      break;
    case kSoundSlot:
      element.media = MediaRef(kMediaSound, kElementFolder, medium);
      break;
    case kPlainSlot:
      element.note = "unit " + std::to_string(unit + 1);
      element.firstAttributes.Add(2);
      element.firstAttributes.Add(3);
      break;
    default:
      element.media = MediaRef(kMediaPicture, kElementFolder, medium);
      break;
  }
}

void BuildExercise(Type40Resource& exercise, uint32_t course, int unit, int slot) {
  const uint32_t number = ExerciseNumber(course, unit, slot);
  exercise.groupKey = static_cast<uint8_t>(1 + (number - 1) % kGroupKeys);
  for (int position = 0; position < ItemCount(unit, slot); ++position) {
    AddItem(exercise, course, unit, slot, InstructionAt(static_cast<uint32_t>(position)));
  }
}

void AddRevisionItem(Type40Resource& exercise, uint32_t course, int unit, int slot) {
  AddItem(exercise, course, unit, slot, RevisionInstruction());
}

}  // namespace lumora::sample
