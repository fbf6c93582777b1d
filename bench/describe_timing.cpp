// The C++ side of bench/python_describe.py: opens a content root through the content face,
// describes every resource of one discipline in index order, and prints the seconds the loop
// took and how many resources it described.
//
//     describe_timing ROOT DISCIPLINE
#include <lumora/content.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: describe_timing ROOT DISCIPLINE\n");
    return 2;
  }
  const uint32_t discipline = static_cast<uint32_t>(std::strtoul(argv[2], nullptr, 10));
  lumora::Status status;
  const auto root = lumora::ContentRoot::Open(argv[1], {}, &status);
  const auto summary = root ? root->Discipline(discipline) : std::nullopt;
  if (!summary) {
    std::fprintf(stderr, "%s: %s\n", argv[1],
                 root ? "no such discipline" : status.ToString().c_str());
    return 1;
  }
  const auto start = std::chrono::steady_clock::now();
  size_t described = 0;
  size_t bytes = 0;
  for (uint32_t type : summary->types) {
    for (uint32_t id : root->ResourceIds(discipline, type)) {
      const lumora::Answer answer = root->Resource(discipline, type, id);
      bytes += answer.document.size();
      ++described;
    }
  }
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  std::printf("%.6f %zu %zu\n", took.count(), described, bytes);
  return 0;
}
