#include <lumora/describe/glossary_description.h>
#include <lumora/describe/printable_text.h>
#include <lumora/descriptions.h>
#include <lumora/platform/utf8.h>

#include <vector>

namespace lumora {
namespace {

Description Translations(const CGloV6& glossary, uint16_t fnId) {
  Description rows = Description::array();
  std::vector<uint8_t> languages;
  glossary.getTranslationLanguages(languages);
  for (uint8_t language : languages) {
    const std::u16string text = glossary.getTranslation(fnId, language);
    if (!text.empty()) rows.push_back({{"language", language}, {"translation", Utf16ToUtf8(text)}});
  }
  return rows;
}

Description Sound(const CGloV6& glossary, uint16_t fnId) {
  GloSoundRecord sound;
  if (!glossary.getSound(fnId, sound)) return nullptr;
  return {{"status", sound.status},
          {"attrA", sound.attrA},
          {"attrB", sound.attrB},
          {"text1", Utf16ToUtf8(sound.text1)},
          {"text2", Utf16ToUtf8(sound.text2)},
          {"text3", Utf16ToUtf8(sound.text3)},
          {"qualitiesA", std::vector<uint8_t>(sound.qualitiesA.begin(), sound.qualitiesA.end())},
          {"qualitiesB", std::vector<uint8_t>(sound.qualitiesB.begin(), sound.qualitiesB.end())}};
}

Description Reco(const CGloV6& glossary, uint16_t fnId) {
  GloRecoRecord reco;
  if (!glossary.getReco(fnId, reco)) return nullptr;
  return {{"attrA", reco.attrA},
          {"status", reco.status},
          {"text1", Utf16ToUtf8(reco.text1)},
          {"text2", Utf16ToUtf8(reco.text2)}};
}

Description Links(const CGloV6& glossary, uint16_t fnId) {
  Description rows = Description::array();
  std::vector<GloLinkRecord> links;
  glossary.getLinks(fnId, links);
  for (const GloLinkRecord& link : links) {
    rows.push_back({{"toId", link.toId},
                    {"linkType", link.linkType},
                    {"attrA", link.attrA},
                    {"attrB", link.attrB},
                    {"attrC", link.attrC}});
  }
  return rows;
}

Description WordDescription(const CGloV6& glossary, const GloFNRecord& fn, uint8_t quality) {
  return {{"fnId", fn.fnId},
          {"writingId", fn.writingId},
          {"attrB", fn.attrB},
          {"kind", fn.kind},
          {"codes", std::vector<uint32_t>(fn.codes.begin(), fn.codes.end())},
          {"classIds", std::vector<uint32_t>(fn.classIds.begin(), fn.classIds.end())},
          {"level", fn.level},
          {"attrC", fn.attrC},
          {"letterId", fn.letterId},
          {"writing", Utf16ToUtf8(glossary.getWritingText(fn.fnId))},
          {"comments", Utf16ToUtf8(glossary.getCommentsText(fn.fnId))},
          {"type7", Utf16ToUtf8(glossary.getCommentOfType7(fn.fnId))},
          {"translations", Translations(glossary, fn.fnId)},
          {"sound", Sound(glossary, fn.fnId)},
          {"reco", Reco(glossary, fn.fnId)},
          {"links", Links(glossary, fn.fnId)},
          {"soundPath", PrintableText(glossary.getSoundPath(fn.fnId, quality), kWindowsAnsi)}};
}

}  // namespace

Description DescribeGlossaryWord(const CGloV6& glossary, uint32_t fnId, uint8_t quality) {
  GloFNRecord fn;
  if (fnId > 0xFFFF || !glossary.getFN(static_cast<uint16_t>(fnId), fn)) return nullptr;
  return WordDescription(glossary, fn, quality);
}

Description DescribeWordBuckets(const CGloV6& glossary, const WordBuckets& buckets) {
  Description rows = Description::array();
  for (size_t i = 0; i < buckets.size(); ++i) {
    if (buckets[i].empty()) continue;
    const auto letterId = static_cast<uint16_t>(i + 1);
    GloFNLetterRecord letter;
    glossary.getLetter(letterId, letter);
    Description words = Description::array();
    for (uint16_t fnId : buckets[i]) {
      words.push_back({{"fnId", fnId}, {"writing", Utf16ToUtf8(glossary.getWritingText(fnId))}});
    }
    rows.push_back({{"letterId", letterId},
                    {"letter", Utf16ToUtf8(letter.letter)},
                    {"words", std::move(words)}});
  }
  return rows;
}

Description DescribeLetters(const CGloV6& glossary) {
  std::vector<GloFNLetterRecord> letters;
  glossary.getLetters(letters);
  Description rows = Description::array();
  for (const GloFNLetterRecord& letter : letters) {
    rows.push_back({{"letterId", letter.letterId}, {"letter", Utf16ToUtf8(letter.letter)}});
  }
  return rows;
}

}  // namespace lumora
