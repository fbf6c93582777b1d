// Links between words: one link, the links from one word, and the words those links name.
#include <lumora/lexicon/glossary.h>

#include <algorithm>

namespace lumora {

bool CGloV6::getLink(uint32_t fromId, uint32_t toId, GloLinkRecord& record) const {
  const GloLinkRecord* found = links.Find({fromId, toId});
  if (found == nullptr) return false;
  record = *found;
  return true;
}

bool CGloV6::getLinks(uint32_t fromId, std::vector<GloLinkRecord>& found) const {
  found.clear();
  auto it = links.Range({fromId, 0}, {fromId, 0}).first;
  if (it == links.end()) return false;
  for (; it != links.end() && it->fromId == fromId; ++it) found.push_back(*it);
  return true;
}

std::vector<uint16_t> CGloV6::LinkedWords(uint32_t firstId, uint32_t secondId) const {
  std::vector<uint16_t> words;
  std::vector<GloLinkRecord> found;
  for (uint32_t fromId : {firstId, secondId}) {
    if (fromId == 0) continue;
    getLinks(fromId, found);
    for (const GloLinkRecord& link : found) words.push_back(link.attrB);
  }
  std::sort(words.begin(), words.end());
  words.erase(std::unique(words.begin(), words.end()), words.end());
  return words;
}

}  // namespace lumora
