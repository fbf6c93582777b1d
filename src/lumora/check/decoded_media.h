// The media check's work done while the resources check decodes: each resource file whose media
// the media check verifies is verified from the resource the resources check decoded from it,
// so that every resource is decoded once for both checks.
#pragma once

#include <lumora/check/checked_root.h>
#include <lumora/check/media_verification.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace lumora {

class DecodedMedia {
 public:
  static constexpr size_t kNotVerified = SIZE_MAX;

  // Verifies nothing unless the media check runs too.
  explicit DecodedMedia(const CheckedRoot& root);

  // The places of the media check's files among `scanned`, the scan of `type` with twins in the
  // root's discipline `d`: one for each scanned file, kNotVerified for those it does not verify.
  // Each type of each discipline once, before any Verify.
  std::vector<size_t> PlacesAmong(size_t d, uint32_t type,
                                  const std::vector<ScannedResource>& scanned);
  // Verifies the media of the file at `place` from the resource decoded from it (null when it
  // does not decode). From any thread, each place once; a thread verifying media keeps a
  // ListedFiles while it does.
  void Verify(size_t place, ExerciseResource* decoded);
  // Hands the verifications to the media check, in its order (root.decoded.media); the files no
  // decoded resource was given for are read and verified now.
  void Finish();

 private:
  struct Place {
    size_t discipline;
    IndexedResourceFile file;
    std::optional<MediaVerification> verified;
  };
  const CheckedRoot& root_;
  bool runs_;
  std::vector<Place> places_;
  // Where the places of each discipline's type begin and end.
  std::map<std::pair<size_t, uint32_t>, std::pair<size_t, size_t>> types_;
};

}  // namespace lumora
