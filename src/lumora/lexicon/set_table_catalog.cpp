#include <lumora/lexicon/classification.h>
#include <lumora/lexicon/glossary_records.h>
#include <lumora/lexicon/grammar_records.h>
#include <lumora/lexicon/set_table_catalog.h>

#include <array>
#include <map>
#include <tuple>
#include <type_traits>

namespace lumora {
namespace {

template <typename Key>
std::string KeyText(const Key& key) {
  if constexpr (std::is_integral_v<Key>) {
    return std::to_string(key);
  } else {
    std::string text;
    std::apply(
        [&text](const auto&... parts) {
          ((text += (text.empty() ? "(" : ", ") + std::to_string(parts)), ...);
        },
        key);
    return text + ")";
  }
}

template <typename Record, SetFamily kFamily>
SetDecode DecodeAs(const std::string& path) {
  SetDecode decode;
  std::map<decltype(std::declval<const Record&>().Key()), uint32_t> first_with_key;
  decode.result =
      LoadSetFile(path, kFamily, [&](Archive& ar, uint32_t version, SetRecordCursor& cursor) {
        ReadSetRecords<Record>(ar, version, cursor, [&](Record&& record) {
          const auto key = record.Key();
          decode.records.push_back({cursor.recordStart, KeyText(key)});
          const auto [kept, added] = first_with_key.try_emplace(key, cursor.record);
          if (!added) decode.repeated.push_back({cursor.record, kept->second});
        });
      });
  return decode;
}

constexpr SetFamily kGlo = SetFamily::kGlossary;
constexpr SetFamily kGr = SetFamily::kGrammar;
constexpr SetFamily kClass = SetFamily::kClassification;

constexpr std::array kKnownSetTables = {
    KnownSetTable{"t_Glo_FNs", kGlo, false, &DecodeAs<GloFNRecord, kGlo>},
    KnownSetTable{"t_Glo_Writings", kGlo, false, &DecodeAs<GloWritingRecord, kGlo>},
    KnownSetTable{"t_Glo_Links", kGlo, false, &DecodeAs<GloLinkRecord, kGlo>},
    KnownSetTable{"t_Glo_Cloud1600", kGlo, false, &DecodeAs<GloCloudRecord, kGlo>},
    KnownSetTable{"t_Glo_Sounds", kGlo, true, &DecodeAs<GloSoundRecord, kGlo>},
    KnownSetTable{"t_Glo_Reco1600", kGlo, true, &DecodeAs<GloRecoRecord, kGlo>},
    KnownSetTable{"t_Glo_FNTranslations", kGlo, false, &DecodeAs<GloFNTranslationRecord, kGlo>},
    KnownSetTable{"t_Glo_Comments", kGlo, false, &DecodeAs<GloCommentRecord, kGlo>},
    KnownSetTable{"t_Glo_FNSorted", kGlo, false, &DecodeAs<GloFNSortedRecord, kGlo>},
    KnownSetTable{"t_Glo_FNLetter", kGlo, false, &DecodeAs<GloFNLetterRecord, kGlo>},
    KnownSetTable{"t_Gr_Points", kGr, false, &DecodeAs<GrPointsRecord, kGr>},
    KnownSetTable{"t_Gr_Titles", kGr, false, &DecodeAs<GrTitlesRecord, kGr>},
    KnownSetTable{"t_Gr_Pictures", kGr, false, &DecodeAs<GrPicturesRecord, kGr>},
    KnownSetTable{"t_Gr_Subpoints", kGr, false, &DecodeAs<GrSubpointsRecord, kGr>},
    KnownSetTable{"t_Gr_Parts", kGr, false, &DecodeAs<GrPartsRecord, kGr>},
    KnownSetTable{"t_Gr_SubpointTitles", kGr, false, &DecodeAs<GrSubpointTitlesRecord, kGr>},
    KnownSetTable{"t_Gr_keywords", kGr, false, &DecodeAs<GrKeywordsRecord, kGr>},
    KnownSetTable{"t_Gr_Links", kGr, false, &DecodeAs<GrLinksRecord, kGr>},
    KnownSetTable{"t_Gr_Bubbles", kGr, false, &DecodeAs<GrBubblesRecord, kGr>},
    KnownSetTable{"t_FamSem", kClass, false, &DecodeAs<FamSemRecord, kClass>},
    KnownSetTable{"t_CatGram", kClass, false, &DecodeAs<CatGramRecord, kClass>},
    KnownSetTable{"t_GrammarPoint_Category", kClass, false,
                  &DecodeAs<GrammarPointCategoryRecord, kClass>},
    KnownSetTable{"t_Verb_Tense", kClass, false, &DecodeAs<VerbTenseRecord, kClass>},
    KnownSetTable{"t_Expression_SyntacticFunction", kClass, false,
                  &DecodeAs<SyntacticFunctionRecord, kClass>},
};

}  // namespace

std::vector<const KnownSetTable*> SetTablesOf(SetFamily family) {
  std::vector<const KnownSetTable*> tables;
  for (const KnownSetTable& table : kKnownSetTables) {
    if (table.family == family) tables.push_back(&table);
  }
  return tables;
}

const KnownSetTable* FindSetTable(std::string_view name) {
  for (const KnownSetTable& table : kKnownSetTables) {
    if (name == table.name) return &table;
  }
  return nullptr;
}

}  // namespace lumora
