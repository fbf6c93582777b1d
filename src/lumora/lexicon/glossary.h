// The glossary of one discipline: headwords with their written forms, sounds, recognition data,
// clouds, translations, comments, links between words, an alphabetical order and a letter
// index, each table in a set file of its own in the glossary folder. The discipline loads it
// when it opens, then points it at the library-wide classification and gives it the
// discipline's language number; exports build reduced copies and save them.
//
// The sound and recognition tables can be read through their index instead of whole; their
// records are then fetched from the set file one at a time when asked for.
#pragma once

#include <lumora/lexicon/glossary_base.h>
#include <lumora/lexicon/glossary_records.h>
#include <lumora/lexicon/set_table.h>
#include <lumora/platform/typed_array.h>

#include <cstdint>
#include <string>
#include <vector>

namespace lumora {

class CGloV6 : public CGloBase {
 public:
  const char* ClassName() const override { return "CGloV6"; }

  // Sets `folder`, then reads the ten tables in file order, the sound and recognition tables
  // through their index when one exists; stops at the first that fails (false), leaving the
  // tables read before it loaded.
  bool load(const std::string& folder);
  // Sets `folder` only, with the separator appended unless empty or already there.
  void setFolder(const std::string& folder);
  // Writes the ten tables into `folder` in the same order; stops at the first that fails.
  // `withIndex` writes the index of the sound and recognition tables too; `qualities` names the
  // quality folders whose media a record needs to be listed in that index (none when empty).
  bool save(bool withIndex, const std::vector<uint32_t>& qualities);

  SetTable<GloFNRecord> fns;
  SetTable<GloWritingRecord> writings;
  SetTable<GloSoundRecord> sounds;
  SetTable<GloLinkRecord> links;
  SetTable<GloRecoRecord> recos;
  SetTable<GloCloudRecord> clouds;
  SetTable<GloFNTranslationRecord> translations;
  SetTable<GloCommentRecord> comments;
  SetTable<GloFNSortedRecord> sorted;
  SetTable<GloFNLetterRecord> letters;
  DWordArray soundIndex;  // record offsets in t_Glo_Sounds.set; empty unless read by index
  DWordArray recoIndex;   // the same for t_Glo_Reco1600.set
  std::string folder;
  int32_t setVersion = 2;  // version of the last set file read
  int32_t soundIndexVersion = 2;
  int32_t recoIndexVersion = 2;
};

}  // namespace lumora
