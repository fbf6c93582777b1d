// Glossary prefix search as `lumora serve` answers /api/d/1/glossary/find?q=TEXT&prefix=1&limit=20:
// through the content face, over the 65,534-word glossary (bench_glossary.h) put in place of the
// sample's, each answer made into its JSON text. Prints the time of one search at the median, at
// the 99th percentile (target: under 1 ms) and the longest. With a folder argument, the content
// root is written there and kept, for the HTTP run of bench/serve/api_bench.py.
//
//     glossary_find_timing [FOLDER]
#include <lumora/content.h>
#include <lumora/sample/sample_content.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "bench_glossary.h"

namespace {

namespace fs = std::filesystem;
constexpr uint32_t kLimit = 20;

// Writes the sample into `root` and replaces its glossary's files with the large glossary's.
bool MakeRoot(const std::string& root) {
  std::string error;
  if (!lumora::sample::WriteSampleContent(root, {1, false}, &error)) {
    std::fprintf(stderr, "%s\n", error.c_str());
    return false;
  }
  const fs::path glossary = fs::path(root) / "D001" / "C0000" / "r0001001";
  std::error_code failed;
  for (const auto& entry : fs::directory_iterator(glossary)) fs::remove(entry.path(), failed);
  for (const auto& entry : fs::directory_iterator(lumora::bench::Glossary().folder())) {
    if (entry.path().extension() == ".set" || entry.path().filename() == "CRCFile.ini") {
      fs::copy_file(entry.path(), glossary / entry.path().filename(), failed);
    }
  }
  return !failed;
}

// Prefixes of one to four letters of every 61st written form: short ones find thousands of words.
std::vector<std::string> Prefixes() {
  std::ifstream forms(lumora::bench::Glossary().plainForms());
  std::vector<std::string> prefixes;
  std::string form;
  for (int n = 0; std::getline(forms, form); ++n) {
    if (n % 61 != 0) continue;
    for (size_t length = 1; length <= 4 && length <= form.size(); ++length) {
      prefixes.push_back(form.substr(0, length));
    }
  }
  return prefixes;
}

double Millis(std::vector<double>& times, double fraction) {
  std::sort(times.begin(), times.end());
  return times[std::min(times.size() - 1, static_cast<size_t>(fraction * times.size()))];
}

}  // namespace

int main(int argc, char** argv) {
  if (!lumora::bench::Glossary().ready()) return 1;
  const fs::path scratch = fs::temp_directory_path() / "lumora-find-bench";
  const std::string root = (argc > 1 ? fs::path(argv[1]) : scratch).string() + "/";
  if (!MakeRoot(root)) return 1;
  lumora::Status status;
  auto content = lumora::ContentRoot::Open(root, {1, false}, &status);
  if (!content) {
    std::fprintf(stderr, "%s\n", status.ToString().c_str());
    return 1;
  }
  const std::vector<std::string> prefixes = Prefixes();
  std::vector<double> times;
  size_t bytes = 0;
  for (int round = 0; round < 5; ++round) {
    for (const std::string& prefix : prefixes) {
      const auto start = std::chrono::steady_clock::now();
      const lumora::Answer answer = content->FindWords(1, prefix, true, false, kLimit);
      bytes += answer.document.dump().size();
      const std::chrono::duration<double, std::milli> took =
          std::chrono::steady_clock::now() - start;
      if (!answer.ok()) return 1;
      times.push_back(took.count());
    }
  }
  std::printf(
      "%zu prefix searches (limit %u), %zu bytes of JSON: median %.3f ms, p99 %.3f ms, "
      "longest %.3f ms (goal: p99 under 1 ms)\n",
      times.size(), kLimit, bytes, Millis(times, 0.5), Millis(times, 0.99), Millis(times, 1.0));
  content.reset();
  if (argc <= 1) fs::remove_all(scratch);
  return Millis(times, 0.99) < 1.0 ? 0 : 1;
}
