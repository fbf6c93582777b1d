// Exercises around pictures. Picture n of a type is "p%07d.swf" in the type's own folder; the
// quality folders each type's verification expects are filled, except for one deliberate gap.
#include <lumora/platform/archive.h>
#include <lumora/resources/types/type1006.h>
#include <lumora/resources/types/type1010.h>
#include <lumora/resources/types/type14.h>
#include <lumora/resources/types/type19.h>
#include <lumora/resources/types/type20.h>
#include <lumora/resources/types/type9.h>

#include <memory>

#include <lumora/sample/sample_exercise_types.h>
#include <lumora/sample/sample_texts.h>
#include <lumora/sample/sample_type_files.h>

namespace lumora::sample {
namespace {

constexpr uint32_t kPerType = 2;
constexpr uint32_t kPiecesPerResource = 3;

// Media of resource n numbered n·10 + i, for the types with several pictures per resource.
uint32_t PieceNumber(uint32_t n, uint32_t i) { return n * 10 + i; }

// Picture/Word Association: the picture is exported to every quality folder, so it lies in all.
void BuildType9(Type9Resource& r, uint32_t n) {
  r.groupKey = static_cast<uint8_t>(n);
  for (uint32_t w = 0; w < 3; ++w) AddText(r.words, WordAt(n + w).text);
  AddString(r.strings, WordAt(n).english);
  r.media = TypeMedium(kMediaPicture, Type9Resource::kType, n);
}

void BuildType14(Type14Resource& r, uint32_t n) {
  r.value = n;
  r.firstWord = 1;
  r.secondWord = 2;
  r.groupKey = static_cast<uint8_t>(n);
  r.firstTitle = PlainText(WordAt(n).text);
  r.secondTitle = PlainText(WordAt(n).english);
  for (uint32_t i = 1; i <= 3; ++i) r.numbers.Add(i);
  uint32_t value = 0;
  for (auto* entries : {&r.firstEntries, &r.secondEntries, &r.thirdEntries}) {
    Type14Entry& entry = entries->AddNew();
    entry.value = ++value;
    SetMarked(entry.text, WordAt(n + value).text);
  }
  r.media.Add(std::make_unique<MediaRef>(TypeMedium(kMediaPicture, Type14Resource::kType, n)));
  SetMarked(r.closingText, InstructionAt(n).text);
}

// A link record of the head naming another resource of the same course.
Record16 LinkTo(uint32_t type, uint32_t number) {
  Record16 link;
  EncodeU32(&link.bytes[8], type);
  EncodeU32(&link.bytes[12], number);
  return link;
}

constexpr uint32_t kBadPositionResource = 3;

// Positions on the resource's own picture (Q3 only), each naming one of the words; the head
// links to the Picture/Word Association exercise of the same number. Deliberate problem:
// resource 3 keeps a fourth position whose word was deleted, so the verification reports
// "Positon Id: 4 not found".
void BuildType19(Type19Resource& r, uint32_t n) {
  r.firstValue = n;
  r.groupKey = static_cast<uint8_t>(n);
  r.records.Add(LinkTo(Type9Resource::kType, n == kBadPositionResource ? 1 : n));
  for (uint32_t w = 0; w < 3; ++w) {
    r.positions.Add(w + 1);
    AddString(r.names, WordAt(n + w).text);
  }
  if (n == kBadPositionResource) r.positions.Add(4);
}

// PatchWork: the export copies every piece into each quality folder, so all three hold them.
void BuildType20(Type20Resource& r, uint32_t n) {
  r.value = n;
  r.groupKey = static_cast<uint8_t>(n);
  for (uint32_t i = 0; i < kPiecesPerResource; ++i) {
    PatchWorkPiece& piece = r.pieces.AddNew();
    piece.media = TypeMedium(kMediaPicture, Type20Resource::kType, PieceNumber(n, i));
    SetMarked(piece.text, WordAt(n + i).text);
  }
}

constexpr uint32_t kMissingPictureResource = 3;

// A picture of its own, then captioned pictures keyed 1 to 3. Deliberate problem: the third
// caption of resource 3 names a picture that was never delivered (no file in any quality
// folder), so the verification reports "File not found" with its Q1 path.
void BuildType1006(Type1006Resource& r, uint32_t n) {
  r.media = TypeMedium(kMediaPicture, Type1006Resource::kType, PieceNumber(n, 0));
  for (uint32_t k = 1; k <= kPiecesPerResource; ++k) {
    auto entry = std::make_unique<CaptionedMedia>();
    entry->caption = PlainText(WordAt(n + k).text);
    entry->media = TypeMedium(kMediaPicture, Type1006Resource::kType, PieceNumber(n, k));
    r.entries.Add(k, std::move(entry));
  }
  r.title = PlainText(u"Álbum de fotos");
  AddString(r.strings, WordAt(n).text);
}

// Four translated texts and a picture, which the verification wants in Q3.
void BuildType1010(Type1010Resource& r, uint32_t n) {
  r.groupKey = static_cast<uint8_t>(n);
  for (uint32_t t = 0; t < Type1010Resource::kTextCount; ++t) {
    const Phrase& word = WordAt(n + t);
    SetMarked(r.texts[t].text, word.text);
    SetTranslations(r.texts[t].translations, word);
  }
  r.picture = TypeMedium(kMediaPicture, Type1010Resource::kType, n);
  AddText(r.moreTexts, SentenceAt(n).text);
}

bool WritePictures(const std::string& root, std::string* error) {
  for (uint32_t n = 1; n <= kPerType; ++n) {
    if (!WriteTypeMedium(root, Type9Resource::kType, 'p', n, ".swf", {1, 2, 3}, error) ||
        !WriteTypeMedium(root, Type14Resource::kType, 'p', n, ".swf", {1}, error) ||
        !WriteTypeMedium(root, Type1010Resource::kType, 'p', n, ".swf", {1, 3}, error)) {
      return false;
    }
    for (uint32_t i = 0; i < kPiecesPerResource; ++i) {
      const uint32_t piece = PieceNumber(n, i);
      if (!WriteTypeMedium(root, Type20Resource::kType, 'p', piece, ".swf", {1, 2, 3}, error)) {
        return false;
      }
    }
  }
  for (uint32_t n = 1; n <= kBadPositionResource; ++n) {
    if (!WriteTypeMedium(root, Type19Resource::kType, 'p', n, ".swf", {3}, error)) return false;
  }
  for (uint32_t n = 1; n <= kMissingPictureResource; ++n) {
    for (uint32_t k = 0; k <= kPiecesPerResource; ++k) {
      if (n == kMissingPictureResource && k == kPiecesPerResource) continue;  // never delivered
      const uint32_t piece = PieceNumber(n, k);
      if (!WriteTypeMedium(root, Type1006Resource::kType, 'p', piece, ".swf", {1}, error)) {
        return false;
      }
    }
  }
  return true;
}

}  // namespace

bool WritePictureTypes(const std::string& root, std::string* error) {
  return StoreNumbered<Type9Resource>(root, kPerType, BuildType9, error) &&
         StoreNumbered<Type14Resource>(root, kPerType, BuildType14, error) &&
         StoreNumbered<Type19Resource>(root, kBadPositionResource, BuildType19, error) &&
         StoreNumbered<Type20Resource>(root, kPerType, BuildType20, error) &&
         StoreNumbered<Type1006Resource>(root, kMissingPictureResource, BuildType1006, error) &&
         StoreNumbered<Type1010Resource>(root, kPerType, BuildType1010, error) &&
         WritePictures(root, error);
}

}  // namespace lumora::sample
