#include <lumora/check/decoded_media.h>
#include <lumora/support/listed_files.h>

namespace lumora {

DecodedMedia::DecodedMedia(const CheckedRoot& root) : root_(root), runs_(root.Runs("media")) {}

std::vector<size_t> DecodedMedia::PlacesAmong(size_t d, uint32_t type,
                                              const std::vector<ScannedResource>& scanned) {
  std::vector<size_t> places(scanned.size(), kNotVerified);
  const Discipline& discipline = *root_.disciplines[d].discipline;
  if (!runs_ || !discipline.resourceIndex) return places;
  const TypeIndex* index = discipline.resourceIndex->FindType(type);
  const size_t first = places_.size();
  if (index != nullptr) {
    for (const IndexedFile& file : IndexedAmong(discipline.localRoot, type, *index, scanned)) {
      const std::string& path = scanned[file.scanned].path;
      if (!root_.ChecksResourceFile(path)) continue;
      places[file.scanned] = places_.size();
      places_.push_back({d, {type, file.resourceId, path}, std::nullopt});
    }
  }
  types_[{d, type}] = {first, places_.size()};
  return places;
}

void DecodedMedia::Verify(size_t place, ExerciseResource* decoded) {
  Place& p = places_[place];
  p.verified = VerifyDecodedMedia(root_.disciplines[p.discipline].discipline->localRoot,
                                  root_.qualityFolders(), p.file, decoded);
}

void DecodedMedia::Finish() {
  if (!runs_) return;
  const ListedFiles listed;
  root_.decoded.media.assign(root_.disciplines.size(), {});
  for (size_t d = 0; d < root_.disciplines.size(); ++d) {
    const Discipline& discipline = *root_.disciplines[d].discipline;
    if (!discipline.resourceIndex) continue;
    std::vector<MediaVerification>& verified = root_.decoded.media[d];
    const auto from_file = [&](const IndexedResourceFile& file) {
      verified.push_back(VerifyMediaFromFile(discipline.localRoot, root_.qualityFolders(), file));
    };
    // In the index's order of types; a type the resources check did not scan is read here.
    for (uint32_t type : discipline.resourceIndex->types()) {
      const auto scanned = types_.find({d, type});
      if (scanned == types_.end()) {
        for (const IndexedResourceFile& file : IndexedResourceFiles(
                 discipline.localRoot, *discipline.resourceIndex, type,
                 [this](const std::string& path) { return root_.ChecksResourceFile(path); })) {
          from_file(file);
        }
        continue;
      }
      for (size_t i = scanned->second.first; i < scanned->second.second; ++i) {
        if (places_[i].verified) {
          verified.push_back(std::move(*places_[i].verified));
        } else {
          from_file(places_[i].file);
        }
      }
    }
  }
}

}  // namespace lumora
