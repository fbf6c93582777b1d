#include <lumora/sample/sample_glossary.h>

#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/glossary_rebuild.h>
#include <lumora/lexicon/indexed_set_file.h>
#include <lumora/resources/resource_id.h>
#include <lumora/support/paths.h>

#include <array>
#include <iterator>
#include <span>
#include <vector>

#include <lumora/sample/sample_dates.h>
#include <lumora/sample/sample_files.h>
#include <lumora/sample/sample_glossary_words.h>
#include <lumora/sample/sample_package.h>
#include <lumora/sample/swf_media.h>

namespace lumora::sample {
namespace {

constexpr uint8_t kEnglishUK = 14;
constexpr uint8_t kFrench = 17;
constexpr uint8_t kGerman = 18;
constexpr uint32_t kGlossaryFolder = 1001;
constexpr uint8_t kHeadword = 1;
constexpr uint8_t kSubEntry = 2;
constexpr uint8_t kClassifiedWord = 2;  // attrC of the words whose classes are listed
constexpr uint32_t kSoundQuality = 2;   // the quality a sound record lists
constexpr uint32_t kQualityFolders[] = {1, 2, 3};
constexpr size_t kWordsPerLesson = 40;
constexpr uint16_t kLessonLink = 1;
constexpr uint16_t kOppositeLink = 3;
constexpr uint8_t kNamesWord = 1;  // attrC of a link whose attrB is the word it names
constexpr uint32_t kAdjective = 30000;

enum CommentType : uint8_t { kNote = 1, kGrammarNote = 2, kRegister = 3, kSeeAlso = 7 };

uint16_t WordNumber(size_t row) { return static_cast<uint16_t>(row + 1); }
uint16_t WritingNumber(size_t row) { return static_cast<uint16_t>(row + 1001); }

const char16_t* In(const GlossaryConcept& c, uint8_t language) {
  if (language == kFrench) return c.french;
  if (language == kGerman) return c.german;
  return c.english;
}

// The two languages a glossary translates into: the sample's other two.
std::array<uint8_t, 2> TranslationLanguages(uint8_t language) {
  if (language == kFrench) return {kEnglishUK, kGerman};
  if (language == kGerman) return {kEnglishUK, kFrench};
  return {kFrench, kGerman};
}

bool IsVerb(const GlossaryConcept& c) { return c.category / 10000 == 2; }

GloFNRecord HeadwordOf(const GlossaryConcept& c, size_t i) {
  GloFNRecord fn;
  fn.fnId = WordNumber(i);
  fn.writingId = WritingNumber(i);
  // A few entries only support others and are never listed on their own.
  fn.kind = i % 50 == 49 ? kSubEntry : kHeadword;
  // Every third word belongs to the vocabulary that has exercises (codes 50000..59999).
  fn.codes = {i % 3 == 0 ? 50000u + fn.fnId : 10000u + fn.fnId};
  fn.classIds = {c.category};
  if (c.family != 0) fn.classIds.push_back(c.family);
  fn.level = static_cast<uint8_t>(1 + i % 3);
  fn.attrC = i % 7 == 6 ? 1 : kClassifiedWord;
  return fn;
}

// Most words have a sound; every eighth one is announced but not recorded yet and every
// eighth one has none at all.
bool Unrecorded(size_t i) { return i % 8 == 7; }

void AddSound(CGloV6& g, const std::u16string& writing, size_t i) {
  if (i % 8 == 3) return;
  GloSoundRecord sound;
  sound.fnId = WordNumber(i);
  sound.status = Unrecorded(i) ? 0 : GloSoundRecord::kPresentStatus;
  sound.attrA = static_cast<uint16_t>(i);
  sound.text1 = writing;
  sound.qualitiesA.push_back(static_cast<uint8_t>(kSoundQuality));
  g.sounds.Insert(std::move(sound));
}

// The recognizer accepts the written form and its bare key, separated by a vertical bar.
void AddReco(CGloV6& g, const GlossaryConcept& c, uint8_t language, size_t i) {
  if (i % 5 == 4) return;
  GloRecoRecord reco;
  reco.fnId = WordNumber(i);
  reco.status = GloRecoRecord::kPresentStatus;
  reco.text1 = In(c, language);
  reco.text2 = reco.text1.str() + u"|" + c.english;
  g.recos.Insert(std::move(reco));
}

void AddCloud(CGloV6& g, std::span<const GlossaryConcept> concepts, uint8_t language, size_t i) {
  if (i % 3 != 1 || i + 1 >= concepts.size()) return;
  g.clouds.Insert({WordNumber(i), std::u16string(In(concepts[i - 1], language)) + u", " +
                                      In(concepts[i + 1], language)});
}

void AddComments(CGloV6& g, std::span<const GlossaryConcept> concepts, size_t i) {
  const uint16_t word = WordNumber(i);
  if (IsVerb(concepts[i]) && i % 2 == 0) g.comments.Insert({word, kGrammarNote, u"irregular"});
  if (i % 5 == 0) g.comments.Insert({word, kNote, u"often in the plural"});
  if (i % 9 == 0) g.comments.Insert({word, kRegister, u"colloquial"});
  if (i % 11 == 0 && i + 1 < concepts.size()) {
    g.comments.Insert({word, kSeeAlso, std::u16string(u"see also + ") + concepts[i + 1].english});
  }
}

void AddWords(CGloV6& g, uint8_t language) {
  const std::span<const GlossaryConcept> concepts = GlossaryConcepts();
  const std::array<uint8_t, 2> others = TranslationLanguages(language);
  for (size_t i = 0; i < concepts.size(); ++i) {
    const GlossaryConcept& c = concepts[i];
    const std::u16string writing = In(c, language);
    g.fns.Insert(HeadwordOf(c, i));
    g.writings.Insert({WritingNumber(i), writing});
    for (uint8_t other : others) g.translations.Insert({other, WordNumber(i), In(c, other)});
    AddSound(g, writing, i);
    AddReco(g, c, language, i);
    AddCloud(g, concepts, language, i);
    AddComments(g, concepts, i);
  }
}

// Each lesson names its words through the attrB field of its links, leaving out the words
// whose sound is still to be recorded; the lessons' numbers lie above every word number and
// above the general links' 1000 to 10000. Adjectives listed next to each other in pairs are
// opposites and link both ways.
void AddLinks(CGloV6& g) {
  for (size_t lesson = 0; lesson < std::size(kGlossaryLessons); ++lesson) {
    for (size_t k = 0; k < kWordsPerLesson; ++k) {
      const size_t row = lesson * kWordsPerLesson * 2 + k;
      if (Unrecorded(row)) continue;
      const uint16_t word = WordNumber(row);
      g.links.Insert({kGlossaryLessons[lesson], word, kLessonLink, 0, word, kNamesWord});
    }
  }
  const std::span<const GlossaryConcept> concepts = GlossaryConcepts();
  for (size_t i = 0; i + 1 < concepts.size(); i += 2) {
    if (concepts[i].category != kAdjective || concepts[i + 1].category != kAdjective) continue;
    g.links.Insert({WordNumber(i), WordNumber(i + 1), kOppositeLink, 0, 0, 0});
    g.links.Insert({WordNumber(i + 1), WordNumber(i), kOppositeLink, 0, 0, 0});
  }
}

bool WriteSoundFile(const CGloV6& g, uint32_t quality, uint16_t word, std::string* error) {
  return WriteBytesFile(QualityFilePath(g.folder, quality, word), SwfTone(word), error);
}

// The sound of every recorded word in every quality folder: the index lists the words whose
// sounds are all there, and the host may ask for any quality.
bool WriteSoundFiles(const CGloV6& g, std::string* error) {
  for (const GloSoundRecord& sound : g.sounds) {
    if (sound.status != GloSoundRecord::kPresentStatus) continue;
    for (uint32_t quality : kQualityFolders) {
      if (!WriteSoundFile(g, quality, sound.fnId, error)) return false;
    }
  }
  return true;
}

// The words of the lessons are delivered in every quality folder, so that the export of a
// package finds the sounds of its lessons' words whichever folders it takes.
bool WriteLessonSounds(const CGloV6& g, std::string* error) {
  for (uint32_t lesson : kGlossaryLessons) {
    const auto [first, last] = g.links.Range({lesson, 0u}, {lesson + 1, 0u});
    for (auto link = first; link != last; ++link) {
      if (g.sounds.Find(link->attrB) == nullptr) continue;
      for (uint32_t quality : kQualityFolders) {
        if (!WriteSoundFile(g, quality, link->attrB, error)) return false;
      }
    }
  }
  return true;
}

}  // namespace

bool WriteSampleGlossary(const std::string& root, uint8_t language, bool withIndex,
                         std::string* error) {
  CGloV6 glossary;
  glossary.language = language;
  glossary.setFolder(root + CourseFolderName(0) + kPathSeparator +
                     NumberedName('r', kGlossaryFolder));
  AddWords(glossary, language);
  AddLinks(glossary);
  if (!rebuildSortAndLetters(glossary)) {
    *error = "cannot sort the glossary of " + glossary.folder;
    return false;
  }
  if (!CreateFolderPath(glossary.folder)) {
    *error = "cannot create " + glossary.folder;
    return false;
  }
  // Every recorded word takes in the lessons' words.
  if (!(withIndex ? WriteSoundFiles(glossary, error) : WriteLessonSounds(glossary, error))) {
    return false;
  }
  const std::vector<uint32_t> qualities(std::begin(kQualityFolders), std::end(kQualityFolders));
  if (!glossary.save(withIndex, withIndex ? qualities : std::vector<uint32_t>{})) {
    *error = "cannot write the glossary in " + glossary.folder;
    return false;
  }
  return PinListedDates(glossary.folder, error);
}

}  // namespace lumora::sample
