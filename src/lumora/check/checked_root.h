// A content root opened for checking: its Content.ini, its common roots, the classification and
// every discipline the library's open would open, held here and not in the library's registry,
// so that a check leaves the host's open content alone.
#pragma once

#include <lumora/check/content_check.h>
#include <lumora/check/media_verification.h>
#include <lumora/frame/discipline.h>
#include <lumora/lexicon/classification.h>
#include <lumora/resources/types/index_inputs.h>
#include <lumora/support/content_ini.h>
#include <lumora/support/folder_entries.h>
#include <lumora/support/profile_file.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace lumora {

struct CheckedDiscipline {
  uint32_t section = 0;  // n of section "%03d"
  uint32_t id = 0;
  std::unique_ptr<Discipline> discipline;
  LexiconLoadResult lexicon;  // how the glossary and grammar loads went
};

class CheckedRoot {
 public:
  CheckedRoot(const std::string& content_root, const CheckOptions& options);
  CheckedRoot(const CheckedRoot&) = delete;
  CheckedRoot& operator=(const CheckedRoot&) = delete;

  // `path` relative to the root when it lies below it, else as given.
  std::string Relative(const std::string& path) const;
  // The quality folders to check: those of the options, or 1, 2 and 3.
  const ByteArray& qualityFolders() const { return quality_; }
  // Whether the check of that name is among those run.
  bool Runs(std::string_view check) const;
  // Whether the checks of resource files one by one look at the file at `path`.
  bool ChecksResourceFile(const std::string& path) const;
  bool ChecksEveryResourceFile() const { return onlyResourceFiles_.empty(); }

  // The progress of the whole run counts files read: `steps` are expected in all.
  void SetProgressRange(uint64_t steps);
  // `steps` more files (or, for a check reading few, the check itself) are done; from any thread.
  void StepsDone(uint64_t steps) const;

  const CheckOptions& options;
  std::string root;  // with its separator
  std::string iniPath;
  bool iniLoaded = false;
  ProfileFile ini;  // as loaded; the searches' cursor is the checks' to move
  CommonRoots common;
  Classification classification;
  LoadResult classificationLoad;               // how the classification's load went
  std::vector<CheckedDiscipline> disciplines;  // Type 0 and the filter's, in section order
  // The course and type folders of every discipline, listed once for every check that scans
  // them; the number of resource files (".ars" and ".arh") they hold.
  FolderListing resourceFolders;
  uint64_t resourceFiles = 0;
  // What the resources check decoded for the checks after it, so that no resource file is
  // decoded twice: written by that check before any other runs beside it.
  struct Decoded {
    // The media check's verifications of each discipline's resources, in its order; empty when
    // that check does not run.
    std::vector<std::vector<MediaVerification>> media;
    // By discipline, what the type-1005 and type-40 index rebuilds keep of each file of a scan
    // of the type, when every one was decoded; the index check takes them.
    std::map<size_t, std::vector<ElementIndexInput>> elements;
    std::map<size_t, std::vector<Type40IndexInput>> type40;
  };
  mutable Decoded decoded;

 private:
  ByteArray quality_;
  std::set<std::string> onlyResourceFiles_;
  mutable std::mutex progress_lock_;
  uint64_t expected_ = 0;
  mutable uint64_t done_ = 0;
};

}  // namespace lumora
