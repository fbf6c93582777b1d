// Each discipline's glossary as the library loaded it: the words its links, its alphabetical
// order and its letters name exist, its two indexes agree with their tables and its sounds
// with the disk, and the order is the one a rebuild gives. A glossary that stops loading is
// one finding: what the library holds of it then is not worth checking.
//
// A link names a word through its attrB: the lesson searches and the export follow that field
// (an attrC of 1 says the link names one).
#include <lumora/check/checks.h>
#include <lumora/check/glossary_checks.h>
#include <lumora/check/load_stop.h>
#include <lumora/platform/utf8.h>

#include <string>

namespace lumora {
namespace {

constexpr uint8_t kLinkNamesWord = 1;
constexpr const char* kNeverListed = ": the letter and text searches never list it";

// Headwords without a letter, or with one the letter table has no bucket for.
void CheckLetters(const CheckedRoot& root, const CGloV6& g, CheckReport& report) {
  const std::string file = GlossaryFile(root, g, "t_Glo_FNs.set");
  for (const GloFNRecord& fn : g.fns) {
    ++report.checked;
    if (fn.kind != GloFNRecord::kEntryKind) continue;
    if (fn.letterId == 0) {
      report.Error(file, WordText(g, fn.fnId) + " has no letter" + kNeverListed);
    } else if (fn.letterId > g.letters.size()) {
      report.Error(file, WordText(g, fn.fnId) + " has letter " + std::to_string(fn.letterId) +
                             ", beyond the " + std::to_string(g.letters.size()) +
                             " letters of t_Glo_FNLetter" + kNeverListed);
    }
  }
}

void CheckLinks(const CheckedRoot& root, const CGloV6& g, CheckReport& report) {
  const std::string file = GlossaryFile(root, g, "t_Glo_Links.set");
  for (const GloLinkRecord& link : g.links) {
    ++report.checked;
    if (link.attrC != kLinkNamesWord && link.attrB == 0) continue;
    if (g.fns.Find(link.attrB) != nullptr) continue;
    report.Error(file, "the link from " + std::to_string(link.fromId) + " to " +
                           std::to_string(link.toId) + " names word " + std::to_string(link.attrB) +
                           ", which t_Glo_FNs lacks: the searches over the words of " +
                           std::to_string(link.fromId) + " and its exports leave it out");
  }
}

void CheckOrderEntries(const CheckedRoot& root, const CGloV6& g, CheckReport& report) {
  const std::string file = GlossaryFile(root, g, "t_Glo_FNSorted.set");
  for (const GloFNSortedRecord& entry : g.sorted) {
    ++report.checked;
    if (g.fns.Find(entry.fnId) != nullptr) continue;
    report.Error(file, "position " + std::to_string(entry.position) + " names word " +
                           std::to_string(entry.fnId) +
                           ", which t_Glo_FNs lacks: the letter and text searches skip it");
  }
}

}  // namespace

std::string GlossaryFile(const CheckedRoot& root, const CGloV6& g, std::string_view name) {
  return root.Relative(g.folder + std::string(name));
}

std::string WordText(const CGloV6& g, uint16_t fnId) {
  const std::u16string writing = g.getWritingText(fnId);
  std::string text = "word " + std::to_string(fnId);
  if (!writing.empty()) text += " (\"" + Utf16ToUtf8(writing) + "\")";
  return text;
}

void CheckGlossary(const CheckedRoot& root, CheckReport& report) {
  for (const CheckedDiscipline& d : root.disciplines) {
    const CGloV6& g = d.discipline->glossary;
    if (ReportLoadStop(root, g.folder, "glossary", d.lexicon.glossary, "t_Glo_FNs", report)) {
      continue;
    }
    CheckLetters(root, g, report);
    CheckLinks(root, g, report);
    CheckOrderEntries(root, g, report);
    CheckGlossaryIndexes(root, g, report);
    CheckGlossaryOrder(root, g, report);
  }
}

}  // namespace lumora
