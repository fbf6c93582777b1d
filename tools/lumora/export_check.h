// The check of what an export wrote: the integrity checks run over the exported discipline, and
// each finding weighed against the source, so that what the export damaged stands out from what
// it only carried over.
//
// Findings that the same checks have on the source for the same file (paths taken relative to
// the discipline's folder on both sides) are inherited. The media that the export copies for no
// resource of types 19, 21, 28 and 1003 are missing from every export: their findings become one
// warning per type. The source is checked only when the export has findings left to weigh, and
// only by the checks that found them.
#pragma once

#include <lumora/check/content_check.h>
#include <lumora/platform/typed_array.h>

#include <cstdint>
#include <string>
#include <vector>

namespace lumora::cli {

struct ExportFinding {
  Finding finding;
  bool inherited = false;  // the source has it too
  uint64_t count = 1;      // the findings of the check that this one stands for
};

struct ExportCheckReport {
  std::string name;
  uint64_t checked = 0;
  std::vector<ExportFinding> findings;

  uint64_t errors() const;
  uint64_t warnings() const;
  // Errors the source does not have: the export damaged something.
  uint64_t damage() const;
};

struct ExportCheckInput {
  std::string sourceRoot;
  std::string sourceLocalRoot;  // the discipline's folder of resources in the source
  std::string destination;      // the export's content root
  std::string exportFolder;     // the discipline's folder below it
  uint32_t discipline = 0;
  ByteArray qualityFolders;
  bool allMedia = false;  // the media the export leaves behind were copied after it
  const Progress* progress = nullptr;
};

// The checks that an export is checked by, in the order they run.
const std::vector<std::string>& ExportCheckNames();

std::vector<ExportCheckReport> CheckExport(const ExportCheckInput& input);

}  // namespace lumora::cli
