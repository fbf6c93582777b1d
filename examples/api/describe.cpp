// Descriptions of objects handed out by the entry points: the index of discipline 1 and a
// glossary search, each the document `lumora ... --json` prints.
//
//   describe ROOT
#include <lumora/descriptions.h>

#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  if (!lmOpen(argv[1], 1)) return 1;
  const lumora::ContentRequest request{0, 1, 1, lumora::kPathUrl};
  int result = 1;
  if (const lumora::ResourceIndex* index = lmGetResourceInfos(&request)) {
    const lumora::Description described = lumora::DescribeIndex(*index, request, 5u);
    std::printf("index: %s\n", described.dump().c_str());
    result = 0;
  }
  if (lumora::CGloV6* glossary = lmGetGlossary(&request)) {
    lumora::WordBuckets buckets;
    glossary->findWords(buckets, 0, u"a", 0, 0, true);
    std::printf("words: %s\n", lumora::DescribeWordBuckets(*glossary, buckets).dump().c_str());
  }
  lmClose();
  return result;
}
