#include "export_check.h"

#include <lumora/support/paths.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>
#include <tuple>

#include "uncopied_media.h"

namespace lumora::cli {
namespace {

constexpr const char* kMediaCheck = "media";

using FindingKey = std::tuple<std::string, std::string, std::string>;

// `path` as the checks write it: relative to the content root when it lies below it.
std::string AsChecksWrite(const std::string& root, const std::string& path) {
  const std::string prefix = WithBackslash(root);
  return path.size() > prefix.size() && path.compare(0, prefix.size(), prefix) == 0
             ? path.substr(prefix.size())
             : path;
}

// A finding's text with the discipline's folder taken out wherever it is named, so that the
// source's files and the export's copies of them read the same.
std::string WithoutFolder(std::string text, const std::string& folder) {
  if (folder.empty()) return text;
  for (size_t at = text.find(folder); at != std::string::npos; at = text.find(folder, at)) {
    text.erase(at, folder.size());
  }
  return text;
}

FindingKey KeyOf(const std::string& check, const Finding& f, const std::string& folder) {
  return {check, WithoutFolder(f.file, folder), WithoutFolder(f.message, folder)};
}

// The exercise type of a resource file "C%04d/r%07d/..." below the discipline's folder, or 0.
uint32_t TypeOfResourceFile(const std::string& relative) {
  unsigned course = 0, type = 0;
  char separator[2] = {};
  if (std::sscanf(relative.c_str(), "C%4u/r%7u%1[/]", &course, &type, separator) != 3) return 0;
  return type;
}

// A media finding that says a medium is missing, rather than a linked resource file or an item
// without media: the path of a quality folder, or a video resource's missing video or picture.
bool NamesMissingMedium(const std::string& message) {
  for (const char* folder : {"/Q1/", "/Q2/", "/Q3/"}) {
    if (message.find(folder) != std::string::npos) return true;
  }
  return message.starts_with("No video found") || message.starts_with("No picture found");
}

struct Uncopied {
  uint64_t findings = 0;
  std::set<std::string> resources;
};

ExportFinding UncopiedWarning(const std::string& exportFolder, uint32_t type,
                              const Uncopied& uncopied) {
  const std::string text =
      "type " + std::to_string(type) + ": the export copies no media of this type, so " +
      std::to_string(uncopied.findings) + " media of " + std::to_string(uncopied.resources.size()) +
      (uncopied.resources.size() == 1 ? " resource are" : " resources are") +
      " missing (--all-media copies them)";
  return {{Severity::kWarning, exportFolder, text}, false, uncopied.findings};
}

std::vector<ExportCheckReport> Annotated(const std::vector<CheckReport>& reports) {
  std::vector<ExportCheckReport> annotated;
  for (const CheckReport& r : reports) {
    ExportCheckReport a{r.name, r.checked, {}};
    for (const Finding& f : r.findings) a.findings.push_back({f});
    annotated.push_back(std::move(a));
  }
  return annotated;
}

// Takes the missing media of the types the export copies no media of out of the media report,
// and puts one warning per type in their place.
void SummarizeUncopiedMedia(ExportCheckReport& media, const std::string& exportFolder) {
  std::map<uint32_t, Uncopied> uncopied;
  std::vector<ExportFinding> kept;
  for (ExportFinding& f : media.findings) {
    const uint32_t type = TypeOfResourceFile(WithoutFolder(f.finding.file, exportFolder));
    if (IsUncopiedMediaType(type) && NamesMissingMedium(f.finding.message)) {
      ++uncopied[type].findings;
      uncopied[type].resources.insert(f.finding.file);
    } else {
      kept.push_back(std::move(f));
    }
  }
  for (const auto& [type, u] : uncopied) kept.push_back(UncopiedWarning(exportFolder, type, u));
  media.findings = std::move(kept);
}

// Marks the findings that the same checks have on the source.
void MarkInherited(std::vector<ExportCheckReport>& reports, const ExportCheckInput& input,
                   const std::string& exportFolder) {
  CheckOptions options;
  options.disciplineFilter = input.discipline;
  options.qualityFolders = input.qualityFolders;
  // Warnings alone do not make an export damaged: they are weighed only beside errors.
  for (const ExportCheckReport& r : reports) {
    if (r.damage() > 0) options.checks.push_back(r.name);
  }
  if (options.checks.empty()) return;
  const std::string sourceFolder = AsChecksWrite(input.sourceRoot, input.sourceLocalRoot);
  std::set<FindingKey> inSource;
  for (const CheckReport& r : CheckContentRoot(input.sourceRoot, options)) {
    for (const Finding& f : r.findings) inSource.insert(KeyOf(r.name, f, sourceFolder));
  }
  for (ExportCheckReport& r : reports) {
    for (ExportFinding& f : r.findings) {
      f.inherited = f.count == 1 && inSource.count(KeyOf(r.name, f.finding, exportFolder)) > 0;
    }
  }
}

uint64_t CountIf(const ExportCheckReport& r, bool (*test)(const ExportFinding&)) {
  return static_cast<uint64_t>(std::count_if(r.findings.begin(), r.findings.end(), test));
}

}  // namespace

uint64_t ExportCheckReport::errors() const {
  return CountIf(*this,
                 [](const ExportFinding& f) { return f.finding.severity == Severity::kError; });
}

uint64_t ExportCheckReport::warnings() const {
  return CountIf(*this,
                 [](const ExportFinding& f) { return f.finding.severity == Severity::kWarning; });
}

uint64_t ExportCheckReport::damage() const {
  return CountIf(*this, [](const ExportFinding& f) {
    return f.finding.severity == Severity::kError && !f.inherited;
  });
}

const std::vector<std::string>& ExportCheckNames() {
  // The classification is the common root's, not the discipline's: the export carries it over
  // whole.
  static const std::vector<std::string> names = {
      "config", "sets", "resources", "index", "media", "glossary", "grammar", "packages", "names"};
  return names;
}

std::vector<ExportCheckReport> CheckExport(const ExportCheckInput& input) {
  CheckOptions options;
  options.disciplineFilter = input.discipline;
  options.checks = ExportCheckNames();
  options.qualityFolders = input.qualityFolders;
  options.progress = input.progress;
  std::vector<ExportCheckReport> reports = Annotated(CheckContentRoot(input.destination, options));
  const std::string exportFolder = AsChecksWrite(input.destination, input.exportFolder);
  if (!input.allMedia) {
    for (ExportCheckReport& r : reports) {
      if (r.name == kMediaCheck) SummarizeUncopiedMedia(r, exportFolder);
    }
  }
  MarkInherited(reports, input, exportFolder);
  return reports;
}

}  // namespace lumora::cli
