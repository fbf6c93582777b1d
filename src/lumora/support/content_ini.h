// Content.ini and the folders named after it. Section Common gives the shared roots; sections
// "001", "002", ... describe one discipline each and end at the first missing number. Every
// folder value ends in the separator; URL values are kept exactly as written.
#pragma once

#include <lumora/support/profile_file.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace lumora {

// The content root with a separator appended unless it is empty; an empty root means the
// current folder.
std::string NormalizedRoot(std::string_view content_root);

std::string ContentIniPath(const std::string& root);
// "001" for n = 1.
std::string DisciplineSectionName(uint32_t n);
// "D007/": the folder of discipline 7 below any of the roots.
std::string DisciplineFolder(uint32_t id);
// The folder of the library-wide classification below the common Local root.
std::string ClassesFolder(const std::string& common_local);
// "C0000/r0001001" for 1001: glossary (1001) and grammar (1002) lie in course 0.
std::string LexiconFolder(const std::string& local_root, uint32_t number);

// The value of a folder key in the current section, with a separator appended unless empty.
std::string ReadFolder(ProfileFile& ini, const char* key);
// The value of key UNC in the current section, with a backslash appended unless empty: the
// network root is handed to hosts as written, so it keeps the separator of network paths.
std::string ReadUncFolder(ProfileFile& ini);
// `value`, or `fallback` when it is empty.
std::string ValueOr(std::string value, const std::string& fallback);

struct CommonRoots {
  std::string local;
  std::string unc;
  std::string url;
};
// The roots of section Common; each one missing or empty (or the whole section) is `root`.
CommonRoots ReadCommonRoots(ProfileFile& ini, const std::string& root);
// Only the Local root of section Common, falling back to `root` like ReadCommonRoots.
std::string ReadCommonLocal(ProfileFile& ini, const std::string& root);

// The key Discipline of the current section.
uint32_t ReadDisciplineId(ProfileFile& ini);

}  // namespace lumora
