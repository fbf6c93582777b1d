#include <lumora/maintenance.h>
#include <lumora/support/language_table.h>

#include <cstring>

namespace lumora {
namespace {

constexpr LanguageInfo kLanguages[kLanguageCount] = {
    {"Undefined", "XXX", 0, 1, 1252, 0x0000},
    {"Albanian", "ALB", 238, 1, 1250, 0x001C},
    {"Arabic", "ARA", 178, 0, 1256, 0x0001},
    {"Bahasa", "BAH", 0, 1, 1252, 0x0000},
    {"Belgian", "BEL", 0, 1, 1252, 0x0000},
    {"Brazilian", "BRA", 0, 1, 1252, 0x0416},
    {"Bulgarian", "BUL", 204, 1, 1250, 0x0002},
    {"Castilan", "CAS", 0, 1, 1252, 0x0000},
    {"Catalan", "CAT", 0, 1, 1252, 0x0003},
    {"Chinese", "CHI", 136, 1, 936, 0x0004},
    {"Croato", "CRO", 238, 1, 1250, 0x001A},
    {"Czech", "CZE", 238, 1, 1250, 0x0005},
    {"Danish", "DAN", 0, 1, 1252, 0x0006},
    {"Dutch", "DUT", 0, 1, 1252, 0x0013},
    {"EnglishUK", "ANG", 0, 1, 1252, 0x0009},
    {"EnglishUS", "AME", 0, 1, 1252, 0x0409},
    {"Finnish", "FIN", 0, 1, 1252, 0x000B},
    {"French", "FRA", 0, 1, 1252, 0x000C},
    {"German", "ALL", 0, 1, 1252, 0x0007},
    {"Greek", "GRE", 161, 1, 1253, 0x0008},
    {"Hebrew", "HEB", 177, 0, 1255, 0x000D},
    {"Hungarian", "HUN", 238, 1, 1250, 0x000E},
    {"Icelandic", "ICE", 0, 1, 1252, 0x000F},
    {"Italian", "ITA", 0, 1, 1252, 0x0010},
    {"Japanese", "JPN", 128, 1, 932, 0x0011},
    {"Korean", "KOR", 129, 1, 949, 0x0412},
    {"Norwegian", "NOR", 0, 1, 1252, 0x0014},
    {"Polish", "POL", 238, 1, 1250, 0x0015},
    {"Portugese", "POR", 0, 1, 1252, 0x0016},
    {"Rhaeto", "RHA", 0, 1, 1252, 0x0000},
    {"Romanian", "ROM", 238, 1, 1250, 0x0018},
    {"Russian", "RUS", 204, 1, 1251, 0x0019},
    {"Slovak", "SLO", 238, 1, 1250, 0x001B},
    {"Spanish", "ESP", 0, 1, 1252, 0x000A},
    {"Swedish", "SWE", 0, 1, 1252, 0x001D},
    {"Thai", "THA", 222, 1, 874, 0x001E},
    {"Turkish", "TUR", 162, 1, 1254, 0x001F},
    {"Urdu (Pakistan)", "URP", 0, 0, 1252, 0x0420},
    {"Vietnamese", "VIE", 163, 1, 1258, 0x002A},
    {"ChineseSimp", "CHS", 134, 1, 936, 0x0804},
    {"ChineseTrad", "CHT", 136, 1, 950, 0x0404},
    {"Estonian", "EST", 186, 1, 1257, 0x0025},
    {"PinYin", "PIN", 134, 1, 936, 0x0804},
    {"Kana", "KAN", 128, 1, 932, 0x0011},
    {"Afrikaans", "AFR", 0, 1, 1252, 0x0036},
    {"Basque", "BAS", 0, 1, 1252, 0x002D},
    {"Byelorussian", "BYE", 204, 1, 1251, 0x0023},
    {"Faeroese", "FAE", 238, 1, 1250, 0x0038},
    {"Farsi", "FAR", 178, 0, 1256, 0x0029},
    {"Indonesian", "IND", 0, 1, 1252, 0x0021},
    {"Latvian", "LAT", 186, 1, 1257, 0x0026},
    {"Lithuanian", "LIT", 186, 1, 1257, 0x0027},
    {"Serbian (Latin)", "SBL", 238, 1, 1250, 0x081A},
    {"Serbian (Cyril)", "SBC", 204, 1, 1251, 0x0C1A},
    {"Slovenian", "SLV", 238, 1, 1250, 0x0024},
    {"Ukrainian", "UKR", 204, 1, 1251, 0x0022},
    {"Romaji", "RMJ", 0, 1, 1252, 0x000C},
    {"Azeri (Latin)", "AZL", 162, 1, 1254, 0x042C},
    {"Azeri (Cyrillic)", "AZC", 204, 1, 1251, 0x082C},
    {"Kazak", "KAZ", 204, 1, 1251, 0x003F},
    {"Macedonian", "MAS", 204, 1, 1251, 0x002F},
    {"Malay (Malaysia)", "MAM", 0, 1, 1252, 0x043E},
    {"Swahili", "SWA", 0, 1, 1252, 0x0041},
    {"Tatar", "TAT", 204, 1, 1251, 0x0044},
    {"Uzbek (Latin)", "UZL", 162, 1, 1254, 0x0443},
    {"Uzbek (Cyrillic)", "UZC", 204, 1, 1251, 0x0843},
};

char AsciiUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

const LanguageInfo& LanguageRow(unsigned number) {
  return kLanguages[number < kLanguageCount ? number : 0];
}

uint16_t CodePageOf(unsigned number) { return LanguageRow(number).codePage; }

uint16_t LangIdOf(unsigned number) { return LanguageRow(number).langId; }

uint8_t NumberOfCode(std::string_view text) {
  char code[4] = {};
  for (size_t i = 0; i < 3 && i < text.size(); ++i) code[i] = AsciiUpper(text[i]);
  // Row 0 is the "no language" row and is never an answer of its own.
  for (size_t number = 1; number < kLanguageCount; ++number) {
    if (std::strcmp(kLanguages[number].code, code) == 0) return static_cast<uint8_t>(number);
  }
  return 0;
}

}  // namespace lumora
