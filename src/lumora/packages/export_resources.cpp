#include <lumora/packages/export_resources.h>
#include <lumora/platform/atomic_write.h>
#include <lumora/platform/file.h>
#include <lumora/platform/kept_files.h>
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
  const std::string source = ExportResourcePath(sourceFolder_, type, resourceId);
  const std::string destination = ExportResourcePath(exportFolder_, type, resourceId);
  const std::string folder = FolderOf(destination);
  if (!MakeFolder(folder)) {
    Say(FormatReportLine("Can not create directory : %s\n", folder.c_str()));
  }
  std::string bytes;
  const WholeFile read = ReadWholeFile(source, kMostBytesInMemory, bytes);
  bool loaded = false;
  switch (read) {
    case WholeFile::kMissing:
      return;
    case WholeFile::kUnreadable:
      Say(FormatReportLine("Can not copy file: %s\n", source.c_str()));
      break;
    case WholeFile::kTooLarge:
      Queue({destination, std::string(), source}, source);
      loaded = LoadArchiveFile(source, false, *resource);
      break;
    case WholeFile::kRead:
      loaded = LoadArchiveBytes(bytes, *resource);
      Queue({destination, std::move(bytes), std::string()}, source);
      break;
  }
  if (!loaded) {
    Say(FormatReportLine("Can not open file: %s\n", source.c_str()));
  } else {
    if (type == static_cast<int32_t>(Type8Resource::kType)) {
      CollectVideoLinks(static_cast<const Type8Resource&>(*resource));
    }
    // What a medium that cannot be copied means is the resource class's to say: nothing here.
    resource->CopyMedia(exportFolder_, static_cast<uint32_t>(resourceId), qualityFolders_,
                        sourceFolder_);
  }
  Collect(false);
}

void ExportResourceCopier::Finish() {
  Collect(true);
  // Lets go of the folders the writer kept locked.
  writes_.reset();
}

void ExportResourceCopier::Queue(WriteQueue::Job job, const std::string& source) {
  if (!writes_) writes_.emplace();
  writes_->Add(std::move(job));
  Say(source, queued_++);
}

void ExportResourceCopier::Say(std::string text, uint64_t write) {
  lines_.push_back({std::move(text), write});
}

void ExportResourceCopier::Collect(bool all) {
  if (writes_) {
    for (WriteQueue::Finished& done : writes_->TakeFinished(all)) {
      const bool ok = done.status.ok();
      failed_.push_back(!ok);
      if (ok && done.job.source.empty()) KeepFile(done.job.path, std::move(done.job.bytes));
    }
  }
  while (!lines_.empty() &&
         (lines_.front().write == kNoWrite || lines_.front().write < failed_.size())) {
    const Line& line = lines_.front();
    if (line.write == kNoWrite) {
      report_ += line.text;
    } else if (failed_[line.write]) {
      report_ += FormatReportLine("Can not copy file: %s\n", line.text.c_str());
    }
    lines_.pop_front();
  }
}

void ExportResourceCopier::CollectVideoLinks(const Type8Resource& questions) {
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
