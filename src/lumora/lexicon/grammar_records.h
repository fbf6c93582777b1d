// The records of the nine grammar tables, one struct per table, with their fields in file order.
// The fields named attrA to attrG carry values this library never interprets: they are kept,
// copied and written back unchanged.
#pragma once

#include <lumora/lexicon/set_fields.h>
#include <lumora/platform/archive.h>

#include <cstdint>
#include <string>
#include <tuple>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

// t_Gr_Points: one grammar point.
struct GrPointsRecord {
  uint16_t pointId = 0;
  uint8_t attrA = 0;
  uint8_t flag = 0;
  RecordText name;

  uint16_t Key() const { return pointId; }
  void Serialize(Archive& ar, uint32_t) {
    ar.Io(pointId);
    ar.Io(attrA);
    IoFlag(ar, flag);
    IoText(ar, name);
  }
};

// t_Gr_Titles: a point's title in one language.
struct GrTitlesRecord {
  uint16_t pointId = 0;
  uint8_t language = 0;
  RecordText title;

  std::tuple<uint16_t, uint8_t> Key() const { return {pointId, language}; }
  void Serialize(Archive& ar, uint32_t) {
    ar.Io(pointId);
    ar.Io(language);
    IoText(ar, title);
  }
};

// t_Gr_Pictures: attrA is the picture's number within its point.
struct GrPicturesRecord {
  uint16_t pointId = 0;
  uint8_t attrA = 0;
  uint8_t attrB = 0;

  std::tuple<uint16_t, uint8_t> Key() const { return {pointId, attrA}; }
  void Serialize(Archive& ar, uint32_t) {
    ar.Io(pointId);
    ar.Io(attrA);
    ar.Io(attrB);
  }
};

// t_Gr_Subpoints: subpointId is the point number times 1000 plus the subpoint's number in the
// point, from 1. categoryCode rounded down to a multiple of 1000000 is its category, to a
// multiple of 10000 its subcategory; 0 means none.
struct GrSubpointsRecord {
  uint32_t subpointId = 0;
  uint8_t level = 0;
  uint32_t categoryCode = 0;

  uint32_t Key() const { return subpointId; }
  void Serialize(Archive& ar, uint32_t) {
    ar.Io(subpointId);
    ar.Io(level);
    ar.Io(categoryCode);
  }
};

// t_Gr_Parts.
struct GrPartsRecord {
  uint32_t partId = 0;
  uint8_t attrA = 0;
  uint8_t attrB = 0;
  uint8_t attrC = 0;
  uint32_t attrD = 0;
  uint32_t attrE = 0;
  uint8_t attrF = 0;
  uint8_t attrG = 0;

  std::tuple<uint32_t, uint8_t, uint8_t> Key() const { return {partId, attrA, attrB}; }
  void Serialize(Archive& ar, uint32_t) {
    ar.Io(partId);
    ar.Io(attrA);
    ar.Io(attrB);
    ar.Io(attrC);
    ar.Io(attrD);
    ar.Io(attrE);
    ar.Io(attrF);
    ar.Io(attrG);
  }
};

// t_Gr_SubpointTitles: a subpoint's title in one language.
struct GrSubpointTitlesRecord {
  uint32_t subpointId = 0;
  uint8_t language = 0;
  RecordText title;

  std::tuple<uint32_t, uint8_t> Key() const { return {subpointId, language}; }
  void Serialize(Archive& ar, uint32_t) {
    ar.Io(subpointId);
    ar.Io(language);
    IoText(ar, title);
  }
};

// t_Gr_keywords: keywordId is the subpoint number times 100 plus the keyword's number, so
// keywordId / 100 is the subpoint and keywordId / 100000 the point.
struct GrKeywordsRecord {
  uint32_t keywordId = 0;
  RecordText keyword;

  uint32_t Key() const { return keywordId; }
  void Serialize(Archive& ar, uint32_t) {
    ar.Io(keywordId);
    IoText(ar, keyword);
  }
};

// t_Gr_Links: attrA / 100 is the subpoint a link leads to.
struct GrLinksRecord {
  uint32_t fromId = 0;
  uint32_t toId = 0;
  uint32_t attrA = 0;
  uint16_t linkType = 0;
  uint8_t attrB = 0;

  std::tuple<uint32_t, uint32_t, uint32_t> Key() const { return {fromId, toId, attrA}; }
  void Serialize(Archive& ar, uint32_t) {
    ar.Io(fromId);
    ar.Io(toId);
    ar.Io(attrA);
    ar.Io(linkType);
    ar.Io(attrB);
  }
};

// t_Gr_Bubbles: a text bubble of a grammar screen.
struct GrBubblesRecord {
  uint8_t language = 0;
  uint16_t pointId = 0;
  uint8_t attrB = 0;
  uint8_t attrC = 0;
  RecordText text;

  std::tuple<uint8_t, uint16_t, uint8_t, uint8_t> Key() const {
    return {language, pointId, attrB, attrC};
  }
  void Serialize(Archive& ar, uint32_t) {
    ar.Io(language);
    ar.Io(pointId);
    ar.Io(attrB);
    ar.Io(attrC);
    IoText(ar, text);
  }
};

}  // namespace lumora

#pragma GCC visibility pop
