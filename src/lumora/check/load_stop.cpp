#include <lumora/check/load_stop.h>
#include <lumora/platform/utf8.h>

namespace lumora {

bool ReportLoadStop(const CheckedRoot& root, const std::string& folder, std::string_view what,
                    std::u16string_view stop, std::u16string_view first, CheckReport& report) {
  if (stop.empty()) return false;
  const std::string table = Utf16ToUtf8(stop);
  const std::string kind(what);
  if (stop == first) {
    report.Error(root.Relative(folder), "the " + kind + " does not load (table " + table +
                                            " fails; the sets check says why): the library "
                                            "answers every " +
                                            kind + " query as empty");
  } else {
    report.Error(root.Relative(folder), "the " + kind + " stops loading at table " + table +
                                            " (the sets check says why): that table and the ones "
                                            "after it stay empty");
  }
  return true;
}

}  // namespace lumora
