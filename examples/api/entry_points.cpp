// The entry points: open a content root, decode the first dictation of course 1 with the web
// paths of its sounds, and close again.
//
//   entry_points ROOT
#include <lumora/lumora.h>
#include <lumora/resources/types/type5.h>

#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  if (!lmOpen(argv[1], 1)) {
    std::fprintf(stderr, "%s: discipline 1 does not open\n", argv[1]);
    return 1;
  }
  const lumora::ContentRequest request{0, 1, 1, lumora::kPathUrl};
  lumora::Type5Resource dictation;
  const uint32_t id = (1u << 20) | 1u;  // course 1, number 1
  const bool read = lmGetResource(&request, id, &dictation, true);
  if (read) {
    std::printf("dictation: %u sentences\n", dictation.sentences.size());
    for (const auto& sentence : dictation.sentences) {
      std::printf("sound: %s\n", sentence->media.path.c_str());
    }
  }
  lmClose();
  return read ? 0 : 1;
}
