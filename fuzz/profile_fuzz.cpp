// Feeds arbitrary bytes, as a configuration file and as a checksum list, to both ini readers.
#include <lumora/platform/profile.h>
#include <lumora/support/profile_file.h>

#include <unistd.h>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const std::string path = "/tmp/lumora-profile-fuzz-" + std::to_string(::getpid()) + ".ini";
  FILE* file = std::fopen(path.c_str(), "wb");
  if (!file) return 0;
  std::fwrite(data, 1, size, file);
  std::fclose(file);

  lumora::ProfileFile ini;
  if (ini.Load(path)) {
    for (const char* section : {"Common", "001", "002", "x"}) {
      ini.FindSection(section);
      ini.GetString("Local");
      ini.GetInt("Discipline");
      ini.GetString("URL");
    }
  }
  lumora::profile::GetString(path, "Main", "t_Glo_Words.set");
  lumora::profile::GetInt(path, "main", "DATE_t_Glo_Words.set");
  return 0;
}
