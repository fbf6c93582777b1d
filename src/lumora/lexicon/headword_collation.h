// The comparison behind a glossary's alphabetical order. Words compare by their sort keys as
// the language's locale orders them, ignoring case; the locale sees the key the way a narrow
// text in the language's code page reads, so characters the code page cannot hold compare as
// their stand-ins. Equal keys fall back to their UTF-16 code units, then to the word number.
//
// A full sort would convert and collate each word many times over; instead each word gets its
// key once, and the order is a plain comparison of precomputed bytes.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct UCollator;

namespace lumora {

// A word as the order sees it. `orderKey` holds, one after the other, the locale's binary key
// of the word's sort key, a zero byte (which no binary key contains, so a shorter key stays
// first), the sort key's code units high byte first, two zero bytes, and the word number high
// byte first: comparing these bytes is the whole order, as fast as sorting by the binary keys.
struct HeadwordEntry {
  std::string orderKey;
  uint16_t fnId = 0;
  uint8_t letter = 0;  // the word's letter section (firstLetter)
};

inline bool wordLess(const HeadwordEntry& a, const HeadwordEntry& b) {
  return a.orderKey < b.orderKey;
}

// The locale comparison of one language, opened once for a whole rebuild.
class HeadwordCollator {
 public:
  explicit HeadwordCollator(uint8_t language);
  ~HeadwordCollator();
  HeadwordCollator(const HeadwordCollator&) = delete;
  HeadwordCollator& operator=(const HeadwordCollator&) = delete;

  // False when the language's identifier names no locale the comparison knows: then no two
  // words compare as less than each other.
  bool usable() const { return collator_ != nullptr; }

  // The entry of word `fnId` written as `writing`; without a usable collator its key holds
  // only the tie-breaks.
  HeadwordEntry Entry(uint16_t fnId, std::u16string_view writing) const;

 private:
  struct Closer {
    void operator()(UCollator* collator) const;
  };

  // The key as the narrow text reads it, in a buffer reused from word to word.
  const std::u16string& AsNarrowReadsIt(const std::u16string& key) const;

  uint8_t language_;
  uint16_t codePage_;
  std::unique_ptr<UCollator, Closer> collator_;
  // What each code unit below 256 becomes on its way to the code page and back; 0 where that
  // is not one unit. Code pages convert character by character, so a key made of such units
  // needs no converter.
  std::array<char16_t, 256> throughCodePage_;
  mutable std::u16string scratch_;
};

}  // namespace lumora
