// The face for programs: open a content root, walk its disciplines and the resources each
// index lists, and print one description as `lumora resource --json` does.
//
//   open_and_walk ROOT
#include <lumora/content.h>

#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  lumora::Status status;
  std::unique_ptr<lumora::ContentRoot> root = lumora::ContentRoot::Open(argv[1], {}, &status);
  if (!root) {
    std::fprintf(stderr, "%s\n", status.ToString().c_str());
    return 1;
  }
  for (const lumora::DisciplineSummary& discipline : root->Disciplines()) {
    for (uint32_t type : discipline.types) {
      const std::vector<uint32_t> ids = root->ResourceIds(discipline.id, type);
      std::printf("discipline %u type %u: %zu resources\n", discipline.id, type, ids.size());
    }
  }
  const lumora::Answer answer = root->Resource(1, 5, (1u << 20) | 1u);
  if (!answer.ok()) {
    std::fprintf(stderr, "%s\n", answer.status.ToString().c_str());
    return 1;
  }
  std::printf("%s\n", answer.document.dump(2).c_str());
  return 0;
}
