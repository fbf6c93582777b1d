#include <lumora/support/accent_table.h>

#include <array>
#include <string_view>

namespace lumora {
namespace {

struct AccentRow {
  char16_t upperPlain;
  char16_t lowerPlain;
};

constexpr size_t kRows = 256;

// One group of the table: every unit of members reduces to upper / lower.
struct AccentGroup {
  std::u16string_view members;
  char16_t upper;
  char16_t lower;
};

constexpr AccentGroup kGroups[] = {
    {u"ÀÁÂÃÄÅàáâãäå", u'A', u'a'}, {u"Çç", u'C', u'c'},  {u"ÈÉÊËèéêë", u'E', u'e'},
    {u"ÌÍÎÏìíîï", u'I', u'i'},     {u"Ññ", u'N', u'n'},  {u"ÒÓÔÕÖØòóôõöø", u'O', u'o'},
    {u"ÙÚÛÜùúûü", u'U', u'u'},     {u"Ýýÿ", u'Y', u'y'}, {u"Ææ", u'Æ', u'æ'},
    {u"Ðð", u'Ð', u'ð'},           {u"Þþ", u'Þ', u'þ'},
};

constexpr std::array<AccentRow, kRows> BuildTable() {
  std::array<AccentRow, kRows> table{};
  for (size_t i = 0; i < kRows; ++i) {
    char16_t unit = static_cast<char16_t>(i);
    table[i] = {unit, unit};
  }
  for (char16_t c = u'A'; c <= u'Z'; ++c) {
    char16_t small = static_cast<char16_t>(c - u'A' + u'a');
    table[c] = table[small] = {c, small};
  }
  for (const AccentGroup& group : kGroups) {
    for (char16_t member : group.members) table[member] = {group.upper, group.lower};
  }
  return table;
}

constexpr std::array<AccentRow, kRows> kTable = BuildTable();

}  // namespace

char16_t AccentTable::UpperPlain(char16_t unit) {
  return unit < kRows ? kTable[unit].upperPlain : unit;
}

char16_t AccentTable::LowerPlain(char16_t unit) {
  return unit < kRows ? kTable[unit].lowerPlain : unit;
}

}  // namespace lumora
