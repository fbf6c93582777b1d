// A glossary's alphabetical order, its letters and its headwords' letter numbers are derived
// from the written forms: the stored ones must be what a rebuild gives. The rebuild runs on a
// copy of the headwords and written forms, so nothing of the checked glossary changes and
// nothing is written. Written forms whose parentheses do not pair up make every rebuild (each
// export) show the host a message; they are reported here instead, while the check's own
// rebuilds stay silent.
#include <lumora/check/glossary_checks.h>
#include <lumora/lexicon/glossary_rebuild.h>
#include <lumora/lexicon/headword_order.h>
#include <lumora/platform/notify.h>
#include <lumora/platform/utf8.h>

#include <string>
#include <utility>
#include <vector>

namespace lumora {
namespace {

constexpr const char* kResort = ": lumora glossary resort --write saves the rebuilt ";

// Counts the messages the library shows while it lives, instead of showing them.
class NotifyCount {
 public:
  NotifyCount() : previous_(SetNotifyHandler([this](const std::string&) { ++count_; })) {}
  ~NotifyCount() { SetNotifyHandler(std::move(previous_)); }
  NotifyCount(const NotifyCount&) = delete;
  NotifyCount& operator=(const NotifyCount&) = delete;

  size_t count() const { return count_; }

 private:
  size_t count_ = 0;
  NotifyHandler previous_;
};

void CheckParentheses(const CheckedRoot& root, const CGloV6& g, CheckReport& report) {
  const NotifyCount messages;
  for (const GloFNRecord& fn : g.fns) {
    if (fn.kind != GloFNRecord::kEntryKind) continue;
    const GloWritingRecord* writing = g.writings.Find(fn.writingId);
    if (writing == nullptr) continue;
    const size_t before = messages.count();
    sortKey(writing->writing.view(), g.language);
    if (messages.count() == before) continue;
    report.Warning(GlossaryFile(root, g, "t_Glo_Writings.set"),
                   WordText(g, fn.fnId) +
                       " has parentheses that do not pair up: every rebuild of the order (each "
                       "export) shows the host a message about it");
  }
}

template <typename Record, typename Describe>
size_t FirstDifference(const SetTable<Record>& stored, const SetTable<Record>& rebuilt,
                       Describe describe) {
  const auto& a = stored.records();
  const auto& b = rebuilt.records();
  size_t i = 0;
  while (i < a.size() && i < b.size() && describe(a[i]) == describe(b[i])) ++i;
  return i;
}

template <typename Record, typename Describe>
std::string At(const SetTable<Record>& table, size_t i, Describe describe) {
  return i < table.size() ? describe(table.records()[i]) : std::string("nothing");
}

std::string Position(const GloFNSortedRecord& r) { return "word " + std::to_string(r.fnId); }

std::string Letter(const GloFNLetterRecord& r) {
  std::string text = "\"";
  text += Utf16ToUtf8(r.letter.view());
  text += "\" at positions " + std::to_string(r.attrA) + "-" + std::to_string(r.attrB);
  return text;
}

void CompareOrder(const CheckedRoot& root, const CGloV6& g, const CGloV6& rebuilt,
                  CheckReport& report) {
  const size_t i = FirstDifference(g.sorted, rebuilt.sorted, Position);
  if (i == g.sorted.size() && i == rebuilt.sorted.size()) return;
  report.Error(GlossaryFile(root, g, "t_Glo_FNSorted.set"),
               "differs from a rebuild from the written forms (" + std::to_string(g.sorted.size()) +
                   " positions stored, " + std::to_string(rebuilt.sorted.size()) +
                   " rebuilt; position " + std::to_string(i + 1) + " holds " +
                   At(g.sorted, i, Position) + ", the rebuild " + At(rebuilt.sorted, i, Position) +
                   ")" + kResort + "order");
}

void CompareLetters(const CheckedRoot& root, const CGloV6& g, const CGloV6& rebuilt,
                    CheckReport& report) {
  const size_t i = FirstDifference(g.letters, rebuilt.letters, Letter);
  if (i == g.letters.size() && i == rebuilt.letters.size()) return;
  report.Error(GlossaryFile(root, g, "t_Glo_FNLetter.set"),
               "differs from a rebuild from the written forms (" +
                   std::to_string(g.letters.size()) + " letters stored, " +
                   std::to_string(rebuilt.letters.size()) + " rebuilt; letter " +
                   std::to_string(i + 1) + " is " + At(g.letters, i, Letter) + ", the rebuild's " +
                   At(rebuilt.letters, i, Letter) + ")" + kResort + "letters");
}

void CompareLetterNumbers(const CheckedRoot& root, const CGloV6& g, const CGloV6& rebuilt,
                          CheckReport& report) {
  size_t differing = 0;
  const GloFNRecord* first_stored = nullptr;
  const GloFNRecord* first_rebuilt = nullptr;
  for (const GloFNRecord& fn : g.fns) {
    const GloFNRecord* other = rebuilt.fns.Find(fn.fnId);
    if (fn.kind != GloFNRecord::kEntryKind || other == nullptr || other->letterId == fn.letterId) {
      continue;
    }
    if (differing++ == 0) {
      first_stored = &fn;
      first_rebuilt = other;
    }
  }
  if (differing == 0) return;
  report.Error(GlossaryFile(root, g, "t_Glo_FNs.set"),
               std::to_string(differing) +
                   " headwords have another letter than a rebuild from the written forms gives "
                   "them (word " +
                   std::to_string(first_stored->fnId) + " has letter " +
                   std::to_string(first_stored->letterId) + ", the rebuild " +
                   std::to_string(first_rebuilt->letterId) + ")" + kResort + "letters");
}

}  // namespace

void CheckGlossaryOrder(const CheckedRoot& root, const CGloV6& g, CheckReport& report) {
  CheckParentheses(root, g, report);
  CGloV6 rebuilt;
  rebuilt.language = g.language;
  rebuilt.folder = g.folder;
  rebuilt.fns = g.fns;
  rebuilt.writings = g.writings;
  {
    const NotifyCount silenced;
    if (!rebuildSortAndLetters(rebuilt)) return;
  }
  CompareOrder(root, g, rebuilt, report);
  CompareLetters(root, g, rebuilt, report);
  CompareLetterNumbers(root, g, rebuilt, report);
}

}  // namespace lumora
