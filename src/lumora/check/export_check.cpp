// The check of what an export wrote: the checks over the export, the findings that are the
// export's own way summed up per type, and each finding weighed against the source.
#include <lumora/check/content_check.h>
#include <lumora/maintenance.h>

#include <cstdio>
#include <map>
#include <set>
#include <tuple>

namespace lumora {
namespace {

constexpr const char* kMediaCheck = "media";
constexpr const char* kResourcesCheck = "resources";

using FindingKey = std::tuple<std::string, std::string, std::string>;

// `path` as the checks write it: relative to the content root when it lies below it.
std::string AsChecksWrite(const std::string& root, const std::string& path) {
  const std::string prefix = root.ends_with('/') ? root : root + '/';
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

// The source's file of a file the export check names.
std::string InSource(const std::string& file, const std::string& exportFolder,
                     const std::string& sourceFolder) {
  return file.starts_with(exportFolder) ? sourceFolder + file.substr(exportFolder.size()) : file;
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

// A media finding that names a type-1005 resource file, linked from the resource and missing.
bool NamesMissingElement(const std::string& message) {
  static const std::string kMissing = "File not found: ";
  return message.starts_with(kMissing) && message.ends_with(".ars") &&
         message.find("/r0001005/r", kMissing.size()) != std::string::npos;
}

// What the export leaves out by its own rule, by the exercise type of the resources concerned.
struct LeftOut {
  uint64_t findings = 0;
  std::set<std::string> resources;
};

std::string Resources(size_t count) {
  return std::to_string(count) + (count == 1 ? " resource" : " resources");
}

Finding UncopiedMediaWarning(const std::string& exportFolder, uint32_t type, const LeftOut& left) {
  return {Severity::kWarning, exportFolder,
          "type " + std::to_string(type) + ": the export copies no media of this type, so " +
              std::to_string(left.findings) + " media of " + Resources(left.resources.size()) +
              " are missing (--all-media copies them)",
          left.findings};
}

Finding UnlistedElementsWarning(const std::string& exportFolder, uint32_t type,
                                const LeftOut& left) {
  return {Severity::kWarning, exportFolder,
          "type " + std::to_string(type) + ": " + std::to_string(left.findings) +
              (left.findings == 1 ? " link" : " links") + " of " +
              Resources(left.resources.size()) +
              " name type-1005 resources that the export does not carry (it copies only the "
              "resources its packages list)",
          left.findings};
}

// Takes out of the media report what the export leaves out by its own rule (the missing media of
// the types it copies no media of, unless they were copied after it, and the links to elements
// no exported package lists) and puts one warning per kind and type in their place.
void SummarizeLeftOut(CheckReport& media, const std::string& exportFolder, bool allMedia) {
  std::map<uint32_t, LeftOut> uncopied;
  std::map<uint32_t, LeftOut> unlisted;
  std::vector<Finding> kept;
  for (Finding& f : media.findings) {
    const uint32_t type = TypeOfResourceFile(WithoutFolder(f.file, exportFolder));
    std::map<uint32_t, LeftOut>* left = nullptr;
    if (NamesMissingElement(f.message)) {
      left = &unlisted;
    } else if (!allMedia && IsUncopiedMediaType(type) && NamesMissingMedium(f.message)) {
      left = &uncopied;
    }
    if (left == nullptr) {
      kept.push_back(std::move(f));
      continue;
    }
    ++(*left)[type].findings;
    (*left)[type].resources.insert(f.file);
  }
  for (const auto& [type, left] : uncopied) {
    kept.push_back(UncopiedMediaWarning(exportFolder, type, left));
  }
  for (const auto& [type, left] : unlisted) {
    kept.push_back(UnlistedElementsWarning(exportFolder, type, left));
  }
  media.findings = std::move(kept);
}

uint64_t Damage(const CheckReport& report, const std::vector<bool>& inherited) {
  uint64_t damage = 0;
  for (size_t i = 0; i < report.findings.size(); ++i) {
    damage += report.findings[i].severity == Severity::kError && !inherited[i];
  }
  return damage;
}

// Marks the findings that the same checks have on the source.
void MarkInherited(ExportChecks& checks, const ExportCheckInput& input,
                   const std::string& exportFolder) {
  for (const CheckReport& r : checks.reports) {
    checks.inherited.emplace_back(r.findings.size(), false);
  }
  CheckOptions options;
  options.disciplineFilter = input.discipline;
  options.qualityFolders = input.qualityFolders;
  const std::string sourceFolder = AsChecksWrite(input.sourceRoot, input.sourceLocalRoot);
  // Warnings alone do not make an export damaged: they are weighed only beside errors. The
  // checks of resource files one by one look in the source only at the files with errors.
  for (const CheckReport& r : checks.reports) {
    if (r.errors() == 0) continue;
    options.checks.push_back(r.name);
    if (r.name != kMediaCheck && r.name != kResourcesCheck) continue;
    for (const Finding& f : r.findings) {
      if (f.severity == Severity::kError) {
        options.onlyResourceFiles.push_back(InSource(f.file, exportFolder, sourceFolder));
      }
    }
  }
  if (options.checks.empty()) return;
  std::set<FindingKey> inSource;
  for (const CheckReport& r : CheckContentRoot(input.sourceRoot, options)) {
    for (const Finding& f : r.findings) inSource.insert(KeyOf(r.name, f, sourceFolder));
  }
  for (size_t report = 0; report < checks.reports.size(); ++report) {
    const CheckReport& r = checks.reports[report];
    for (size_t i = 0; i < r.findings.size(); ++i) {
      const Finding& f = r.findings[i];
      checks.inherited[report][i] =
          f.count == 1 && inSource.count(KeyOf(r.name, f, exportFolder)) > 0;
    }
  }
}

}  // namespace

uint64_t ExportChecks::damage() const {
  uint64_t damage = 0;
  for (size_t report = 0; report < reports.size(); ++report) {
    damage += Damage(reports[report], inherited[report]);
  }
  return damage;
}

const std::vector<std::string>& ExportCheckNames() {
  // The classification is the common root's, not the discipline's: the export carries it over
  // whole.
  static const std::vector<std::string> names = {
      "config", "sets", "resources", "index", "media", "glossary", "grammar", "packages", "names"};
  return names;
}

ExportChecks CheckExport(const ExportCheckInput& input) {
  CheckOptions options;
  options.disciplineFilter = input.discipline;
  options.checks = ExportCheckNames();
  options.qualityFolders = input.qualityFolders;
  options.progress = input.progress;
  ExportChecks checks{CheckContentRoot(input.destination, options), {}};
  const std::string exportFolder = AsChecksWrite(input.destination, input.exportFolder);
  for (CheckReport& r : checks.reports) {
    if (r.name == kMediaCheck) SummarizeLeftOut(r, exportFolder, input.allMedia);
  }
  MarkInherited(checks, input, exportFolder);
  return checks;
}

}  // namespace lumora
