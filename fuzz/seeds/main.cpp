// fuzz_seeds TREE OUT: writes the seed corpus of every fuzz target into OUT/<target>/ from the
// content tree that `lumora sample TREE` wrote, or from the broken files of tests/corpus (laid
// out as in a content tree). Seeds of several trees can go into one OUT.
#include <cstdio>
#include <filesystem>

#include "seed_sets.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: %s SAMPLE OUT\n", argv[0]);
    return 2;
  }
  const std::filesystem::path sample = argv[1];
  const std::filesystem::path out = argv[2];
  if (!std::filesystem::is_directory(sample)) {
    std::fprintf(stderr, "%s: no sample content in %s\n", argv[0], argv[1]);
    return 1;
  }
  seeds::WriteResourceSeeds(sample, out);
  seeds::WriteIndexSeeds(sample, out);
  seeds::WriteArchiveFormSeeds(sample, out);
  seeds::WriteProfileSeeds(sample, out);
  seeds::WriteDatabaseTextSeeds(sample, out);
  seeds::WriteTextContextSeeds(out);
  seeds::WriteLexiconSeeds(sample, out, out / "small-glossaries");
  return 0;
}
