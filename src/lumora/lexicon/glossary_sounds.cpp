// Sounds and recognition data of a word: from the table when it was read whole, otherwise one
// record at a time through the index.
#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/indexed_set_file.h>
#include <lumora/support/paths.h>

#include <algorithm>

namespace lumora {
namespace {

constexpr int32_t kIndexListsUsableRecords = 2;

bool IsWordNumber(uint16_t fnId) { return fnId != 0 && fnId != 0xFFFF; }

bool IndexListsWord(const DWordArray& offsets, uint16_t fnId) {
  return fnId < offsets.size() && offsets[fnId] != kNoRecordOffset;
}

template <typename Record>
bool LookUp(const CGloV6& glossary, std::u16string_view name, const SetTable<Record>& table,
            const DWordArray& offsets, uint16_t fnId, Record& record) {
  if (!IsWordNumber(fnId)) return false;
  if (!table.empty()) {
    const Record* found = table.Find(fnId);
    if (found == nullptr) return false;
    record = *found;
    return true;
  }
  return FetchSetRecord(glossary.folder, name, offsets, fnId, record);
}

// Expands the %d conversions of a media pattern (with an optional width of up to two digits,
// zero-padded when it starts with 0) by `values` in order; anything else, a stray "%"
// included, is copied as it stands, so a root holding "%" cannot make the expansion read
// arguments that are not there.
std::string ExpandMediaPattern(const std::string& pattern, std::initializer_list<int> values) {
  std::string out;
  auto value = values.begin();
  for (size_t i = 0; i < pattern.size(); ++i) {
    size_t end = i + 1;
    while (end < pattern.size() && pattern[end] >= '0' && pattern[end] <= '9') ++end;
    if (pattern[i] != '%' || end - i > 3 || end >= pattern.size() || pattern[end] != 'd' ||
        value == values.end()) {
      out.push_back(pattern[i]);
      continue;
    }
    const std::string width_text = pattern.substr(i + 1, end - i - 1);
    std::string digits = std::to_string(*value++);
    const size_t width = width_text.empty() ? 0 : std::stoul(width_text);
    if (digits.size() < width)
      digits.insert(0, width - digits.size(), width_text[0] == '0' ? '0' : ' ');
    out += digits;
    i = end;
  }
  return out;
}

}  // namespace

bool CGloV6::getSound(uint16_t fnId, GloSoundRecord& record) const {
  return LookUp(*this, u"t_Glo_Sounds", sounds, soundIndex, fnId, record);
}

bool CGloV6::hasSound(uint16_t fnId) const {
  if (soundIndexVersion >= kIndexListsUsableRecords) return IndexListsWord(soundIndex, fnId);
  GloSoundRecord record;
  return getSound(fnId, record) && record.status == GloSoundRecord::kPresentStatus;
}

bool CGloV6::getReco(uint16_t fnId, GloRecoRecord& record) const {
  return LookUp(*this, u"t_Glo_Reco1600", recos, recoIndex, fnId, record);
}

bool CGloV6::hasReco(uint16_t fnId) const {
  if (recoIndexVersion >= kIndexListsUsableRecords) return IndexListsWord(recoIndex, fnId);
  GloRecoRecord record;
  return getReco(fnId, record) && record.status == GloRecoRecord::kPresentStatus;
}

bool CGloV6::getRecoFrom(uint16_t fnId, GloRecoRecord& record, uint32_t convert) const {
  if (!getReco(fnId, record)) return false;
  if (convert != 0) std::replace(record.text2.begin(), record.text2.end(), u'|', u';');
  return true;
}

std::string CGloV6::getSoundPath(uint16_t fnId, uint8_t quality) const {
  const std::string path = ExpandMediaPattern(mediaTemplate, {quality, fnId / 100, fnId % 100});
  if (soundIndexVersion >= kIndexListsUsableRecords) {
    return IndexListsWord(soundIndex, fnId) ? path : std::string();
  }
  GloSoundRecord record;
  const bool present = getSound(fnId, record) && record.status == GloSoundRecord::kPresentStatus;
  return present && FileExists(path) ? path : std::string();
}

}  // namespace lumora
