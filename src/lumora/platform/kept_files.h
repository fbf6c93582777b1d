// Files that a thread writes and then reads back soon after: an export copies every resource file
// and then rebuilds its index files from the copies. While a KeptFiles lives on the calling
// thread, the bytes a writer kept are what LoadArchiveFile loads for that path, instead of
// reading the file again. Up to a limit: past it, files are read from the disk as usual.
#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>

namespace lumora {

// Keeps `bytes` as what the file at `path` holds, which the caller has just written with them;
// nothing happens when no KeptFiles lives on this thread or its limit is reached.
void KeepFile(const std::string& path, std::string bytes);
// The bytes kept for `path`, or null.
const std::string* KeptFile(const std::string& path);
// Called by every change the library makes on disk at `path` (see disk.h), so that nothing kept
// outlives the file it was kept for.
void ForgetKeptFile(const std::string& path);

class KeptFiles {
 public:
  explicit KeptFiles(size_t most_bytes = size_t{64} << 20);
  ~KeptFiles();
  KeptFiles(const KeptFiles&) = delete;
  KeptFiles& operator=(const KeptFiles&) = delete;

 private:
  friend void KeepFile(const std::string&, std::string);
  friend const std::string* KeptFile(const std::string&);
  friend void ForgetKeptFile(const std::string&);

  friend class KeptFilesView;

  std::unordered_map<std::string, std::string> files_;
  size_t bytes_ = 0;
  size_t most_bytes_;
  KeptFiles* previous_;
};

// Lets the calling thread read what another thread's KeptFiles holds, for work split across
// threads once the files are kept: LoadArchiveFile on this thread then loads them from memory
// too. Nothing is kept or forgotten through a view, so that the threads only ever read the kept
// files; the KeptFiles must outlive the view and not change while it lives.
class KeptFilesView {
 public:
  explicit KeptFilesView(KeptFiles& shared);
  ~KeptFilesView();
  KeptFilesView(const KeptFilesView&) = delete;
  KeptFilesView& operator=(const KeptFilesView&) = delete;

 private:
  KeptFiles* previous_;
  bool previousViewing_;
};

}  // namespace lumora
