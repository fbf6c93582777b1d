#include <lumora/lexicon/headword_collation.h>

#include <lumora/lexicon/headword_order.h>
#include <lumora/platform/codepage.h>
#include <lumora/support/language_table.h>

#include <unicode/ucol.h>
#include <unicode/uloc.h>

#include <tuple>

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

std::string CollationKey(const UCollator* collator, std::u16string_view text) {
  std::string key(text.size() * 2 + 16, '\0');
  const int32_t length = static_cast<int32_t>(text.size());
  auto fill = [&] {
    return ucol_getSortKey(collator, text.data(), length, reinterpret_cast<uint8_t*>(key.data()),
                           static_cast<int32_t>(key.size()));
  };
  int32_t needed = fill();
  if (needed > static_cast<int32_t>(key.size())) {
    key.resize(needed);
    needed = fill();
  }
  // The key ends in a zero byte that adds nothing to the order.
  key.resize(needed > 0 ? needed - 1 : 0);
  return key;
}

}  // namespace

bool wordLess(const HeadwordEntry& a, const HeadwordEntry& b) {
  return std::tie(a.collationKey, a.sortKey, a.fnId) < std::tie(b.collationKey, b.sortKey, b.fnId);
}

HeadwordCollator::HeadwordCollator(uint8_t language)
    : language_(language),
      codePage_(CodePageOf(language)),
      collator_(OpenCollator(LangIdOf(language))) {}

HeadwordCollator::~HeadwordCollator() = default;

void HeadwordCollator::Closer::operator()(UCollator* collator) const { ucol_close(collator); }

HeadwordEntry HeadwordCollator::Entry(uint16_t fnId, std::u16string_view writing) const {
  HeadwordEntry entry;
  entry.fnId = fnId;
  entry.sortKey = sortKey(writing, language_);
  if (!collator_) return entry;
  const std::u16string asNarrow =
      DecodeCodePage(EncodeCodePage(entry.sortKey, codePage_), codePage_);
  entry.collationKey = CollationKey(collator_.get(), asNarrow);
  return entry;
}

}  // namespace lumora
