// The few operations that change what is on disk, each answering 0 or the errno that stopped
// it, and each passing the fault-injection seam first. Whatever the library writes goes
// through these, so that one seam sees every step of every save. Each also forgets what a
// KeptFiles kept for the paths it changes.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace lumora::disk {

// Creates (or truncates) `path` for writing with permission bits `mode` (before the umask);
// the descriptor goes to *fd.
int CreateForWriting(const std::string& path, unsigned mode, int* fd);
// The same, and Rename below, for a file named `name` in the folder open as `folder_fd` (AT_FDCWD:
// `name` is a path); `path` is the file's whole path, which the seams see.
int CreateForWritingAt(int folder_fd, const std::string& name, const std::string& path,
                       unsigned mode, int* fd);
int WriteAll(int fd, const void* bytes, size_t n);
int SyncFile(int fd);
// Makes several written files durable: writeback of all of them is started first, then each
// is waited for, so that their writes overlap instead of queueing one flush behind another.
// Answers the first error (naming its path in *failed).
int SyncFiles(const std::vector<std::string>& paths, std::string* failed);
// Closes fd in every case; answers the error close reported.
int CloseFile(int fd);
int Rename(const std::string& from, const std::string& to);
int RenameAt(int folder_fd, const std::string& from_name, const std::string& to_name,
             const std::string& from, const std::string& to);
// A path that is already gone counts as removed.
int Remove(const std::string& path);
// Makes the folder's entries (names created, renamed, removed) durable.
int SyncFolder(const std::string& folder);
// Flushes everything written to the file system that holds `folder`.
int SyncFileSystem(const std::string& folder);
// Sets the permission bits of an open file exactly, whatever the umask took away.
int SetMode(int fd, unsigned mode);

}  // namespace lumora::disk
