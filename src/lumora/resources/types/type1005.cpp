#include <lumora/platform/archive.h>
#include <lumora/resources/media_check.h>
#include <lumora/resources/media_copy.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/support/paths.h>

namespace lumora {

void ContentElement::Serialize(Archive& ar) {
  ExerciseResource::Serialize(ar);
  ar.Io(reference);
  ar.IoBool(isReference);
  if (isReference) return;
  media.Serialize(ar);
  text.Serialize(ar);
  translations.Serialize(ar);
  IoArchiveString(ar, note);
  firstAttributes.Serialize(ar);
  secondAttributes.Serialize(ar);
}

void ContentElement::ResolveMedia(const ContentRequest& request, const std::string& local_root,
                                  const std::string& chosen_root) {
  if (isReference) {
    LoadArchiveFile(ResourceFilePath(local_root, kContentElementType, reference), false, *this);
  }
  if (media.resource != 0) {
    media.BuildPath(local_root, request.pathKind, chosen_root, request.selector());
  }
}

bool ContentElement::CopyMedia(const std::string& destination_root, uint32_t destination_id,
                               const ByteArray& quality_folders, const std::string& source_root) {
  if (isReference || media.resource == 0) return true;
  return MediaCopier(destination_root, destination_id, GetType(), quality_folders, source_root)
      .Copy(media);
}

bool ContentElement::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                 std::string& report, uint32_t resource_id) {
  (void)resource_id;
  report.clear();
  if (isReference || media.resource == 0) return true;
  const std::string missing = LookUpMissingMedium(root, quality_folders, media);
  if (!missing.empty()) report = FormatReportLine("\t\tFile not found: %s!\n", missing.c_str());
  return report.empty();
}

}  // namespace lumora
