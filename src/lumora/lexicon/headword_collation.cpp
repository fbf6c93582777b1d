#include <lumora/lexicon/headword_collation.h>

#include <lumora/lexicon/headword_order.h>
#include <lumora/platform/codepage.h>
#include <lumora/support/language_table.h>

#include <unicode/ucol.h>
#include <unicode/uloc.h>

#include <array>
#include <map>
#include <mutex>

namespace lumora {
namespace {

UCollator* OpenCollator(uint16_t langId) {
  char locale[ULOC_FULLNAME_CAPACITY] = {};
  UErrorCode status = U_ZERO_ERROR;
  uloc_getLocaleForLCID(langId, locale, sizeof(locale), &status);
  if (U_FAILURE(status)) return nullptr;
  status = U_ZERO_ERROR;
  UCollator* collator = ucol_open(locale, &status);
  if (U_FAILURE(status)) return nullptr;
  // Secondary strength: accents count, letter case does not.
  ucol_setStrength(collator, UCOL_SECONDARY);
  return collator;
}

std::u16string ThroughCodePage(std::u16string_view text, uint16_t codePage) {
  return DecodeCodePage(EncodeCodePage(text, codePage), codePage);
}

// The binary key of `text`, without the zero byte that ends it, written into `key`.
void AppendCollationKey(const UCollator* collator, std::u16string_view text, std::string& key) {
  const size_t start = key.size();
  const int32_t length = static_cast<int32_t>(text.size());
  key.resize(start + text.size() * 4 + 16);
  auto fill = [&] {
    return ucol_getSortKey(collator, text.data(), length,
                           reinterpret_cast<uint8_t*>(key.data() + start),
                           static_cast<int32_t>(key.size() - start));
  };
  int32_t needed = fill();
  if (needed > static_cast<int32_t>(key.size() - start)) {
    key.resize(start + needed);
    needed = fill();
  }
  key.resize(start + (needed > 0 ? needed - 1 : 0));
}

// For each unit below 256, what it reads as once written in the code page and read back (0
// when it does not come back as one unit). Made once per code page: it takes hundreds of
// conversions, and a glossary's order is rebuilt far more often than code pages change.
std::array<char16_t, 256> ThroughCodePageTable(uint16_t codePage) {
  static std::mutex mutex;
  static std::map<uint16_t, std::array<char16_t, 256>> tables;
  const std::lock_guard<std::mutex> lock(mutex);
  auto [it, added] = tables.try_emplace(codePage);
  if (added) {
    for (char16_t unit = 1; unit < it->second.size(); ++unit) {
      const std::u16string back = ThroughCodePage(std::u16string(1, unit), codePage);
      if (back.size() == 1) it->second[unit] = back.front();
    }
  }
  return it->second;
}

void AppendHighByteFirst(char16_t unit, std::string& key) {
  key.push_back(static_cast<char>(unit >> 8));
  key.push_back(static_cast<char>(unit & 0xFF));
}

}  // namespace

HeadwordCollator::HeadwordCollator(uint8_t language)
    : language_(language),
      codePage_(CodePageOf(language)),
      collator_(OpenCollator(LangIdOf(language))),
      throughCodePage_(ThroughCodePageTable(codePage_)) {}

HeadwordCollator::~HeadwordCollator() = default;

void HeadwordCollator::Closer::operator()(UCollator* collator) const { ucol_close(collator); }

HeadwordEntry HeadwordCollator::Entry(uint16_t fnId, std::u16string_view writing) const {
  const std::u16string key = sortKey(writing, language_);
  HeadwordEntry entry;
  entry.fnId = fnId;
  entry.letter = LetterOfKey(key);
  entry.orderKey.reserve(key.size() * 6 + 24);
  if (collator_) AppendCollationKey(collator_.get(), AsNarrowReadsIt(key), entry.orderKey);
  entry.orderKey.push_back('\0');
  for (char16_t unit : key) AppendHighByteFirst(unit, entry.orderKey);
  AppendHighByteFirst(u'\0', entry.orderKey);
  AppendHighByteFirst(fnId, entry.orderKey);
  return entry;
}

const std::u16string& HeadwordCollator::AsNarrowReadsIt(const std::u16string& key) const {
  std::u16string& read = scratch_;
  read.resize(key.size());
  for (size_t i = 0; i < key.size(); ++i) {
    const char16_t unit = key[i];
    if (unit >= throughCodePage_.size() || throughCodePage_[unit] == 0) {
      read = ThroughCodePage(key, codePage_);
      return read;
    }
    read[i] = throughCodePage_[unit];
  }
  return read;
}

}  // namespace lumora
