// A destination made ready for an export: the library expects the export folder, its database
// and a Content.ini describing the exported discipline, so that the export is a content root of
// its own.
#include <lumora/content/content_answers.h>
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

// The keys of the source's section for the discipline that the exported tree keeps. Local is
// left out: the exported discipline's files lie below the new root.
constexpr const char* kCopiedKeys[] = {"Discipline", "Type", "Param", "URL", "UNC"};

std::string SectionName(int number) {
  char name[16];
  std::snprintf(name, sizeof name, "%03d", number);
  return name;
}

// The discipline's section of the source's Content.ini, as the destination's section 001.
Status ExportedContentIni(const std::string& root, uint32_t discipline, std::string* text) {
  ProfileFile ini;
  if (!ini.Load(WithBackslash(root) + "Content.ini")) {
    return Failure(StatusCode::kUnreadable, root + ": Content.ini cannot be read");
  }
  for (int n = 1; ini.FindSection(SectionName(n)); ++n) {
    if (static_cast<uint32_t>(ini.GetInt("Discipline")) != discipline) continue;
    *text = "[001]\r\n";
    for (const char* key : kCopiedKeys)
      *text += std::string(key) + "=" + ini.GetString(key) + "\r\n";
    return Status();
  }
  return NotFound(root + ": Content.ini has no section for discipline " +
                  std::to_string(discipline));
}

// The export's publishing pass writes beside the resources of every discipline that DEST's
// Content.ini lists, below their Local roots: one that points outside DEST would have files of
// another tree rewritten. The library passes such a discipline over; the destination is refused
// before anything is written, so that the export is never a partial one.
Status CheckLocalRoots(const std::string& destination) {
  ProfileFile ini;
  if (!ini.Load(WithBackslash(destination) + "Content.ini")) return Status();
  std::vector<std::string> sections = {"Common"};
  for (int n = 1; ini.FindSection(SectionName(n)); ++n) sections.push_back(SectionName(n));
  for (const std::string& section : sections) {
    if (!ini.FindSection(section)) continue;
    std::string local = ini.GetString("Local");
    if (local.empty()) continue;
    std::replace(local.begin(), local.end(), '\\', '/');
    if (!PathIsWithin(local, destination)) {
      return Failure(StatusCode::kInvalidArgument,
                     WithBackslash(destination) + "Content.ini: section " + section +
                         " has its files in " + local +
                         ", outside the destination, where the export would write");
    }
  }
  return Status();
}

// DEST with its export folder, an empty database there unless one exists, and a Content.ini
// unless DEST has one.
Status Prepare(const std::string& root, uint32_t discipline, const std::string& destination,
               const std::string& exportFolder) {
  std::error_code error;
  if (fs::exists(destination, error) && !fs::is_directory(destination, error)) {
    return Failure(StatusCode::kInvalidArgument, destination + ": is not a folder");
  }
  if (Status local = CheckLocalRoots(destination); !local.ok()) return local;
  std::string ini_text;
  const std::string ini = WithBackslash(destination) + "Content.ini";
  if (!fs::exists(ini)) {
    if (Status read = ExportedContentIni(root, discipline, &ini_text); !read.ok()) return read;
  }
  fs::create_directories(exportFolder, error);
  if (error) {
    return Failure(StatusCode::kUnwritable,
                   exportFolder + ": cannot be created: " + error.message());
  }
  // An empty file is an empty database; one that exists is left for the export to judge.
  const std::string database = exportFolder + "Content.mdb";
  if (!fs::exists(database) && !std::ofstream(database, std::ios::binary)) {
    return Failure(StatusCode::kUnwritable, database + ": cannot be created");
  }
  if (!ini_text.empty()) {
    const WriteStatus written = WriteFileAtomically(ini, ini_text);
    if (!written.ok()) return Failure(StatusCode::kUnwritable, written.ToString());
  }
  return Status();
}

}  // namespace

std::string PrepareExportDestination(const std::string& root, uint32_t discipline,
                                     const std::string& destination, Status* status) {
  const std::string exportFolder = ExportFolderOf(destination, discipline);
  *status = Prepare(root, discipline, destination, exportFolder);
  return status->ok() ? exportFolder : std::string();
}

}  // namespace lumora
