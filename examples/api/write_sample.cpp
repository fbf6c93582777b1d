// The sample content: a small but complete content root that every other example reads.
//
//   write_sample FOLDER
#include <lumora/maintenance.h>

#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  lumora::SampleOptions options;
  options.scale = 1;
  options.durable = false;  // a test folder need not survive a power cut
  std::string error;
  if (!lumora::WriteSampleContent(argv[1], options, &error)) {
    std::fprintf(stderr, "%s\n", error.c_str());
    return 1;
  }
  std::printf("sample written to %s\n", argv[1]);
  return 0;
}
