// One integrity check of a whole content root: named checks, each counting what it looked at
// and reporting findings a content engineer can act on (which file, what is wrong and, where it
// helps, what the library will do about it). A check never writes into the tree: the one
// exception is the renaming of names whose case differs, done only when asked (fixCase).
#pragma once

#include <lumora/platform/progress.h>
#include <lumora/platform/typed_array.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

enum class Severity { kError, kWarning };

struct Finding {
  Severity severity = Severity::kError;
  std::string file;     // relative to the content root when it lies below it
  std::string message;  // one sentence (UTF-8)
  uint64_t count = 1;   // how many times the problem occurs: more than 1 where one finding
                        // stands for several (a key given many times)
};

struct CheckReport {
  std::string name;
  uint64_t checked = 0;  // files, sections, records or links looked at
  std::vector<Finding> findings;

  void Error(std::string file, std::string message, uint64_t count = 1);
  void Warning(std::string file, std::string message, uint64_t count = 1);
  uint64_t errors() const;
  uint64_t warnings() const;
};

struct CheckOptions {
  uint32_t disciplineFilter = 0;    // 0: every discipline the open would open
  std::vector<std::string> checks;  // empty: every check, in CheckNames() order
  ByteArray qualityFolders;         // media quality folders 1..3; empty: all three
  bool fixCase = false;             // rename names whose only difference is their case
  // When not empty, the checks of resource files one by one (resources, media) look only at
  // these files, named as findings name them: relative to the content root.
  std::vector<std::string> onlyResourceFiles;
  const Progress* progress = nullptr;
};

// The findings of one report as a person reads them: of the findings of one file that state the
// same problem (the same severity and message but for the numbers in it, such as one per word
// of an index whose offsets are all wrong), the first `shownAlike` are shown and the others
// only counted, on the last one shown. In report order.
struct ShownFinding {
  const Finding* finding;
  uint64_t moreLikeThis = 0;  // findings left out after this one
};
std::vector<ShownFinding> FindingsToShow(const std::vector<Finding>& findings,
                                         size_t shownAlike = 20);

// The names of the checks, in the order they run.
const std::vector<std::string>& CheckNames();
bool IsCheckName(std::string_view name);

// Runs the chosen checks over the content root (the folder of Content.ini), one report per
// check in CheckNames() order. The library's open disciplines are neither used nor changed.
// Unknown names in options.checks are left out.
std::vector<CheckReport> CheckContentRoot(const std::string& contentRoot,
                                          const CheckOptions& options);

}  // namespace lumora

#pragma GCC visibility pop
