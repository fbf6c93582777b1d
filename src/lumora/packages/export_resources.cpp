#include <lumora/packages/export_resources.h>
#include <lumora/platform/atomic_write.h>
#include <lumora/resources/link_record.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/type8.h>
#include <lumora/support/paths.h>

#include <cinttypes>
#include <cstdio>
#include <utility>

namespace lumora {

std::string ExportResourcePath(const std::string& folder, int32_t type, int32_t resourceId) {
  const int32_t course = resourceId >> 20;
  const int32_t number = resourceId & 0xFFFFF;
  char name[64];
  std::snprintf(name, sizeof name, "C%04" PRId32 "%cr%07" PRId32 "%cr%07" PRId32 ".ars", course,
                kPathSeparator, type, kPathSeparator, number);
  return folder + name;
}

ExportResourceCopier::ExportResourceCopier(std::string sourceFolder, std::string exportFolder,
                                           const ByteArray& qualityFolders, std::string& report)
    : sourceFolder_(std::move(sourceFolder)),
      exportFolder_(std::move(exportFolder)),
      qualityFolders_(qualityFolders),
      report_(report) {}

void ExportResourceCopier::Copy(int32_t type, int32_t resourceId) {
  std::unique_ptr<ExerciseResource> resource = NewResource(static_cast<uint32_t>(type));
  if (resource == nullptr) return;
  if (type == static_cast<int32_t>(Type8Resource::kType)) CollectVideoLinks(resourceId);
  const std::string source = ExportResourcePath(sourceFolder_, type, resourceId);
  const std::string destination = ExportResourcePath(exportFolder_, type, resourceId);
  const std::string folder = FolderOf(destination);
  if (!MakeFolder(folder)) {
    report_ += FormatReportLine("Can not create directory : %s\n", folder.c_str());
  }
  if (!FileExists(source)) return;
  if (!CopyFileAtomically(source, destination).ok()) {
    report_ += FormatReportLine("Can not copy file: %s\n", source.c_str());
  }
  if (!LoadArchiveFile(source, false, *resource)) {
    report_ += FormatReportLine("Can not open file: %s\n", source.c_str());
    return;
  }
  // What a medium that cannot be copied means is the resource class's to say: nothing here.
  resource->CopyMedia(exportFolder_, static_cast<uint32_t>(resourceId), qualityFolders_,
                      sourceFolder_);
}

void ExportResourceCopier::CollectVideoLinks(int32_t resourceId) {
  Type8Resource questions;
  if (!LoadArchiveFile(ExportResourcePath(sourceFolder_, Type8Resource::kType, resourceId), false,
                       questions)) {
    return;
  }
  for (const Record16& record : questions.records) {
    if (IsVideoLink(record)) referencedIds_.insert(LinkRecord(record).targetNumber());
  }
}

bool ExportResourceCopier::MakeFolder(const std::string& folder) {
  if (madeFolders_.count(folder) != 0) return true;
  if (!FolderExists(folder) && !CreateFolderPath(folder)) return false;
  madeFolders_.insert(folder);
  return true;
}

}  // namespace lumora
