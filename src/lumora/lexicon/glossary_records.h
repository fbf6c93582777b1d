// The records of the ten glossary tables, one struct per table, each with its key and its
// fields in the order its set file stores them.
#pragma once

#include <lumora/lexicon/set_fields.h>
#include <lumora/lexicon/small_list.h>
#include <lumora/platform/archive.h>

#include <cstdint>
#include <tuple>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

// The schema of a record fetched alone through an index: no file header says which layout it
// has, so the newest one is assumed.
inline constexpr uint32_t kLargestGlossarySchema = 0xFFFFFFFF;

// t_Glo_FNs: the neutral forms (headwords).
struct GloFNRecord {
  // The kind of the headwords that searches and the alphabetical order take in.
  static constexpr uint8_t kEntryKind = 1;

  uint16_t fnId = 0;
  uint16_t writingId = 0;
  uint16_t attrB = 0;
  uint8_t kind = 0;
  U32List codes;
  U32List classIds;
  uint8_t level = 0;
  uint8_t attrC = 0;
  uint16_t letterId = 0;

  uint16_t Key() const { return fnId; }
  void Serialize(Archive& ar, uint32_t schema);
};

// t_Glo_Writings
struct GloWritingRecord {
  uint16_t writingId = 0;
  RecordText writing;

  uint16_t Key() const { return writingId; }
  void Serialize(Archive& ar, uint32_t schema);
};

// t_Glo_Links
struct GloLinkRecord {
  uint32_t fromId = 0;
  uint32_t toId = 0;
  uint16_t linkType = 0;
  uint16_t attrA = 0;
  uint16_t attrB = 0;
  uint8_t attrC = 0;

  std::tuple<uint32_t, uint32_t> Key() const { return {fromId, toId}; }
  void Serialize(Archive& ar, uint32_t schema);
};

// t_Glo_Cloud1600
struct GloCloudRecord {
  uint16_t fnId = 0;
  RecordText cloudText;

  uint16_t Key() const { return fnId; }
  void Serialize(Archive& ar, uint32_t schema);
};

// t_Glo_Sounds. Files written before the quality lists existed (schema 1) lack them.
struct GloSoundRecord {
  static constexpr uint8_t kPresentStatus = 4;

  uint16_t fnId = 0;
  uint8_t status = 0;
  uint16_t attrA = 0;
  uint8_t attrB = 0;
  RecordText text1;
  RecordText text2;
  RecordText text3;
  ByteList qualitiesA;
  ByteList qualitiesB;

  uint16_t Key() const { return fnId; }
  void Serialize(Archive& ar, uint32_t schema);
};

// t_Glo_Reco1600
struct GloRecoRecord {
  static constexpr uint8_t kPresentStatus = 3;

  uint16_t fnId = 0;
  uint16_t attrA = 0;
  uint8_t status = 0;
  RecordText text1;
  RecordText text2;

  uint16_t Key() const { return fnId; }
  void Serialize(Archive& ar, uint32_t schema);
};

// t_Glo_FNTranslations: ordered by language first.
struct GloFNTranslationRecord {
  uint8_t language = 0;
  uint16_t fnId = 0;
  RecordText translation;

  std::tuple<uint8_t, uint16_t> Key() const { return {language, fnId}; }
  void Serialize(Archive& ar, uint32_t schema);
};

// t_Glo_Comments: ordered by word first. The comment type is a byte, so comparing it
// unsigned gives the same order as comparing it widened to a signed 32-bit number.
struct GloCommentRecord {
  uint16_t fnId = 0;
  uint8_t commentType = 0;
  RecordText comment;

  std::tuple<uint16_t, uint8_t> Key() const { return {fnId, commentType}; }
  void Serialize(Archive& ar, uint32_t schema);
};

// t_Glo_FNSorted: the alphabetical order, position to word.
struct GloFNSortedRecord {
  uint16_t position = 0;
  uint16_t fnId = 0;

  uint16_t Key() const { return position; }
  void Serialize(Archive& ar, uint32_t schema);
};

// t_Glo_FNLetter: the letter index. The letter text comes before its key in the file.
struct GloFNLetterRecord {
  RecordText letter;
  uint16_t letterId = 0;
  uint16_t attrA = 0;
  uint16_t attrB = 0;

  uint16_t Key() const { return letterId; }
  void Serialize(Archive& ar, uint32_t schema);
};

}  // namespace lumora

#pragma GCC visibility pop
