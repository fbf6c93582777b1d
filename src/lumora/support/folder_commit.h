// Saving several files of one folder, and their checksums, all or nothing.
//
// The protocol, for a folder F:
//  1. Take F's lock exclusively (waiting, as for a held file, while another process has it),
//     and finish whatever an interrupted save left in F (RecoverFolder).
//  2. Check every target before anything is written: each existing file must be a regular,
//     writable file that nobody else holds, and CRCFile.ini must be readable.
//  3. Write each new file as <name>.lumora-new, then the new CRCFile.ini the same way, with the
//     checksum and date of every checksummed file and the other keys of the save, and the list
//     of renames as .lumora-commit.lumora-new; then flush them all to disk together.
//  4. Commit: rename the list into place as .lumora-commit and flush the folder. Before this
//     point a failure removes the staged files and leaves every old file as it was; after it,
//     the save is decided.
//  5. Rename every staged file over its target, CRCFile.ini last, flush the folder, and remove
//     .lumora-commit.
// While a DeferredFlush lives on the thread (a whole new tree being written), the flushes are
// left to it: the steps keep their order, and the tree is durable once it is flushed.
// Whoever opens F next (a reader through FolderReadScope, or the next save) first runs
// RecoverFolder: a .lumora-commit left by a crash has its remaining renames done, then every
// staged file still in F is removed. A save of a single file without checksum needs no
// journal: its rename is the commit.
#pragma once

#include <lumora/platform/file.h>
#include <lumora/platform/folder_lock.h>
#include <lumora/platform/write_status.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace lumora {

inline constexpr const char* kCommitJournalName = ".lumora-commit";

class FolderCommit {
 public:
  // `folder` ends in the separator.
  explicit FolderCommit(std::string folder) : folder_(std::move(folder)) {}

  // Replaces file `name` of the folder with `bytes`; `checksummed` also records its checksum
  // and date in the folder's CRCFile.ini. A name added twice keeps its last bytes.
  void Add(const std::string& name, std::string bytes, bool checksummed);
  // The same with bytes that `produce` makes while the save runs, after every target has been
  // checked. A file expected to be large (`expected_size`, the size of the file it replaces)
  // has its bytes made on another thread while the file before it is written, so that making
  // a large table and writing the one before it overlap; whatever `produce` reads must stay as
  // it is until Commit returns.
  void AddProduced(const std::string& name, std::function<std::string()> produce, bool checksummed,
                   uint64_t expected_size = 0);
  // The size of file `name` of the folder as it is now; 0 when it does not exist.
  uint64_t CurrentSize(const std::string& name) const;
  // Sets one more key of CRCFile.ini's section Main together with the files.
  void SetListValue(std::string key, std::string value);

  // Carries the save out; on failure the folder holds its old files and the status says which
  // file failed and why.
  WriteStatus Commit();

 private:
  struct Staged {
    std::string name;
    std::function<std::string()> produce;
    bool checksummed;
    uint64_t expectedSize;
  };
  // A file's bytes as made, with their checksum when the file is checksummed.
  struct Made {
    std::string bytes;
    uint32_t crc = 0;
  };
  using ListValues = std::vector<std::pair<std::string, std::string>>;

  bool UsesList() const;
  std::vector<std::string> Targets() const;
  WriteStatus CheckTargets(std::vector<std::unique_ptr<File>>& held) const;
  WriteStatus StageFiles(std::vector<std::string>& staged, ListValues& list) const;
  WriteStatus StageList(std::vector<std::string>& staged, const ListValues& list) const;
  WriteStatus FlushStaged(const std::vector<std::string>& staged, bool journaled) const;
  WriteStatus StageJournal(const std::vector<std::string>& staged) const;
  WriteStatus RecordJournal() const;
  WriteStatus Publish(const std::vector<std::string>& staged) const;
  void Discard(const std::vector<std::string>& staged) const;

  std::string folder_;
  std::vector<Staged> files_;
  ListValues listValues_;
};

// Completes or discards what an interrupted save left in `folder` (see above). The caller holds
// the folder's lock exclusively.
WriteStatus RecoverFolder(const std::string& folder);

// Held while reading files of a folder that a save may change together: when nobody else is in
// the folder, what an interrupted save left is recovered first; then the folder is held
// shared, so that no save replaces some of the files halfway through the reading. A folder
// that cannot be locked (missing, or not readable) is read without the lock.
class FolderReadScope {
 public:
  explicit FolderReadScope(const std::string& folder);

 private:
  FolderLock lock_;
};

}  // namespace lumora
