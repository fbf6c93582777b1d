#include <lumora/lexicon/headword_prefixes.h>

#include <array>

namespace lumora {
namespace {

using std::u16string_view;

constexpr std::array<u16string_view, 4> kDutch{u"'s ", u"de ", u"een ", u"zich "};

constexpr std::array<u16string_view, 30> kEnglish{
    u"to ",       u"the ",      u"x ",       u"sb ",      u"sth ",      u"I'll ",
    u"I've ",     u"I'm ",      u"I'd ",     u"I ",       u"he is an ", u"he is a ",
    u"he's an ",  u"he's a ",   u"he is ",   u"he's ",    u"he ",       u"she is an ",
    u"she is a ", u"she's an ", u"she's a ", u"she is ",  u"she's ",    u"she ",
    u"we are ",   u"we're ",    u"we ",      u"you are ", u"you're ",   u"you "};

// "l'" has no blank: the article is written together with the word.
constexpr std::array<u16string_view, 4> kFrench{u"les ", u"le ", u"la ", u"l'"};

constexpr std::array<u16string_view, 15> kGerman{u"am ",   u"an ",    u"auf ", u"das ",  u"den ",
                                                 u"der ",  u"einen ", u"es ",  u"im ",   u"in ",
                                                 u"sich ", u"die ",   u"ein ", u"eine ", u"etw "};

constexpr std::array<u16string_view, 4> kSpanish{u"las ", u"la ", u"el ", u"los "};

}  // namespace

std::span<const u16string_view> HeadwordPrefixes(uint8_t language) {
  switch (language) {
    case 13:
      return kDutch;
    case 14:
    case 15:
      return kEnglish;
    case 17:
      return kFrench;
    case 18:
      return kGerman;
    case 33:
      return kSpanish;
    default:
      return {};
  }
}

}  // namespace lumora
