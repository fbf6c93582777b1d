// The check of what an export wrote: the integrity checks run over the exported discipline, and
// each finding weighed against the source, so that what the export damaged stands out from what
// it only carried over.
//
// Findings that the same checks have on the source for the same file (paths taken relative to
// the discipline's folder on both sides) are inherited. Two kinds of finding are the export's
// own way and become one warning per exercise type, with their count: the media it copies for
// no resource of types 19, 21, 28 and 1003, and the type-1005 resources that exported resources
// link to but no exported package lists (the export copies exactly the listed resources). The
// source is checked only when the export has errors left to weigh, only by the checks that found
// them.
#pragma once

#include <lumora/maintenance.h>

#include <cstdint>
#include <string>
#include <vector>

#include "check_print.h"

namespace lumora::cli {

struct ExportChecks {
  std::vector<CheckReport> reports;
  InheritedFindings inherited;  // one mark per finding of each report

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

ExportChecks CheckExport(const ExportCheckInput& input);

}  // namespace lumora::cli
