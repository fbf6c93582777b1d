// A destination made ready for an export: the library expects the export folder, its database
// and a Content.ini describing the exported discipline, so that the export is a content root of
// its own.
#include <lumora/maintenance.h>
#include <lumora/packages/export_folder.h>
#include <lumora/platform/atomic_write.h>
#include <lumora/support/paths.h>
#include <lumora/support/profile_file.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>

namespace lumora {
namespace {

namespace fs = std::filesystem;

// Why the destination cannot take the export.
struct Refused {
  std::string reason;
};

// The keys of the source's section for the discipline that the exported tree keeps. Local is
// left out: the exported discipline's files lie below the new root.
constexpr const char* kCopiedKeys[] = {"Discipline", "Type", "Param", "URL", "UNC"};

std::string SectionName(int number) {
  char name[16];
  std::snprintf(name, sizeof name, "%03d", number);
  return name;
}

// The discipline's section of the source's Content.ini, as the destination's section 001.
std::string ExportedContentIni(const std::string& root, uint32_t discipline) {
  ProfileFile ini;
  if (!ini.Load(WithBackslash(root) + "Content.ini")) {
    throw Refused{root + ": Content.ini cannot be read"};
  }
  for (int n = 1; ini.FindSection(SectionName(n)); ++n) {
    if (static_cast<uint32_t>(ini.GetInt("Discipline")) != discipline) continue;
    std::string text = "[001]\r\n";
    for (const char* key : kCopiedKeys)
      text += std::string(key) + "=" + ini.GetString(key) + "\r\n";
    return text;
  }
  throw Refused{root + ": Content.ini has no section for discipline " + std::to_string(discipline)};
}

// The export's publishing pass writes beside the resources of every discipline that DEST's
// Content.ini lists, below their Local roots: one that points outside DEST would have files of
// another tree rewritten. The library passes such a discipline over; the destination is refused
// before anything is written, so that the export is never a partial one.
void CheckLocalRoots(const std::string& destination) {
  ProfileFile ini;
  if (!ini.Load(WithBackslash(destination) + "Content.ini")) return;
  std::vector<std::string> sections = {"Common"};
  for (int n = 1; ini.FindSection(SectionName(n)); ++n) sections.push_back(SectionName(n));
  for (const std::string& section : sections) {
    if (!ini.FindSection(section)) continue;
    std::string local = ini.GetString("Local");
    if (local.empty()) continue;
    std::replace(local.begin(), local.end(), '\\', '/');
    if (!PathIsWithin(local, destination)) {
      throw Refused{WithBackslash(destination) + "Content.ini: section " + section +
                    " has its files in " + local +
                    ", outside the destination, where the export would write"};
    }
  }
}

std::string Prepare(const std::string& root, uint32_t discipline, const std::string& destination) {
  const fs::path folder(destination);
  std::error_code error;
  if (fs::exists(folder, error) && !fs::is_directory(folder, error)) {
    throw Refused{destination + ": is not a folder"};
  }
  CheckLocalRoots(destination);
  const std::string exportFolder = ExportFolderOf(destination, discipline);
  fs::create_directories(exportFolder, error);
  if (error) throw Refused{exportFolder + ": cannot be created: " + error.message()};
  // An empty file is an empty database; one that exists is left for the export to judge.
  const std::string database = exportFolder + "Content.mdb";
  if (!fs::exists(database) && !std::ofstream(database, std::ios::binary)) {
    throw Refused{database + ": cannot be created"};
  }
  const std::string ini = WithBackslash(destination) + "Content.ini";
  if (!fs::exists(ini)) {
    const WriteStatus written = WriteFileAtomically(ini, ExportedContentIni(root, discipline));
    if (!written.ok()) throw Refused{written.ToString()};
  }
  return exportFolder;
}

}  // namespace

std::string PrepareExportDestination(const std::string& root, uint32_t discipline,
                                     const std::string& destination, Status* status) {
  *status = {};
  try {
    return Prepare(root, discipline, destination);
  } catch (const Refused& refused) {
    status->code = StatusCode::kInvalidArgument;
    status->reason = refused.reason;
    return {};
  }
}

}  // namespace lumora
