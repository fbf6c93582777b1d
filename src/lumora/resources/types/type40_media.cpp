// Media resolution, verification and export copying of type-40 resources.
#include <lumora/resources/media_copy.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/types/type40.h>

namespace lumora {
namespace {

void AppendReferenceCheck(const std::string& root, uint32_t reference, std::string& report) {
  std::string message;
  if (!ReferencedFileCheck(root, reference, message)) report += message;
}

}  // namespace

void Type40Resource::ResolveMedia(const ContentRequest& request, const std::string& local_root,
                                  const std::string& chosen_root) {
  for (auto& item : items) {
    for (auto& media : item->media) {
      media->BuildPath(local_root, request.pathKind, chosen_root, request.selector());
    }
    item->content.ResolveMedia(request, local_root, chosen_root);
    for (ItemPart* part : item->Parts()) {
      part->content.ResolveMedia(request, local_root, chosen_root);
      for (auto& element : part->elements) element->ResolveMedia(request, local_root, chosen_root);
    }
  }
}

bool Type40Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                 std::string& report, uint32_t resource_id) {
  report.clear();
  if (items.empty()) {
    report =
        FormatReportLine("\t\tNo media found for Item n\xB0%d!\n", static_cast<int>(resource_id));
    return false;
  }
  // Media that cannot be found are not reported; the lookups only settle their paths.
  for (auto& item : items) {
    for (auto& media : item->media) {
      for (uint8_t q : quality_folders) {
        if (media->BuildPath(root, kPathUnc, root, q) && media->kind == kMediaVideo) break;
      }
    }
  }
  for (auto& item : items) {
    AppendReferenceCheck(root, item->content.reference, report);
    for (ItemPart* part : item->Parts()) {
      for (auto& element : part->elements) AppendReferenceCheck(root, element->reference, report);
      if (part->content.reference != 0) AppendReferenceCheck(root, part->content.reference, report);
    }
  }
  return report.empty();
}

bool Type40Resource::CopyMedia(const std::string& destination_root, uint32_t destination_id,
                               const ByteArray& quality_folders, const std::string& source_root) {
  if (items.empty()) return false;
  const MediaCopier copier(destination_root, destination_id, GetType(), quality_folders,
                           source_root);
  for (auto& item : items) {
    for (auto& media : item->media) {
      if (!copier.Copy(*media)) return false;
    }
  }
  for (auto& item : items) {
    for (ItemPart* part : item->Parts()) {
      if (!copier.Copy(part->content.media)) return false;
      for (auto& element : part->elements) {
        if (!copier.Copy(element->media)) return false;
      }
    }
  }
  return true;
}

}  // namespace lumora
