#include <lumora/platform/archive.h>
#include <lumora/resources/content_request.h>
#include <lumora/resources/media_ref.h>
#include <lumora/resources/resource_id.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

#include <array>
#include <string_view>

namespace lumora {
namespace {

struct KindFiles {
  char stem_letter;
  std::array<std::string_view, 3> extensions;  // tried in order; empty entries end the list
};

const KindFiles* FilesOf(uint32_t kind) {
  static const KindFiles kSound{'s', {".swf"}};
  static const KindFiles kPicture{'p', {".swf"}};
  static const KindFiles kVideo{'v', {".mpg", ".avi", ".swf"}};
  switch (kind) {
    case kMediaSound:
      return &kSound;
    case kMediaPicture:
      return &kPicture;
    case kMediaVideo:
      return &kVideo;
    default:
      return nullptr;
  }
}

char SeparatorOf(uint32_t path_kind) {
  return path_kind == kPathUrl ? '/' : path_kind == kPathUnc ? '\\' : '\0';
}

std::string QualityFolderName(uint8_t q) { return LetterAndNumber('Q', q, 1); }

}  // namespace

void MediaRef::Serialize(Archive& ar) {
  if (ar.IsStoring()) {
    ar.WriteU8(static_cast<uint8_t>(kind));
    ar.WriteU16(static_cast<uint16_t>(folder));
    ar.WriteU32(resource);
  } else {
    kind = ar.ReadU8();
    folder = ar.ReadU16();
    resource = ar.ReadU32();
  }
}

QualityOrder QualityOrderOf(uint8_t selector) {
  switch (selector) {
    case 1:
      return {{1, 2, 3}};
    case 2:
      return {{2, 3, 1}};
    case 3:
      return {{3, 2, 1}};
    default:
      // Only the first try is settled for other selectors: the folder they name. The others
      // follow in ascending order.
      return {{selector, 1, 2}};
  }
}

bool MediaRef::BuildPath(const std::string& local_root, uint32_t path_kind,
                         const std::string& chosen_root, uint8_t selector) {
  const char sep = SeparatorOf(path_kind);
  const KindFiles* files = FilesOf(kind);
  if (sep == '\0' || folder == 0 || files == nullptr) return false;
  const std::string course = CourseFolderName(CourseOf(resource));
  const std::string type_folder = NumberedName('r', folder);
  const std::string stem = NumberedName(files->stem_letter, NumberOf(resource));
  // One buffer for every name tried: most media are looked up under several.
  std::string candidate = local_root + course + kPathSeparator + type_folder + kPathSeparator;
  const size_t type_end = candidate.size();
  for (uint8_t q : QualityOrderOf(selector).folders) {
    const std::string quality = QualityFolderName(q);
    candidate.resize(type_end);
    candidate.append(quality).append(1, kPathSeparator).append(stem);
    const size_t stem_end = candidate.size();
    for (std::string_view ext : files->extensions) {
      if (ext.empty()) break;
      candidate.resize(stem_end);
      if (!FileListed(candidate.append(ext))) continue;
      path = chosen_root;
      for (const std::string& part : {course, type_folder, quality}) {
        path.append(part).push_back(sep);
      }
      path.append(stem).append(ext);
      return true;
    }
  }
  return false;
}

std::vector<std::string> MediaRef::CandidatePaths(const std::string& local_root,
                                                  uint8_t quality_folder) const {
  const KindFiles* files = FilesOf(kind);
  if (folder == 0 || files == nullptr) return {};
  const std::string stem = local_root + CourseFolderName(CourseOf(resource)) + kPathSeparator +
                           NumberedName('r', folder) + kPathSeparator +
                           QualityFolderName(quality_folder) + kPathSeparator +
                           NumberedName(files->stem_letter, NumberOf(resource));
  std::vector<std::string> paths;
  for (std::string_view ext : files->extensions) {
    if (!ext.empty()) paths.push_back(stem + std::string(ext));
  }
  return paths;
}

std::string GlossaryMediaPattern(uint32_t path_kind, const std::string& root) {
  const char sep = SeparatorOf(path_kind);
  if (sep == '\0') return std::string();
  std::string pattern = root;
  for (const char* part : {"C0000", "r0001001", "Q%d", "%03d"}) pattern.append(part).push_back(sep);
  return pattern.append("%02d.swf");
}

}  // namespace lumora
