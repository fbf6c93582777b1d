// Replacing a whole file so that readers see either the old bytes or the new ones, never half
// of each, and so that what was reported saved survives a crash: the bytes go to a staging
// file beside the target (<name>.lumora-new), are flushed to disk, renamed over the target,
// and the folder is flushed. A replaced file keeps its permission bits. Writers of one folder
// take turns through its FolderLock.
#pragma once

#include <lumora/platform/folder_lock.h>
#include <lumora/platform/write_status.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace lumora {

inline constexpr std::string_view kStagingSuffix = ".lumora-new";

std::string StagingPath(const std::string& path);

// The folder of `path` with its separator (empty for a bare name): the folder whose lock a
// write of `path` holds.
std::string FolderPart(const std::string& path);

// Whether `path` can be replaced: its folder exists, and the file, when it exists, is a regular
// file that is not marked read-only (no owner write bit, as a read-only attribute would say).
WriteStatus CheckReplaceable(const std::string& path);

// Writes `bytes` to StagingPath(path) and, unless `flush` is false, flushes them to disk; the
// staging file gets the target's permission bits. A failure removes the staging file again.
WriteStatus StageFile(const std::string& path, std::string_view bytes, bool flush = true);

// Checks, stages and renames one file in place, holding its folder's lock throughout. On
// failure the old file (if any) is untouched and no staging file is left.
WriteStatus WriteFileAtomically(const std::string& path, std::string_view bytes);

// Copies the file at `source` over `destination` as WriteFileAtomically writes (overwriting
// an existing destination), a block at a time, with the source's permission bits.
WriteStatus CopyFileAtomically(const std::string& source, const std::string& destination);

// The same two for a caller that holds `lock`, the exclusive lock of the target's folder, already
// (a writer of many files into a few folders, which keeps their locks between files).
WriteStatus WriteFileInLockedFolder(const FolderLock& lock, const std::string& path,
                                    std::string_view bytes);
WriteStatus CopyFileInLockedFolder(const FolderLock& lock, const std::string& source,
                                   const std::string& destination);

// Writing a whole new tree of many files (a sample, an export): while one lives on the calling
// thread, WriteFileAtomically still stages and renames each file but leaves flushing to
// Finish, which flushes the file system that holds `folder` once. A killed process leaves each
// file whole or absent. A power loss leaves a file that was replaced old or new (its bytes are
// flushed before its rename all the same), while a new file may be absent or empty; the tree as
// a whole is durable once Finish succeeds.
// Whether a DeferredFlush lives on the calling thread: writers of several files leave their
// flushes to it too.
bool FlushesDeferred();

class DeferredFlush {
 public:
  explicit DeferredFlush(std::string folder);
  ~DeferredFlush();
  DeferredFlush(const DeferredFlush&) = delete;
  DeferredFlush& operator=(const DeferredFlush&) = delete;

  // Flushes everything written since construction; reports the folder when that fails.
  WriteStatus Finish();

 private:
  std::string folder_;
  bool previous_;
};

}  // namespace lumora
