// Searches over the grammar's texts: the point search and the languages of the point titles.
#include <lumora/lexicon/grammar.h>

#include <set>

namespace lumora {
namespace {

// Exact code units, case included.
bool Contains(std::u16string_view text, std::u16string_view query) {
  return text.find(query) != std::u16string_view::npos;
}

}  // namespace

bool CGramV6::findPoints(std::vector<uint32_t>& pointIds, uint32_t, const std::u16string& query,
                         uint32_t, uint8_t language) const {
  pointIds.clear();
  if (titles.empty() && subpointTitles.empty() && keywords.empty() && bubbles.empty()) {
    return false;
  }
  std::set<uint32_t> found;
  for (const GrTitlesRecord& t : titles) {
    if (t.language == language && Contains(t.title, query)) found.insert(t.pointId);
  }
  for (const GrSubpointTitlesRecord& t : subpointTitles) {
    if (t.language == language && t.subpointId != 0 && Contains(t.title, query)) {
      found.insert(t.subpointId / 1000);
    }
  }
  for (const GrKeywordsRecord& k : keywords) {
    if (k.keywordId != 0 && Contains(k.keyword, query)) found.insert(k.keywordId / 100000);
  }
  for (const GrBubblesRecord& b : bubbles) {
    if (b.language == language && Contains(b.text, query)) found.insert(b.pointId);
  }
  pointIds.assign(found.begin(), found.end());
  return true;
}

bool CGramV6::getTitleLanguages(std::vector<uint8_t>& languages) const {
  std::set<uint8_t> found;
  for (const GrTitlesRecord& t : titles) found.insert(t.language);
  languages.assign(found.begin(), found.end());
  return !languages.empty();
}

bool CGramV6::hasTitleLanguage(uint8_t language) const {
  for (const GrTitlesRecord& t : titles) {
    if (t.language == language) return true;
  }
  return false;
}

}  // namespace lumora
