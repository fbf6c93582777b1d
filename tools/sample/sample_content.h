// Writes a realistic content root through the library's own writers: the demo's content, the
// tests' fixtures and the benchmarks' data.
#pragma once

#include <string>

namespace lumora::sample {

struct SampleOptions {
  // Multiplies the number of resources per discipline.
  int scale = 1;
};

// Writes the content root into `dir` (created if missing). False with a one-line reason in
// `error` when a folder or file cannot be written.
bool WriteSampleContent(const std::string& dir, const SampleOptions& options, std::string* error);

}  // namespace lumora::sample
