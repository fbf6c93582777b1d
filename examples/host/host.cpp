// A host program that uses only the installed library: it opens a content root, lists its
// disciplines, decodes one dictation with its media as web paths, and searches the glossary.
//
//   host ROOT [DISCIPLINE] [WORD]
#include <lumora/lumora.h>
#include <lumora/resources/types/type5.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

std::string Utf8(const std::u16string& text) {
  std::string out;
  for (char16_t c : text) {
    if (c < 0x80) {
      out += static_cast<char>(c);
    } else if (c < 0x800) {
      out += static_cast<char>(0xC0 | (c >> 6));
      out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
      out += static_cast<char>(0xE0 | (c >> 12));
      out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (c & 0x3F));
    }
  }
  return out;
}

std::u16string Ascii16(const std::string& text) { return {text.begin(), text.end()}; }

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: %s ROOT [DISCIPLINE] [WORD]\n", argv[0]);
    return 2;
  }
  const char* root = argv[1];
  const uint32_t discipline = argc > 2 ? static_cast<uint32_t>(std::atoi(argv[2])) : 1;
  const std::string word = argc > 3 ? argv[3] : "a";

  lumora::KeyedTable<lumora::DisciplineInfo> disciplines;
  if (!lmGetDisciplines(root, &disciplines)) {
    std::fprintf(stderr, "%s: no Content.ini to read\n", root);
    return 1;
  }
  for (uint32_t i = 0; i < disciplines.size(); ++i) {
    std::printf("discipline %u: type %u, param %d\n", disciplines.KeyAt(i),
                disciplines.ObjectAt(i)->Type, disciplines.ObjectAt(i)->Param);
  }
  if (!lmOpen(root, discipline)) {
    std::fprintf(stderr, "%s: discipline %u does not open\n", root, discipline);
    return 1;
  }

  // The first dictation of course 1, with the web paths of its sounds.
  const lumora::ContentRequest request{0, discipline, 1, lumora::kPathUrl};
  lumora::Type5Resource dictation;
  const uint32_t id = (1u << 20) | 1u;
  if (lmGetResource(&request, id, &dictation, true)) {
    std::printf("dictation 0x%x: %zu sentences\n", id, dictation.sentences.size());
    for (const auto& sentence : dictation.sentences) {
      std::printf("  sound %s\n", sentence->media.path.c_str());
    }
  } else {
    std::printf("dictation 0x%x: not found\n", id);
  }

  // Glossary entries whose written form starts with WORD.
  lumora::CGloV6* glossary = lmGetGlossary(&request);
  lumora::WordBuckets buckets;
  if (glossary != nullptr && glossary->findWords(buckets, 0, Ascii16(word), 0, 0, true)) {
    for (const auto& bucket : buckets) {
      for (uint16_t fn : bucket) {
        std::printf("  word %u: %s\n", fn, Utf8(glossary->getWritingText(fn)).c_str());
      }
    }
  }
  lmClose();
  return 0;
}
