// Writes a realistic content root through the library's own writers: the demo's content, the
// tests' fixtures and the benchmarks' data.
#pragma once

#include <string>

#include <lumora/sample/sample_layout.h>

namespace lumora::sample {

struct SampleOptions {
  // Units of content per discipline, 1 to kMaxScale: each adds twelve resource files per
  // discipline (eight type-1005 elements and four type-40 exercises).
  int scale = 1;
  // Whether the tree is flushed to disk once written. A test's tree, gone when the test ends,
  // need not wait for the disk.
  bool durable = true;
};

// Writes the content root into `dir` (created if missing); the same options always give the
// same bytes. False with a one-line reason in `error` for a scale out of range or when a folder
// or file cannot be written.
bool WriteSampleContent(const std::string& dir, const SampleOptions& options, std::string* error);

}  // namespace lumora::sample
