#include <lumora/maintenance.h>
#include <lumora/platform/atomic_write.h>
#include <lumora/resources/media_ref.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/type1003.h>
#include <lumora/resources/types/type19.h>
#include <lumora/resources/types/type21.h>
#include <lumora/resources/types/type28.h>
#include <lumora/support/paths.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <set>

namespace lumora {
namespace {

namespace fs = std::filesystem;

// Copies below one export folder, each destination once: resources share media.
class Copier {
 public:
  Copier(const std::string& source, const std::string& destination)
      : source_(source), destination_(destination) {}

  void CopyMedium(const MediaRef& media, const ByteArray& quality) {
    for (uint8_t q : quality) {
      const bool video = media.kind == kMediaVideo;
      if (CopyFound(media, q, video ? 3 : q) && video) return;
    }
  }

  // A type-19 resource's picture, found in Q3 only.
  void CopyPicture19(uint32_t resource_id) {
    const std::string relative = CourseFolderName(CourseOf(resource_id)) + kPathSeparator +
                                 NumberedName('r', Type19Resource::kType) + kPathSeparator + "Q3" +
                                 kPathSeparator + NumberedName('p', NumberOf(resource_id)) + ".swf";
    if (IsRegularFile(source_ + relative)) Copy(source_ + relative, destination_ + relative);
  }

  UncopiedMediaCopy& result() { return result_; }

 private:
  static bool IsRegularFile(const std::string& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
  }

  // The file a lookup with selector q finds, copied to the same name in folder `into`.
  bool CopyFound(const MediaRef& media, uint8_t q, uint8_t into) {
    for (uint8_t folder : QualityOrderOf(q).folders) {
      const std::vector<std::string> candidates = media.CandidatePaths(source_, folder);
      for (size_t i = 0; i < candidates.size(); ++i) {
        if (!IsRegularFile(candidates[i])) continue;
        Copy(candidates[i], media.CandidatePaths(destination_, into).at(i));
        return true;
      }
    }
    return false;
  }

  void Copy(const std::string& from, const std::string& to) {
    if (!copied_.insert(to).second) return;
    std::error_code error;
    fs::create_directories(fs::path(to).parent_path(), error);
    if (error) {
      result_.problems.push_back(to + ": its folder cannot be made: " + error.message());
      return;
    }
    const WriteStatus status = CopyFileAtomically(from, to);
    if (!status.ok()) {
      result_.problems.push_back(status.ToString());
      return;
    }
    ++result_.files;
    result_.bytes += fs::file_size(to, error);
  }

  std::string source_;
  std::string destination_;
  std::set<std::string> copied_;
  UncopiedMediaCopy result_;
};

void CopyMediaOf(ExerciseResource& resource, uint32_t id, const ByteArray& quality,
                 Copier& copier) {
  if (dynamic_cast<Type19Resource*>(&resource) != nullptr) copier.CopyPicture19(id);
  if (auto* r21 = dynamic_cast<Type21Resource*>(&resource)) {
    for (const auto& clue : r21->clues) copier.CopyMedium(clue->media, quality);
  }
  if (auto* r28 = dynamic_cast<Type28Resource*>(&resource)) {
    for (const auto& sentence : r28->sentences) copier.CopyMedium(sentence->media, quality);
  }
  if (auto* r1003 = dynamic_cast<Type1003Resource*>(&resource)) {
    copier.CopyMedium(r1003->video, quality);
    copier.CopyMedium(r1003->picture, quality);
  }
}

// The resource files "r%07d.ars" of type folder `folder`, by resource number.
void ForEachResourceFile(const fs::path& folder, const auto& visit) {
  std::error_code error;
  for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
    unsigned number = 0;
    char dot[2] = {};
    const std::string name = it->path().filename().string();
    if (name.size() == 12 && std::sscanf(name.c_str(), "r%7u%1[.]ars", &number, dot) == 2 &&
        it->is_regular_file(error)) {
      visit(it->path().string(), number);
    }
  }
}

}  // namespace

// A class that verifies its media but has no copy of its own leaves them out of every export.
bool IsUncopiedMediaType(uint32_t type) {
  const ExerciseType* row = FindExerciseType(type);
  return row != nullptr && (row->media & kVerifiesMedia) != 0 && (row->media & kCopiesMedia) == 0;
}

UncopiedMediaCopy CopyUncopiedMedia(const std::string& sourceLocalRoot,
                                    const std::string& exportFolder, const ByteArray& quality) {
  Copier copier(sourceLocalRoot, exportFolder);
  DeferredFlush flush(exportFolder);
  std::error_code error;
  for (fs::directory_iterator it(exportFolder, error), end; !error && it != end;
       it.increment(error)) {
    const std::optional<uint32_t> course = CourseNumberOf(it->path().filename().string());
    if (!course) continue;
    for (uint32_t type : kExerciseTypes) {
      if (!IsUncopiedMediaType(type)) continue;
      ForEachResourceFile(
          it->path() / NumberedName('r', type), [&](const std::string& path, uint32_t number) {
            std::unique_ptr<ExerciseResource> resource = NewResource(type);
            if (!LoadArchiveFile(path, false, *resource)) return;
            CopyMediaOf(*resource, MakeResourceId(*course, number), quality, copier);
          });
    }
  }
  const WriteStatus flushed = flush.Finish();
  if (!flushed.ok()) copier.result().problems.push_back(flushed.ToString());
  return std::move(copier.result());
}

}  // namespace lumora
