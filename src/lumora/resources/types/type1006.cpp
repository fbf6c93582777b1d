#include <lumora/platform/archive.h>
#include <lumora/resources/media_copy.h>
#include <lumora/resources/media_lookup.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/types/type1006.h>

namespace lumora {

void CaptionedMedia::Serialize(Archive& ar) {
  caption.Serialize(ar);
  media.Serialize(ar);
}

void Type1006Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  media.Serialize(ar);
  entries.Serialize(ar);
  title.Serialize(ar);
  strings.Serialize(ar);
}

std::vector<MediaRef*> Type1006Resource::AllMedia() {
  std::vector<MediaRef*> all{&media};
  for (uint32_t i = 0; i < entries.size(); ++i) {
    if (CaptionedMedia* entry = entries.ObjectAt(i)) all.push_back(&entry->media);
  }
  return all;
}

void Type1006Resource::ResolveMedia(const ContentRequest& request, const std::string& local_root,
                                    const std::string& chosen_root) {
  for (MediaRef* m : AllMedia()) {
    m->BuildPath(local_root, request.pathKind, chosen_root, request.selector());
  }
}

bool Type1006Resource::CopyMedia(const std::string& destination_root, uint32_t destination_id,
                                 const ByteArray& quality_folders, const std::string& source_root) {
  const MediaCopier copier(destination_root, destination_id, GetType(), quality_folders,
                           source_root);
  for (MediaRef* m : AllMedia()) {
    if (!copier.Copy(*m)) return false;
  }
  return true;
}

bool Type1006Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                   std::string& report, uint32_t resource_id) {
  (void)resource_id;
  report.clear();
  for (MediaRef* m : AllMedia()) {
    if (m->resource == 0 || FindInQualityFolders(*m, root, quality_folders)) continue;
    report += FormatReportLine("\t\tFile not found: %s!\n",
                               ExpectedMediaPath(*m, root, quality_folders).c_str());
  }
  return report.empty();
}

}  // namespace lumora
