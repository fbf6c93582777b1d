#include <lumora/platform/atomic_write.h>
#include <lumora/platform/disk.h>
#include <lumora/platform/held_retry.h>
#include <lumora/platform/notify.h>
#include <lumora/platform/profile.h>
#include <lumora/support/crc32.h>
#include <lumora/support/folder_commit.h>
#include <lumora/support/paths.h>
#include <lumora/support/xcrc_file2.h>

#include <sys/stat.h>

#include <algorithm>
#include <cstring>
#include <future>

namespace lumora {
namespace {

template <typename Item, typename Key>
Item* FindNamed(std::vector<Item>& items, const Key& key, auto name_of) {
  auto it = std::find_if(items.begin(), items.end(),
                         [&](const Item& item) { return name_of(item) == key; });
  return it == items.end() ? nullptr : &*it;
}

// Opens an existing target with an exclusive lock and keeps it, so that no reader opens the
// old file halfway through the save; a missing target needs no lock.
WriteStatus HoldTarget(const std::string& path, std::vector<std::unique_ptr<File>>& held) {
  if (!FileExists(path)) return {};
  auto file = std::make_unique<File>();
  auto once = [&] {
    using namespace open_flags;
    if (file->Open(path, kRead | kBinary | kShareExclusive)) return 0;
    return file->LastError();
  };
  const int error = RetryWhileHeld(once, [&](int os_error) {
    Notify(std::string(std::strerror(os_error)) + "\nFile: " + path);
  });
  if (error != 0) return WriteStatus::Failure(path, "cannot be opened for the save", error);
  held.push_back(std::move(file));
  return {};
}

}  // namespace

void FolderCommit::Add(const std::string& name, std::string bytes, bool checksummed) {
  AddProduced(
      name, [bytes = std::move(bytes)]() mutable { return std::move(bytes); }, checksummed);
}

void FolderCommit::AddProduced(const std::string& name, std::function<std::string()> produce,
                               bool checksummed, uint64_t expected_size) {
  Staged file{name, std::move(produce), checksummed, expected_size};
  if (Staged* same = FindNamed(files_, name, [](const Staged& s) { return s.name; })) {
    *same = std::move(file);
    return;
  }
  files_.push_back(std::move(file));
}

uint64_t FolderCommit::CurrentSize(const std::string& name) const {
  struct stat st;
  return ::stat((folder_ + name).c_str(), &st) == 0 && S_ISREG(st.st_mode)
             ? static_cast<uint64_t>(st.st_size)
             : 0;
}

void FolderCommit::SetListValue(std::string key, std::string value) {
  if (auto* same = FindNamed(listValues_, key, [](const auto& kv) { return kv.first; })) {
    same->second = std::move(value);
    return;
  }
  listValues_.emplace_back(std::move(key), std::move(value));
}

bool FolderCommit::UsesList() const {
  return !listValues_.empty() ||
         std::any_of(files_.begin(), files_.end(), [](const Staged& s) { return s.checksummed; });
}

std::vector<std::string> FolderCommit::Targets() const {
  std::vector<std::string> names;
  for (const Staged& file : files_) names.push_back(file.name);
  if (UsesList()) names.push_back(xCRCFile2::kListName);
  return names;
}

WriteStatus FolderCommit::Commit() {
  FolderLock lock;
  if (int error = lock.Acquire(folder_, FolderLock::Mode::kExclusive)) {
    return WriteStatus::Failure(folder_, "cannot lock the folder", error);
  }
  if (WriteStatus recovered = RecoverFolder(folder_); !recovered.ok()) return recovered;
  std::vector<std::unique_ptr<File>> held;
  if (WriteStatus checked = CheckTargets(held); !checked.ok()) return checked;
  std::vector<std::string> staged;
  ListValues list;
  WriteStatus status;
  try {
    status = StageFiles(staged, list);
  } catch (...) {
    // Making some file's bytes failed (no memory): nothing of the save may stay behind.
    Discard(staged);
    throw;
  }
  if (status.ok() && UsesList()) status = StageList(staged, list);
  // The journal is staged with the files and flushed with them, in one batch.
  const bool journaled = staged.size() > 1;
  if (status.ok() && journaled) status = StageJournal(staged);
  if (status.ok()) status = FlushStaged(staged, journaled);
  if (status.ok() && journaled) status = RecordJournal();
  if (!status.ok()) {
    Discard(staged);
    return status;
  }
  return Publish(staged);
}

WriteStatus FolderCommit::CheckTargets(std::vector<std::unique_ptr<File>>& held) const {
  for (const std::string& name : Targets()) {
    const std::string path = folder_ + name;
    if (WriteStatus check = CheckReplaceable(path); !check.ok()) return check;
    if (WriteStatus hold = HoldTarget(path, held); !hold.ok()) return hold;
  }
  return {};
}

WriteStatus FolderCommit::StageFiles(std::vector<std::string>& staged, ListValues& list) const {
  if (files_.empty()) return {};
  // Only the making of bytes runs on the other thread; every disk step stays on this one, in
  // file order. A small file is made here: a thread would cost more than it saves.
  constexpr uint64_t kWorthAThread = 256 * 1024;
  auto make = [&](size_t i) {
    const bool large = files_.size() > 1 && files_[i].expectedSize >= kWorthAThread;
    return std::async(large ? std::launch::async : std::launch::deferred, [&file = files_[i]] {
      Made made{file.produce(), 0};
      if (file.checksummed) made.crc = Crc32(made.bytes.data(), made.bytes.size());
      return made;
    });
  };
  std::future<Made> next = make(0);
  for (size_t i = 0; i < files_.size(); ++i) {
    const Made made = next.get();
    if (i + 1 < files_.size()) next = make(i + 1);
    const Staged& file = files_[i];
    const std::string path = folder_ + file.name;
    // Flushed all together once the list is staged too (FlushStaged).
    if (WriteStatus written = StageFile(path, made.bytes, false); !written.ok()) return written;
    staged.push_back(file.name);
    if (!file.checksummed) continue;
    list.emplace_back(file.name, xCRCFile2::ListChecksumText(made.crc));
    list.emplace_back("DATE_" + file.name, xCRCFile2::ListDate(StagingPath(path)));
  }
  return {};
}

WriteStatus FolderCommit::StageList(std::vector<std::string>& staged,
                                    const ListValues& list) const {
  const std::string path = folder_ + xCRCFile2::kListName;
  std::optional<std::string> old = profile::ReadProfileBytes(path);
  if (!old) return WriteStatus::Failure(path, "cannot be read");
  ListValues values = list;
  values.insert(values.end(), listValues_.begin(), listValues_.end());
  std::optional<std::string> edited = profile::WithValues(*old, xCRCFile2::kListSection, values);
  if (!edited) return WriteStatus::Failure(path, "cannot hold a name or value of this save");
  if (WriteStatus written = StageFile(path, *edited, false); !written.ok()) return written;
  staged.push_back(xCRCFile2::kListName);
  return {};
}

WriteStatus FolderCommit::FlushStaged(const std::vector<std::string>& staged,
                                      bool journaled) const {
  if (FlushesDeferred()) return {};
  std::vector<std::string> paths;
  for (const std::string& name : staged) paths.push_back(StagingPath(folder_ + name));
  if (journaled) paths.push_back(StagingPath(folder_ + kCommitJournalName));
  std::string failed;
  if (int error = disk::SyncFiles(paths, &failed)) {
    return WriteStatus::Failure(failed, "cannot flush it to disk", error);
  }
  return {};
}

WriteStatus FolderCommit::StageJournal(const std::vector<std::string>& staged) const {
  std::string text = "lumora commit\n";
  for (const std::string& name : staged) text += name + "\n";
  text += "end\n";
  return StageFile(folder_ + kCommitJournalName, text, false);
}

WriteStatus FolderCommit::RecordJournal() const {
  const std::string journal = folder_ + kCommitJournalName;
  int error = disk::Rename(StagingPath(journal), journal);
  if (error == 0 && !FlushesDeferred() && (error = disk::SyncFolder(folder_)) != 0) {
    disk::Remove(journal);
  }
  if (error == 0) return {};
  return WriteStatus::Failure(journal, "cannot record the save", error);
}

WriteStatus FolderCommit::Publish(const std::vector<std::string>& staged) const {
  const bool journaled = staged.size() > 1;
  for (const std::string& name : staged) {
    const std::string path = folder_ + name;
    if (int error = disk::Rename(StagingPath(path), path)) {
      if (!journaled) disk::Remove(StagingPath(path));
      return WriteStatus::Failure(
          path,
          journaled ? "cannot be renamed into place; the next open of the folder ends the save"
                    : "cannot be renamed into place",
          error);
    }
  }
  if (int error = FlushesDeferred() ? 0 : disk::SyncFolder(folder_)) {
    return WriteStatus::Failure(folder_, "cannot flush the folder to disk", error);
  }
  // Left behind, the journal only names renames already done; the next open removes it.
  if (journaled) disk::Remove(folder_ + kCommitJournalName);
  return {};
}

void FolderCommit::Discard(const std::vector<std::string>& staged) const {
  for (const std::string& name : staged) disk::Remove(StagingPath(folder_ + name));
  if (staged.size() > 1) disk::Remove(StagingPath(folder_ + kCommitJournalName));
}

}  // namespace lumora
