// Index rebuilds into another folder (the discipline's own files stay as they are) and the
// glossary's alphabetical order rebuilt in memory.
//
//   rebuild_and_resort ROOT OUT
#include <lumora/maintenance.h>

#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  if (!lmOpen(argv[1], 1)) return 1;
  int result = 1;
  const std::optional<lumora::DisciplineSummary> discipline = lumora::OpenedDisciplineById(1);
  std::vector<lumora::RebuiltIndex> rebuilt;
  const lumora::Status status = lumora::RebuildIndexes(
      discipline->localRoot, argv[2], lumora::ExerciseTypeNumbers(), false, &rebuilt);
  if (status.ok()) {
    result = 0;
    for (const lumora::RebuiltIndex& index : rebuilt) {
      std::printf("type %u: %s, %llu entries\n", index.type, index.built ? "rebuilt" : "failed",
                  static_cast<unsigned long long>(index.entries));
      if (!index.built) result = 1;
    }
  }
  const lumora::ContentRequest request{0, 1, 1, lumora::kPathLocal};
  if (lumora::CGloV6* glossary = lmGetGlossary(&request)) {
    const lumora::Status resorted = lumora::ResortGlossary(*glossary, false);
    std::printf("glossary resorted: %s\n", resorted.ok() ? "yes" : resorted.reason.c_str());
  }
  lmClose();
  return result;
}
