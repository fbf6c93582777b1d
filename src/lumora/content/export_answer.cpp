// The export of packages through the content face: the destination made ready as a content root
// of its own, the export, and the document that says what it wrote.
#include <lumora/content.h>
#include <lumora/content/content_answers.h>
#include <lumora/content/host_progress.h>
#include <lumora/describe/printable_text.h>
#include <lumora/frame/library_lock.h>
#include <lumora/frame/opened_disciplines.h>
#include <lumora/maintenance.h>

#include <filesystem>
#include <mutex>
#include <sstream>

namespace lumora {
namespace {

namespace fs = std::filesystem;

Status Validate(const ExportRequest& request) {
  if (request.packages.empty()) return Failure(StatusCode::kInvalidArgument, "no package given");
  if (request.destination.empty())
    return Failure(StatusCode::kInvalidArgument, "no destination given");
  return Status();
}

}  // namespace

std::vector<std::string> ExportReportLines(const std::string& report) {
  std::vector<std::string> lines;
  std::istringstream in(report);
  for (std::string line; std::getline(in, line);)
    lines.push_back(PrintableText(line, kWindowsAnsi));
  return lines;
}

Answer ContentRoot::Export(uint32_t discipline, const ExportRequest& request,
                           const ProgressFunction& progress) const {
  if (Status invalid = Validate(request); !invalid.ok()) return Failed(std::move(invalid));
  ByteArray quality;
  if (Status invalid = QualityFolders(request.quality, &quality); !invalid.ok())
    return Failed(std::move(invalid));
  std::unique_lock one_check(CheckMutex(), std::defer_lock);
  if (request.check) one_check.lock();
  // The export reads the registry and writes through the discipline's database connection.
  std::unique_lock lock(LibraryMutex());
  OpenedDiscipline opened;
  if (!open_ || !RequestFor(discipline) || !FindOpenedDiscipline(discipline, &opened)) {
    return Failed(NoDiscipline(discipline));
  }
  Status prepared;
  const std::string exportFolder =
      PrepareExportDestination(root_, discipline, request.destination, &prepared);
  if (!prepared.ok()) return Failed(std::move(prepared));
  const WrittenFiles written({exportFolder, (fs::path(request.destination) / "Classes").string()},
                             exportFolder + "Content.mdb");
  DWordArray packages;
  for (uint32_t id : request.packages) packages.Add(id);
  const HostProgress host(progress);
  std::string report;
  const bool ok = lmExportPackage(discipline, packages, quality, request.destination.c_str(),
                                  host.progress(), &report);
  const WrittenFiles::Count copied = written.Since();
  // The range the export sets is its number of rows and 16 steps after them.
  const uint32_t resources = host.maximum() >= 16 ? host.maximum() - 16 : 0;
  Description document = {{"ok", ok},
                          {"exportFolder", PrintableText(exportFolder)},
                          {"report", ExportReportLines(report)},
                          {"resources", resources},
                          {"filesCopied", copied.files},
                          {"bytesCopied", copied.bytes}};
  if (host.stopped()) {
    return {Failure(StatusCode::kStopped, "the export was stopped"), std::move(document)};
  }
  if (!request.check) return Found(std::move(document));
  // The check reads the files alone: the registry is left to other readers meanwhile.
  lock.unlock();
  const HostProgress checking(progress);
  const ExportChecks checks =
      CheckExport({root_, opened.localRoot, request.destination, exportFolder, discipline, quality,
                   false, checking.progress()});
  document["ok"] = ok && checks.damage() == 0;
  document["checks"] = DescribeCheckReports(checks.reports, checks.inherited);
  if (checking.stopped()) {
    return {Failure(StatusCode::kStopped, "the check of the export was stopped"),
            std::move(document)};
  }
  return Found(std::move(document));
}

}  // namespace lumora
