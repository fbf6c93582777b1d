// The glossary at the largest size its 16-bit word numbers allow (65,534 words, each with a
// written form, a place in the alphabetical order, a translation and a sound, with comments and
// links for some), saved once into a scratch folder for the benchmarks that read or save it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lumora::bench {

class BenchGlossary {
 public:
  BenchGlossary();
  ~BenchGlossary();
  BenchGlossary(const BenchGlossary&) = delete;
  BenchGlossary& operator=(const BenchGlossary&) = delete;

  bool ready() const { return ready_; }
  const std::string& folder() const { return folder_; }
  const std::vector<std::string>& setFiles() const { return setFiles_; }
  uint64_t setBytes() const { return setBytes_; }
  // The written forms in alphabetical order, accents and case removed, one per line.
  std::string plainForms() const { return folder_ + "plain.txt"; }

 private:
  std::string folder_;
  std::vector<std::string> setFiles_;
  uint64_t setBytes_ = 0;
  bool ready_ = false;
};

// Made on first use, removed at exit.
const BenchGlossary& Glossary();

}  // namespace lumora::bench
