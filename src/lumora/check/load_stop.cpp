#include <lumora/check/load_stop.h>
#include <lumora/support/paths.h>

namespace lumora {

bool ReportLoadStop(const CheckedRoot& root, const std::string& folder, std::string_view what,
                    const LoadResult& load, std::string_view first, CheckReport& report) {
  if (load.ok()) return false;
  const std::string table = FileTitle(load.failure().file);
  const std::string kind(what);
  if (table == first) {
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
