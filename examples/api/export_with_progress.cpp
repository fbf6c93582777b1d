// The export of a discipline's first package into DEST, with a progress that a program would
// show as a bar.
//
//   export_with_progress ROOT DEST
#include <lumora/maintenance.h>

#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  if (!lmOpen_Database(argv[1], 1)) return 1;
  int result = 1;
  lumora::PackageList packages;
  lumora::Status status;
  const std::string folder = lumora::PrepareExportDestination(argv[1], 1, argv[2], &status);
  if (!status.ok()) {
    std::fprintf(stderr, "%s\n", status.reason.c_str());
  } else if (lmGetPackages(1, &packages) && packages.size() > 0) {
    lumora::DWordArray ids;
    ids.Add(packages.KeyAt(0));
    lumora::ByteArray quality;
    quality.Add(1);
    uint32_t maximum = 0;
    uint32_t last = 0;
    const lumora::Progress progress([&maximum](uint32_t m) { maximum = m; },
                                    [&last](uint32_t p) { last = p; });
    std::string report;
    if (lmExportPackage(1, ids, quality, argv[2], &progress, &report)) {
      std::printf("exported package %u into %s: progress %u of %u\n", packages.KeyAt(0),
                  folder.c_str(), last, maximum);
      result = 0;
    } else {
      std::fprintf(stderr, "export failed:\n%s", report.c_str());
    }
  }
  lmClose();
  return result;
}
