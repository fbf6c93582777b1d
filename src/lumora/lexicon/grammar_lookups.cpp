// The grammar's single-record lookups: each clears its output first, so an absent key leaves
// it at 0 or empty.
#include <lumora/lexicon/grammar.h>

namespace lumora {

bool CGramV6::getPointAttr(uint16_t pointId, uint8_t& attr) const {
  attr = 0;
  const GrPointsRecord* point = points.Find(pointId);
  if (point == nullptr) return false;
  attr = point->attrA;
  return true;
}

bool CGramV6::getPicture(uint16_t pointId, uint8_t pictureNumber, uint8_t& attr) const {
  attr = 0;
  const GrPicturesRecord* picture = pictures.Find({pointId, pictureNumber});
  if (picture == nullptr) return false;
  attr = picture->attrB;
  return true;
}

bool CGramV6::getSubpoint(uint32_t subpointId, GrSubpointsRecord& record) const {
  record = GrSubpointsRecord{};
  const GrSubpointsRecord* subpoint = subpoints.Find(subpointId);
  if (subpoint == nullptr) return false;
  record = *subpoint;
  return true;
}

bool CGramV6::getSubpointLevel(uint32_t subpointId, uint8_t& level) const {
  GrSubpointsRecord subpoint;
  const bool found = getSubpoint(subpointId, subpoint);
  level = subpoint.level;
  return found;
}

bool CGramV6::getSubpointCategory(uint32_t subpointId, uint32_t& categoryCode) const {
  GrSubpointsRecord subpoint;
  const bool found = getSubpoint(subpointId, subpoint);
  categoryCode = subpoint.categoryCode;
  return found;
}

bool CGramV6::getPart(uint32_t partId, uint8_t attrA, uint8_t attrB, GrPartsRecord& record) const {
  record = GrPartsRecord{};
  const GrPartsRecord* part = parts.Find({partId, attrA, attrB});
  if (part == nullptr) return false;
  record = *part;
  return true;
}

bool CGramV6::getKeyword(uint32_t keywordId, std::u16string& keyword) const {
  keyword.clear();
  const GrKeywordsRecord* found = keywords.Find(keywordId);
  if (found == nullptr) return false;
  keyword = found->keyword;
  return true;
}

bool CGramV6::getTitle(uint16_t pointId, uint8_t language, std::u16string& title) const {
  title.clear();
  const GrTitlesRecord* found = titles.Find({pointId, language});
  if (found == nullptr) return false;
  title = found->title;
  return true;
}

bool CGramV6::getSubpointTitle(uint32_t subpointId, uint8_t language, std::u16string& title) const {
  title.clear();
  const GrSubpointTitlesRecord* found = subpointTitles.Find({subpointId, language});
  if (found == nullptr) return false;
  title = found->title;
  return true;
}

bool CGramV6::getBubble(uint8_t language, uint16_t pointId, uint8_t attrB, uint8_t attrC,
                        std::u16string& text) const {
  text.clear();
  const GrBubblesRecord* found = bubbles.Find({language, pointId, attrB, attrC});
  if (found == nullptr) return false;
  text = found->text;
  return true;
}

}  // namespace lumora
