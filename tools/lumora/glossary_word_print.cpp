// One word of the glossary with its record, texts, sound, recognition data and links.
#include <lumora/platform/utf8.h>

#include <nlohmann/json.hpp>

#include <iostream>

#include "commands.h"
#include "glossary_print.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

using Json = nlohmann::ordered_json;

Json Translations(const CGloV6& glossary, uint16_t fnId) {
  Json rows = Json::array();
  std::vector<uint8_t> languages;
  glossary.getTranslationLanguages(languages);
  for (uint8_t language : languages) {
    const std::u16string text = glossary.getTranslation(fnId, language);
    if (!text.empty()) rows.push_back({{"language", language}, {"translation", Utf16ToUtf8(text)}});
  }
  return rows;
}

Json Sound(const CGloV6& glossary, uint16_t fnId) {
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

Json Reco(const CGloV6& glossary, uint16_t fnId) {
  GloRecoRecord reco;
  if (!glossary.getReco(fnId, reco)) return nullptr;
  return {{"attrA", reco.attrA},
          {"status", reco.status},
          {"text1", Utf16ToUtf8(reco.text1)},
          {"text2", Utf16ToUtf8(reco.text2)}};
}

Json Links(const CGloV6& glossary, uint16_t fnId) {
  Json rows = Json::array();
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

Json WordJson(const CGloV6& glossary, const GloFNRecord& fn, uint8_t quality) {
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

void PrintText(const Json& word) {
  std::cout << "word " << word["fnId"] << "  " << word["writing"].get<std::string>() << "  kind "
            << word["kind"] << "  level " << word["level"] << "  letter " << word["letterId"]
            << '\n';
  std::cout << "  codes " << word["codes"].dump() << "  classes " << word["classIds"].dump()
            << '\n';
  for (const char* text : {"comments", "type7", "soundPath"}) {
    const std::string value = word[text].get<std::string>();
    if (!value.empty()) std::cout << "  " << text << "  " << value << '\n';
  }
  for (const Json& t : word["translations"]) {
    std::cout << "  translation " << t["language"] << "  " << t["translation"].get<std::string>()
              << '\n';
  }
  if (!word["sound"].is_null()) std::cout << "  sound  status " << word["sound"]["status"] << '\n';
  if (!word["reco"].is_null()) std::cout << "  reco  status " << word["reco"]["status"] << '\n';
  for (const Json& link : word["links"]) {
    std::cout << "  link to " << link["toId"] << "  word " << link["attrB"] << '\n';
  }
}

}  // namespace

void PrintGlossaryWord(const CGloV6& glossary, const GlossaryOptions& options) {
  GloFNRecord fn;
  if (options.fnId > 0xFFFF || !glossary.getFN(static_cast<uint16_t>(options.fnId), fn)) {
    throw CommandFailure("no word " + std::to_string(options.fnId) + " in the glossary");
  }
  const Json word = WordJson(glossary, fn, static_cast<uint8_t>(options.quality));
  if (options.json) {
    PrintJson(word);
  } else {
    PrintText(word);
  }
}

}  // namespace lumora::cli
