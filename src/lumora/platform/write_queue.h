// Writing many files while the caller goes on with its own work: an export reads, decodes and
// files each resource while the ones before it are still being written. Each queued file is
// written on a writer thread, in the order queued, exactly as WriteFileAtomically (or
// CopyFileAtomically) writes it, with flushing deferred when the queue was made under a
// DeferredFlush. (One writer: on two cores a second one made the writes slower, the two
// contending for the same folders.) The queue keeps the exclusive locks of the folders it writes
// into between files, the most recently used ones until it is gone: a thread that queues writes
// into a folder must not write into that folder itself meanwhile.
#pragma once

#include <lumora/platform/folder_lock.h>
#include <lumora/platform/write_status.h>

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <list>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace lumora {

class WriteQueue {
 public:
  struct Job {
    std::string path;
    std::string bytes;   // what the file gets, unless `source` is given
    std::string source;  // a file to copy instead, a block at a time
  };
  struct Finished {
    Job job;
    WriteStatus status;
  };

  // Add waits while more than `most_bytes` of bytes are queued and not yet written.
  explicit WriteQueue(size_t most_bytes = size_t{32} << 20);
  // Finishes every queued write first.
  ~WriteQueue();
  WriteQueue(const WriteQueue&) = delete;
  WriteQueue& operator=(const WriteQueue&) = delete;

  void Add(Job job);
  // The writes finished since the last call, in the order they were queued; with `all`, it
  // waits until every queued write has finished.
  std::vector<Finished> TakeFinished(bool all);

 private:
  static constexpr size_t kMostFoldersHeld = 16;

  struct HeldFolder {
    std::string folder;
    FolderLock lock;
  };

  void Run(bool deferred);
  // Takes the exclusive lock of `folder` unless it is held already, letting go of the least
  // recently used one past the limit; 0 or the errno, with the lock in *held. Only the writer
  // thread holds folders.
  int HoldFolder(const std::string& folder, const FolderLock** held);

  std::mutex mutex_;
  // Each side is woken only while it waits, so that a busy writer and a busy caller do not
  // wake each other for every file.
  std::condition_variable added_;
  std::condition_variable done_;
  bool writerWaits_ = false;
  bool callerWaits_ = false;
  std::deque<Job> waiting_;
  std::vector<Finished> finished_;
  size_t unfinished_ = 0;
  size_t queued_bytes_ = 0;
  size_t most_bytes_;
  bool stopping_ = false;
  std::list<HeldFolder> held_;  // the most recently used first
  std::thread writer_;
};

}  // namespace lumora
