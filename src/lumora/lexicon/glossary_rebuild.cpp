#include <lumora/lexicon/glossary_rebuild.h>

#include <lumora/lexicon/headword_collation.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/lexicon/set_file_write.h>
#include <lumora/platform/codepage.h>
#include <lumora/support/folder_commit.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace lumora {
namespace {

constexpr uint8_t kHeadwordKind = 1;

// The language of the rebuild under way, 0 when none. A plain word, not a lock: rebuilds run
// on the caller's thread, one at a time.
uint8_t rebuildLanguage = 0;

class RebuildGuard {
 public:
  explicit RebuildGuard(uint8_t language) { rebuildLanguage = language; }
  ~RebuildGuard() { rebuildLanguage = 0; }
  RebuildGuard(const RebuildGuard&) = delete;
  RebuildGuard& operator=(const RebuildGuard&) = delete;
};

// The headwords in alphabetical order. Every word is keyed once and the keys are sorted; word
// numbers are unique, so no two entries are ever equal and none is dropped.
std::vector<HeadwordEntry> SortedHeadwords(const CGloV6& g) {
  std::vector<HeadwordEntry> words;
  if (g.fns.empty() || g.writings.empty()) return words;
  const HeadwordCollator collator(g.language);
  for (const GloFNRecord& fn : g.fns) {
    if (fn.kind != kHeadwordKind) continue;
    const GloWritingRecord* writing = g.writings.Find(fn.writingId);
    words.push_back(
        collator.Entry(fn.fnId, writing ? writing->writing.view() : std::u16string_view()));
    // Without a locale comparison no word is less than another: every later word counts as
    // equal to the first and is left out.
    if (!collator.usable()) break;
  }
  // Through a lambda, so that the comparison is inlined into the sort.
  std::sort(words.begin(), words.end(),
            [](const HeadwordEntry& a, const HeadwordEntry& b) { return wordLess(a, b); });
  return words;
}

std::u16string LetterText(uint8_t letter) {
  return DecodeCodePage(std::string(1, static_cast<char>(letter)), kFallbackCodePage);
}

// Fills `sorted` and `letters` and returns each word's letter number. A letter record holds the
// positions of its first and last word. Words whose key is empty sort first and get letter 0.
std::vector<uint16_t> WriteOrderAndLetters(CGloV6& g, const std::vector<HeadwordEntry>& words) {
  g.sorted.Clear();
  g.letters.Clear();
  std::vector<uint16_t> letterIds(words.size());
  uint8_t previous = 0;
  uint16_t letterId = 0;
  for (size_t i = 0; i < words.size(); ++i) {
    const auto position = static_cast<uint16_t>(i + 1);
    g.sorted.Insert({position, words[i].fnId});
    const uint8_t letter = words[i].letter;
    if (letter != previous) {
      previous = letter;
      ++letterId;
      g.letters.Insert({LetterText(letter), letterId, position, position});
    } else if (letterId != 0) {
      g.letters.Find(letterId)->attrB = position;
    }
    letterIds[i] = letterId;
  }
  return letterIds;
}

// A glossary assembled without its headwords takes them from its folder, as loading would.
void ReadHeadwords(CGloV6& g) {
  auto version = static_cast<uint32_t>(g.setVersion);
  ReadSetTable(g.folder, u"t_Glo_FNs", SetFamily::kGlossary, g.fns, &version);
  g.setVersion = static_cast<int32_t>(version);
}

// Gives each word its letter number, visiting the headwords in their own order: a large table
// is then searched where the previous search left off instead of all over.
// A word listed more than once takes the letter of its last listing.
void SetLetterIds(CGloV6& g, const std::vector<HeadwordEntry>& words,
                  const std::vector<uint16_t>& letterIds) {
  std::vector<std::pair<uint16_t, uint16_t>> letterOfWord;
  letterOfWord.reserve(words.size());
  for (size_t i = 0; i < words.size(); ++i) letterOfWord.emplace_back(words[i].fnId, letterIds[i]);
  std::stable_sort(letterOfWord.begin(), letterOfWord.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  for (size_t i = 0; i < letterOfWord.size(); ++i) {
    if (i + 1 < letterOfWord.size() && letterOfWord[i + 1].first == letterOfWord[i].first) continue;
    g.fns.Find(letterOfWord[i].first)->letterId = letterOfWord[i].second;
  }
}

}  // namespace

bool rebuildSortAndLetters(CGloV6& g) {
  if (rebuildLanguage != 0) return false;
  const RebuildGuard guard(g.language);
  const std::vector<HeadwordEntry> words = SortedHeadwords(g);
  const std::vector<uint16_t> letterIds = WriteOrderAndLetters(g, words);
  if (g.fns.empty()) ReadHeadwords(g);
  SetLetterIds(g, words, letterIds);
  return true;
}

WriteStatus SaveSortAndLetters(CGloV6& g) {
  try {
    const uint32_t version = WrittenSetVersion(SetFamily::kGlossary);
    FolderCommit commit(g.folder);
    StageSetTable(commit, u"t_Glo_FNs", version, g.fns);
    StageSetTable(commit, u"t_Glo_FNSorted", version, g.sorted);
    StageSetTable(commit, u"t_Glo_FNLetter", version, g.letters);
    return commit.Commit();
  } catch (const std::exception& error) {
    return WriteStatus::Failure(g.folder, error.what());
  }
}

}  // namespace lumora
