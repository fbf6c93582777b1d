// The glossary's single-record lookups: the record is copied out only when it exists, so an
// absent key leaves the output as it was.
#include <lumora/lexicon/glossary.h>

namespace lumora {
namespace {

template <typename Record, typename Key>
bool CopyRecord(const SetTable<Record>& table, const Key& key, Record& record) {
  const Record* found = table.Find(key);
  if (found == nullptr) return false;
  record = *found;
  return true;
}

}  // namespace

bool CGloV6::getFN(uint16_t fnId, GloFNRecord& record) const {
  return CopyRecord(fns, fnId, record);
}

std::u16string CGloV6::getWritingText(uint16_t fnId) const {
  const GloFNRecord* fn = fns.Find(fnId);
  if (fn == nullptr) return {};
  const GloWritingRecord* writing = writings.Find(fn->writingId);
  return writing == nullptr ? std::u16string() : writing->writing.str();
}

bool CGloV6::getWriting(uint16_t writingId, GloWritingRecord& record) const {
  return CopyRecord(writings, writingId, record);
}

bool CGloV6::getCloud(uint16_t fnId, GloCloudRecord& record) const {
  return CopyRecord(clouds, fnId, record);
}

bool CGloV6::getLetter(uint16_t letterId, GloFNLetterRecord& record) const {
  return CopyRecord(letters, letterId, record);
}

bool CGloV6::getLetters(std::vector<GloFNLetterRecord>& found) const {
  found = letters.records();
  return !found.empty();
}

}  // namespace lumora
