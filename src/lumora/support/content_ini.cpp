#include <lumora/support/content_ini.h>
#include <lumora/support/paths.h>

#include <cstdio>

namespace lumora {

std::string NormalizedRoot(std::string_view content_root) { return WithBackslash(content_root); }

std::string ContentIniPath(const std::string& root) { return root + "Content.ini"; }

std::string DisciplineSectionName(uint32_t n) {
  char name[16];
  std::snprintf(name, sizeof name, "%03u", n);
  return name;
}

std::string DisciplineFolder(uint32_t id) {
  // The identifier is printed as the signed number the configuration holds.
  char name[16];
  std::snprintf(name, sizeof name, "D%03d", static_cast<int32_t>(id));
  return name + std::string(1, kPathSeparator);
}

std::string ClassesFolder(const std::string& common_local) { return common_local + "Classes"; }

std::string LexiconFolder(const std::string& local_root, uint32_t number) {
  char name[32];
  std::snprintf(name, sizeof name, "C0000%cr%07u", kPathSeparator, number);
  return local_root + name;
}

// A value written with either separator at its end (content prepared on another system) is
// a folder already: only a value without one gets the platform's separator.
std::string ReadFolder(ProfileFile& ini, const char* key) {
  std::string value = ini.GetString(key);
  if (!value.empty() && (value.back() == '\\' || value.back() == '/')) return value;
  return WithBackslash(value);
}

std::string ReadUncFolder(ProfileFile& ini) {
  std::string value = ini.GetString("UNC");
  if (!value.empty() && value.back() != '\\') value.push_back('\\');
  return value;
}

std::string ValueOr(std::string value, const std::string& fallback) {
  return value.empty() ? fallback : value;
}

CommonRoots ReadCommonRoots(ProfileFile& ini, const std::string& root) {
  CommonRoots roots;
  if (ini.FindSection("Common")) {
    roots.local = ReadFolder(ini, "Local");
    roots.unc = ReadUncFolder(ini);
    roots.url = ini.GetString("URL");
  }
  roots.local = ValueOr(roots.local, root);
  roots.unc = ValueOr(roots.unc, root);
  roots.url = ValueOr(roots.url, root);
  return roots;
}

std::string ReadCommonLocal(ProfileFile& ini, const std::string& root) {
  return ValueOr(ini.FindSection("Common") ? ReadFolder(ini, "Local") : std::string(), root);
}

uint32_t ReadDisciplineId(ProfileFile& ini) {
  return static_cast<uint32_t>(ini.GetInt("Discipline"));
}

}  // namespace lumora
