// The check of a whole content root, with its progress, and its findings as a program would
// list them. Findings are the answer, not a failure of the program (the sample holds a few on
// purpose).
//
//   check ROOT
#include <lumora/maintenance.h>

#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  uint32_t steps = 0;
  const lumora::Progress progress([](uint32_t) {}, [&steps](uint32_t) { ++steps; });
  lumora::CheckOptions options;
  options.progress = &progress;
  uint64_t errors = 0;
  for (const lumora::CheckReport& report : lumora::CheckContentRoot(argv[1], options)) {
    std::printf("%s: %llu checked, %llu errors, %llu warnings\n", report.name.c_str(),
                static_cast<unsigned long long>(report.checked),
                static_cast<unsigned long long>(report.errors()),
                static_cast<unsigned long long>(report.warnings()));
    for (const lumora::ShownFinding& shown : lumora::FindingsToShow(report.findings)) {
      std::printf("  %s: %s\n", shown.finding->file.c_str(), shown.finding->message.c_str());
    }
    errors += report.errors();
  }
  std::printf("progress steps: %u, %llu errors\n", steps, static_cast<unsigned long long>(errors));
  return 0;
}
