#include <lumora/packages/export_resources.h>
#include <lumora/platform/file.h>
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
                                           const ByteArray& qualityFolders, CopyQueue& copies)
    : sourceFolder_(std::move(sourceFolder)),
      exportFolder_(std::move(exportFolder)),
      qualityFolders_(qualityFolders),
      copies_(copies) {}

void ExportResourceCopier::Copy(int32_t type, int32_t resourceId) {
  std::unique_ptr<ExerciseResource> resource = NewResource(static_cast<uint32_t>(type));
  if (resource == nullptr) return;
  const std::string source = ExportResourcePath(sourceFolder_, type, resourceId);
  const std::string destination = ExportResourcePath(exportFolder_, type, resourceId);
  const std::string folder = FolderOf(destination);
  if (!copies_.MakeFolder(folder)) {
    copies_.Say(FormatReportLine("Can not create directory : %s\n", folder.c_str()));
  }
  const std::string failed = FormatReportLine("Can not copy file: %s\n", source.c_str());
  std::string bytes;
  bool loaded = false;
  switch (ReadWholeFile(source, kMostBytesInMemory, bytes)) {
    case WholeFile::kMissing:
      return;
    case WholeFile::kUnreadable:
      copies_.Say(failed);
      break;
    case WholeFile::kTooLarge:
      copies_.Copy(source, destination, failed);
      loaded = LoadArchiveFile(source, false, *resource);
      break;
    case WholeFile::kRead:
      loaded = LoadArchiveBytes(bytes, *resource);
      copies_.Write(destination, std::move(bytes), failed);
      break;
  }
  if (!loaded) {
    copies_.Say(FormatReportLine("Can not open file: %s\n", source.c_str()));
  } else {
    if (type == static_cast<int32_t>(Type8Resource::kType)) {
      CollectVideoLinks(static_cast<const Type8Resource&>(*resource));
    }
    // What a medium that cannot be copied means is the resource class's to say: nothing here.
    // Its copies go through the same queue (CopyFileInto), after the resource file's.
    resource->CopyMedia(exportFolder_, static_cast<uint32_t>(resourceId), qualityFolders_,
                        sourceFolder_);
  }
  copies_.Collect();
}

void ExportResourceCopier::CollectVideoLinks(const Type8Resource& questions) {
  for (const Record16& record : questions.records) {
    if (IsVideoLink(record)) referencedIds_.insert(LinkRecord(record).targetNumber());
  }
}

}  // namespace lumora
