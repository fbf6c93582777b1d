// The classification and the class numbers the lexicon uses: the tables load, every class a
// glossary word lists is a semantic family or a grammatical category, and every grammar
// subpoint's category and subcategory is a grammar point category. Without its record the host
// has no label for a class. A classification that stops loading is one finding; the numbers
// are then not compared with tables that stayed empty.
//
// A subpoint's categoryCode holds its category in the millions and its subcategory in the ten
// thousands (2010000: category 2000000, subcategory 2010000). Grammar point categories are
// numbered by the code's ten thousands, in the classification's hierarchy of hundreds: category
// 2000000 is grammar point category 200, subcategory 2010000 is 201.
#include <lumora/check/checks.h>
#include <lumora/check/load_stop.h>

#include <map>
#include <string>

namespace lumora {
namespace {

constexpr uint32_t kCategory = 1000000;
constexpr uint32_t kSubcategory = 10000;

// The uses of one class number: how many records and the first of them.
struct Uses {
  uint32_t count = 0;
  uint32_t first = 0;
};

void Use(std::map<uint32_t, Uses>& uses, uint32_t number, uint32_t record) {
  Uses& u = uses[number];
  if (u.count++ == 0) u.first = record;
}

// "word 3", or "word 3 and 2 more" when others use the number too.
std::string UsedBy(const char* record, const Uses& uses) {
  std::string text = record;
  text += ' ';
  text += std::to_string(uses.first);
  if (uses.count > 1) text += " and " + std::to_string(uses.count - 1) + " more";
  return text;
}

void CheckWordClasses(const CheckedRoot& root, const CGloV6& g, CheckReport& report) {
  std::map<uint32_t, Uses> unknown;
  for (const GloFNRecord& fn : g.fns) {
    for (uint32_t id : fn.classIds) {
      ++report.checked;
      const Classification& c = root.classification;
      if (c.famSem.Find(id) == nullptr && c.catGram.Find(id) == nullptr) Use(unknown, id, fn.fnId);
    }
  }
  for (const auto& [id, uses] : unknown) {
    report.Error(root.Relative(g.folder + "t_Glo_FNs.set"),
                 "class " + std::to_string(id) + ", listed by " + UsedBy("word", uses) +
                     ", is in neither t_FamSem nor t_CatGram: the host has no label for it");
  }
}

void CheckSubpointCategories(const CheckedRoot& root, const CGramV6& g, CheckReport& report) {
  std::map<uint32_t, Uses> unknown;  // by the code rounded to its category or subcategory
  for (const GrSubpointsRecord& s : g.subpoints) {
    if (s.categoryCode == 0) continue;
    for (uint32_t step : {kCategory, kSubcategory}) {
      const uint32_t code = s.categoryCode / step * step;
      // A code that is a whole category has no subcategory of its own.
      if (step == kSubcategory && code % kCategory == 0) continue;
      ++report.checked;
      const auto id = code / kSubcategory;
      if (root.classification.grammarPointCategories.Find(id) == nullptr) {
        Use(unknown, code, s.subpointId);
      }
    }
  }
  for (const auto& [code, uses] : unknown) {
    const std::string kind = code % kCategory == 0 ? "category " : "subcategory ";
    report.Error(root.Relative(g.folder + "t_Gr_Subpoints.set"),
                 kind + std::to_string(code) + " of " + UsedBy("subpoint", uses) +
                     " is grammar point category " + std::to_string(code / kSubcategory) +
                     ", which t_GrammarPoint_Category lacks: the host has no label for it");
  }
}

}  // namespace

void CheckClassification(const CheckedRoot& root, CheckReport& report) {
  if (!root.iniLoaded) return;
  if (ReportLoadStop(root, root.classification.folder, "classification", root.classificationLoad,
                     "t_FamSem", report)) {
    return;
  }
  for (const CheckedDiscipline& d : root.disciplines) {
    CheckWordClasses(root, d.discipline->glossary, report);
    CheckSubpointCategories(root, d.discipline->grammar, report);
  }
}

}  // namespace lumora
