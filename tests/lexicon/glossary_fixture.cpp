#include "lexicon/glossary_fixture.h"

namespace lumora::testing {
namespace {

void AddWord(CGloV6& glossary, uint16_t fnId, std::u16string writing, uint8_t kind, U32List codes,
             U32List classIds, uint8_t level, uint16_t letterId) {
  // Written forms are numbered apart from the words so a mix-up of the two shows.
  const auto writingId = static_cast<uint16_t>(fnId + 500);
  const uint8_t attrC = classIds.empty() ? 0 : 2;
  glossary.fns.Insert(
      {fnId, writingId, 0, kind, std::move(codes), std::move(classIds), level, attrC, letterId});
  glossary.writings.Insert({writingId, std::move(writing)});
}

GloSoundRecord Sound(uint16_t fnId, uint8_t status) {
  GloSoundRecord sound;
  sound.fnId = fnId;
  sound.status = status;
  sound.text1 = u"sound";
  return sound;
}

}  // namespace

void FillSmallGlossary(CGloV6& glossary) {
  AddWord(glossary, 10, u"avion", 1, {}, {}, 1, 1);
  AddWord(glossary, 11, u"Ami", 1, {50001}, {1020100}, 3, 1);
  AddWord(glossary, 20, u"élève", 1, {60000}, {}, 2, 2);
  AddWord(glossary, 21, u"été", 1, {49999, 55555}, {1020101}, 3, 2);
  AddWord(glossary, 22, u"entre", 2, {}, {}, 1, 2);
  AddWord(glossary, 30, u"lire", 1, {}, {}, 0, 3);
  AddWord(glossary, 31, u"là", 1, {}, {}, 1, 0);
  uint16_t position = 1;
  for (uint16_t fnId : {11, 10, 20, 22, 21, 31, 30}) glossary.sorted.Insert({position++, fnId});
  glossary.letters.Insert({u"A", 1, 0, 0});
  glossary.letters.Insert({u"E", 2, 0, 0});
  glossary.letters.Insert({u"L", 3, 0, 0});

  glossary.links.Insert({10, 100, 1, 0, 20, 0});
  glossary.links.Insert({10, 101, 1, 0, 21, 0});
  glossary.links.Insert({11, 102, 1, 0, 30, 0});
  glossary.clouds.Insert({10, u"cloud"});
  glossary.translations.Insert({14, 10, u"plane"});
  glossary.translations.Insert({14, 20, u"pupil, student"});
  glossary.translations.Insert({17, 10, u"avion"});
  glossary.comments.Insert({10, 1, u"m"});
  glossary.comments.Insert({10, 2, u"usage"});
  glossary.comments.Insert({10, 3, u"fam."});
  glossary.comments.Insert({10, 7, u"prendre +  l'avion "});
  glossary.comments.Insert({10, 9, u"other"});
  glossary.sounds.Insert(Sound(10, GloSoundRecord::kPresentStatus));
  glossary.sounds.Insert(Sound(11, 0));
  glossary.recos.Insert({10, 0, GloRecoRecord::kPresentStatus, u"r", u"a|b|c"});
}

}  // namespace lumora::testing
