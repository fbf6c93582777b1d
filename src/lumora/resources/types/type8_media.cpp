// Verification and export copying of type-8 resources: everything they need lies in the
// type-1003 resources their links name, always in the course of the type-8 resource itself.
#include <lumora/resources/link_record.h>
#include <lumora/resources/media_copy.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/types/type1003.h>
#include <lumora/resources/types/type8.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

namespace lumora {
namespace {

// The files of one linked video resource below a root: its resource file, its video in Q3
// (without the extension, which may be ".avi" or ".mpg") and its picture per quality folder.
class VideoFiles {
 public:
  VideoFiles(const std::string& root, uint32_t course, uint32_t number)
      : folder_(root + CourseFolderName(course) + kPathSeparator +
                NumberedName('r', Type1003Resource::kType) + kPathSeparator),
        number_(number) {}

  std::string ResourceFolder() const { return folder_; }
  std::string ResourceName() const { return NumberedName('r', number_) + ".ars"; }
  std::string QualityFolder(uint32_t q) const {
    return folder_ + "Q" + std::to_string(q) + kPathSeparator;
  }
  std::string VideoStem() const { return QualityFolder(3) + VideoName(""); }
  std::string VideoName(const char* extension) const {
    return NumberedName('v', number_) + extension;
  }
  std::string PictureName() const { return NumberedName('p', number_) + ".swf"; }

 private:
  std::string folder_;
  uint32_t number_;
};

void VerifyVideoFiles(const VideoFiles& files, const ByteArray& quality_folders,
                      std::string& report) {
  const std::string video = files.VideoStem();
  if (!FileListed(video + ".avi") && !FileListed(video + ".mpg")) {
    report += FormatReportLine("\t\tFile not found: %s%s!\n", video.c_str(), ".avi");
    report += FormatReportLine("\t\tFile not found: %s%s!\n", video.c_str(), ".mpg");
  }
  for (uint8_t q : quality_folders) {
    const std::string picture = files.QualityFolder(q) + files.PictureName();
    if (!FileListed(picture))
      report += FormatReportLine("\t\tFile not found: %s\n", picture.c_str());
  }
}

// A paragraph number counts from 1, so a link to paragraph 0 names one that does not exist.
void VerifyParagraph(const std::string& root, const LinkRecord& link, uint32_t resource_id,
                     std::string& report) {
  const VideoFiles files(root, CourseOf(resource_id), link.targetNumber());
  const std::string path = files.ResourceFolder() + files.ResourceName();
  Type1003Resource video;
  if (!LoadArchiveFile(path, false, video)) {
    report += FormatReportLine("\t\tCan not open: %s!\n", path.c_str());
    return;
  }
  const long p = link.paragraph();
  const long t = link.targetNumber();
  const long k = resource_id;
  if (p == 0 || p > static_cast<long>(video.script.paragraphs.size())) {
    report += FormatReportLine("\t\tParagraph n\xB0%ld of video %ld does not exist for Item: %ld\n",
                               p, t, k);
  } else if (video.script.paragraphs[static_cast<uint32_t>(p - 1)].text.empty()) {
    report +=
        FormatReportLine("\t\tParagraph n\xB0%ld of video %ld is empty for Item: %ld\n", p, t, k);
  }
}

bool CopyVideoFiles(const VideoFiles& from, const VideoFiles& to,
                    const ByteArray& quality_folders) {
  if (!CopyFileInto(from.ResourceFolder() + from.ResourceName(), to.ResourceFolder(),
                    from.ResourceName())) {
    return false;
  }
  const char* extension = FileExists(from.VideoStem() + ".avi") ? ".avi" : ".mpg";
  if (!CopyFileInto(from.VideoStem() + extension, to.QualityFolder(3), from.VideoName(extension))) {
    return false;
  }
  for (uint8_t q : quality_folders) {
    const std::string picture = from.QualityFolder(q) + from.PictureName();
    if (FileExists(picture) && !CopyFileInto(picture, to.QualityFolder(q), from.PictureName())) {
      return false;
    }
  }
  return true;
}

}  // namespace

bool Type8Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                std::string& report, uint32_t resource_id) {
  report.clear();
  if (records.empty()) {
    report = FormatReportLine("\t\tLinks not found for Item: %d!\n", static_cast<int>(resource_id));
    return false;
  }
  for (const Record16& record : records) {
    if (!IsVideoLink(record)) continue;
    VerifyVideoFiles(VideoFiles(root, CourseOf(resource_id), LinkRecord(record).targetNumber()),
                     quality_folders, report);
  }
  for (auto& item : items) {
    for (const Record16& record : item->question.records16) {
      const LinkRecord link(record);
      if (link.targetType() == Type1003Resource::kType) {
        VerifyParagraph(root, link, resource_id, report);
      }
    }
  }
  return report.empty();
}

// The export passes the resource's own id, so its course is the course on both sides.
bool Type8Resource::CopyMedia(const std::string& destination_root, uint32_t destination_id,
                              const ByteArray& quality_folders, const std::string& source_root) {
  if (records.empty()) return false;
  const uint32_t course = CourseOf(destination_id);
  for (const Record16& record : records) {
    if (!IsVideoLink(record)) continue;
    const uint32_t number = LinkRecord(record).targetNumber();
    const VideoFiles from(source_root, course, number);
    const VideoFiles to(destination_root, course, number);
    if (!CopyVideoFiles(from, to, quality_folders)) return false;
  }
  return true;
}

}  // namespace lumora
