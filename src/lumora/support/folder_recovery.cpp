// Finishing or undoing an interrupted FolderCommit, and the readers' side of the folder lock.
#include <lumora/platform/atomic_write.h>
#include <lumora/platform/disk.h>
#include <lumora/platform/profile.h>
#include <lumora/support/folder_commit.h>
#include <lumora/support/folder_entries.h>
#include <lumora/support/paths.h>

#include <optional>
#include <sstream>

namespace lumora {
namespace {

// The renames a committed journal names; nothing when the journal is not one this library
// wrote whole (it is renamed into place complete, so that means it is not ours).
std::optional<std::vector<std::string>> JournalNames(const std::string& text) {
  std::istringstream lines(text);
  std::string line;
  if (!std::getline(lines, line) || line != "lumora commit") return std::nullopt;
  std::vector<std::string> names;
  while (std::getline(lines, line)) {
    if (line == "end") return names;
    if (line.empty() || line.find('/') != std::string::npos || line == "." || line == "..") {
      return std::nullopt;
    }
    names.push_back(line);
  }
  return std::nullopt;
}

WriteStatus FinishCommit(const std::string& folder) {
  const std::string journal = folder + kCommitJournalName;
  if (!FileExists(journal)) return {};
  std::optional<std::string> text = profile::ReadProfileBytes(journal);
  if (!text) return WriteStatus::Failure(journal, "cannot be read to finish an interrupted save");
  for (const std::string& name : JournalNames(*text).value_or(std::vector<std::string>{})) {
    const std::string path = folder + name;
    if (!FileExists(StagingPath(path))) continue;
    if (int error = disk::Rename(StagingPath(path), path)) {
      return WriteStatus::Failure(path, "cannot finish an interrupted save", error);
    }
  }
  if (int error = disk::SyncFolder(folder)) {
    return WriteStatus::Failure(folder, "cannot flush the folder to disk", error);
  }
  if (int error = disk::Remove(journal)) {
    return WriteStatus::Failure(journal, "cannot be removed", error);
  }
  return {};
}

bool IsStagingName(const std::string& name) {
  return name.size() > kStagingSuffix.size() &&
         name.compare(name.size() - kStagingSuffix.size(), kStagingSuffix.size(), kStagingSuffix) ==
             0;
}

}  // namespace

WriteStatus RecoverFolder(const std::string& folder) {
  if (WriteStatus finished = FinishCommit(folder); !finished.ok()) return finished;
  for (const FolderEntry& entry : ListFolder(folder).value_or(std::vector<FolderEntry>{})) {
    if (entry.isFolder || !IsStagingName(entry.name)) continue;
    if (int error = disk::Remove(folder + entry.name)) {
      return WriteStatus::Failure(folder + entry.name, "cannot be removed", error);
    }
  }
  return {};
}

FolderReadScope::FolderReadScope(const std::string& folder) {
  if (lock_.TryAcquire(folder, FolderLock::Mode::kExclusive) == 0) {
    // Nobody else is in the folder: nothing that is being saved right now can be mistaken for
    // what a crash left. A folder that cannot be changed (read-only media) is read as it is.
    RecoverFolder(folder);
    lock_.Downgrade();
    return;
  }
  lock_.Acquire(folder, FolderLock::Mode::kShared);
}

}  // namespace lumora
