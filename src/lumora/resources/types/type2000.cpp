#include <lumora/resources/media_copy.h>
#include <lumora/resources/media_lookup.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/types/type2000.h>

namespace lumora {

void Type2000Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  description.Serialize(ar);
}

bool Type2000Resource::CopyMedia(const std::string& destination_root, uint32_t destination_id,
                                 const ByteArray& quality_folders, const std::string& source_root) {
  if (description.media.resource == 0) return false;
  return MediaCopier(destination_root, destination_id, GetType(), quality_folders, source_root)
      .Copy(description.media);
}

bool Type2000Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                   std::string& report, uint32_t resource_id) {
  report.clear();
  MediaRef& media = description.media;
  if (media.resource == 0) {
    report =
        FormatReportLine("\t\tMedia not found for Item n\xB0%d!\n", static_cast<int>(resource_id));
  } else if (!FindInQualityFolders(media, root, quality_folders)) {
    report = FormatReportLine("\t\tFile not found: %s!\n",
                              ExpectedMediaPath(media, root, quality_folders).c_str());
  }
  return report.empty();
}

}  // namespace lumora
