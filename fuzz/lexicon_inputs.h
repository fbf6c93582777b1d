// What the lexicon targets and the seed writer agree on, so that seeds keep their meaning.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace fuzzing {

// The set files the targets read, named as in a content tree: the glossary's ten in the order it
// reads them, then the grammar's nine, then the classification's tables of the three record
// forms. set_files_fuzz picks its reader by position in this list and glossary_folder_fuzz
// writes the first ten in this order.

inline constexpr size_t kGlossaryTableCount = 10;

inline constexpr std::array<std::u16string_view, 22> kSetFileNames = {
    u"t_Glo_FNs",
    u"t_Glo_Writings",
    u"t_Glo_Links",
    u"t_Glo_Cloud1600",
    u"t_Glo_Sounds",
    u"t_Glo_Reco1600",
    u"t_Glo_FNTranslations",
    u"t_Glo_Comments",
    u"t_Glo_FNSorted",
    u"t_Glo_FNLetter",
    u"t_Gr_Points",
    u"t_Gr_Titles",
    u"t_Gr_Pictures",
    u"t_Gr_Subpoints",
    u"t_Gr_Parts",
    u"t_Gr_SubpointTitles",
    u"t_Gr_keywords",
    u"t_Gr_Links",
    u"t_Gr_Bubbles",
    u"t_FamSem",
    u"t_CatGram",
    u"t_Expression_SyntacticFunction",
};

// The glossary tables that may be read through an index file.
inline constexpr std::array<std::u16string_view, 2> kIndexedTables = {u"t_Glo_Sounds",
                                                                      u"t_Glo_Reco1600"};

// The languages glossary_folder_fuzz picks from: three with a locale comparison (French,
// English, German) and one without.
inline constexpr std::array<uint8_t, 4> kGlossaryLanguages = {17, 15, 14, 200};

}  // namespace fuzzing
