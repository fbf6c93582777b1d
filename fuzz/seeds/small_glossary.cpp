#include "small_glossary.h"

#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/glossary_rebuild.h>

#include <set>

namespace seeds {
namespace {

template <typename Record, typename Keep>
void CopyKept(const lumora::SetTable<Record>& from, lumora::SetTable<Record>& to, Keep keep) {
  for (const Record& record : from) {
    if (keep(record)) to.Insert(record);
  }
}

}  // namespace

bool WriteSmallGlossary(const std::filesystem::path& from, const std::filesystem::path& to,
                        uint8_t language, size_t words) {
  lumora::CGloV6 full;
  if (!full.load(from.string() + "/")) return false;
  lumora::CGloV6 small;
  small.language = language;
  std::set<uint32_t> kept;
  std::set<uint16_t> writings;
  for (const lumora::GloFNRecord& fn : full.fns) {
    if (kept.size() == words) break;
    kept.insert(fn.fnId);
    writings.insert(fn.writingId);
    small.fns.Insert(fn);
  }
  const auto of_kept_word = [&](const auto& record) { return kept.count(record.fnId) != 0; };
  CopyKept(full.writings, small.writings,
           [&](const auto& record) { return writings.count(record.writingId) != 0; });
  CopyKept(full.links, small.links, [&](const auto& record) {
    return kept.count(record.fromId) != 0 && kept.count(record.toId) != 0;
  });
  CopyKept(full.clouds, small.clouds, of_kept_word);
  // The sample's sound and recognition tables are read through their index: one at a time.
  for (const uint32_t fnId : kept) {
    lumora::GloSoundRecord sound;
    if (full.getSound(static_cast<uint16_t>(fnId), sound)) small.sounds.Insert(sound);
    lumora::GloRecoRecord reco;
    if (full.getReco(static_cast<uint16_t>(fnId), reco)) small.recos.Insert(reco);
  }
  CopyKept(full.translations, small.translations, of_kept_word);
  CopyKept(full.comments, small.comments, of_kept_word);
  lumora::rebuildSortAndLetters(small);
  std::filesystem::create_directories(to);
  small.setFolder(to.string());
  return small.save(true, {});
}

}  // namespace seeds
