// Every copy an export makes (resource files, the media that resource classes copy, glossary
// sounds, grammar pictures and resource files) goes through one CopyQueue. A writer thread makes
// them in the order they were asked for, keeping the locks of the folders it writes into between
// files (WriteQueue). Nothing else of the export writes while copies are pending, so the export
// never waits for a lock it holds itself: only another process can make it wait.
//
// Each copy carries the report line to say when it fails (empty: a failure the caller keeps to
// itself, as resource classes do for their media). Lines are said in the order they were asked
// for, each once the copy it stands for has finished, so the report reads as if every copy had
// been made at once.
#pragma once

#include <lumora/platform/write_queue.h>

#include <cstdint>
#include <deque>
#include <list>
#include <optional>
#include <string>
#include <unordered_set>

namespace lumora {

class CopyQueue {
 public:
  // Lines go to `report`. While the queue lives, it is the calling thread's (Current), which is
  // how CopyFileInto finds it.
  explicit CopyQueue(std::string& report);
  // Finishes every copy and lets go of the folders.
  ~CopyQueue();
  CopyQueue(const CopyQueue&) = delete;
  CopyQueue& operator=(const CopyQueue&) = delete;

  // The queue living on this thread, or null.
  static CopyQueue* Current();

  // Copies the file at `source` over `destination`, whose folder must exist by the time the
  // copy is made. `failure` is said in turn if the copy fails.
  void Copy(std::string source, std::string destination, std::string failure);
  // Writes `bytes` as the file `destination`; once written they are kept (KeepFile) for whoever
  // reads the file back.
  void Write(std::string destination, std::string bytes, std::string failure);
  // A line said in turn, after those of the copies asked for before it.
  void Say(std::string line);

  // Says the lines that no longer wait for a copy, without waiting.
  void Collect();
  // Waits for every copy asked for, says every line, and answers whether all the copies asked
  // for since the previous Finish succeeded.
  bool Finish();

  // Creates `folder` and its parents unless this queue made or found it already: nothing of an
  // export removes a folder meanwhile. False when it cannot be made.
  bool MakeFolder(const std::string& folder);
  // True the first time a copy to `destination` is claimed: resources share media, and a
  // medium copied for one of them is there for the others.
  bool ClaimDestination(const std::string& destination);

 private:
  // One line of the report in the making: a copy with the line it says if it fails, or a line
  // said as it stands. A copy's outcome is unknown until the writer has made it.
  struct Entry {
    std::string line;
    bool isCopy = false;
    std::optional<bool> succeeded;
  };

  void Queue(WriteQueue::Job job, std::string failure);
  void TakeOutcomes(bool wait);
  void SaySettled();

  std::string& report_;
  std::optional<WriteQueue> writes_;
  std::list<Entry> entries_;     // in the order asked for
  std::deque<Entry*> awaiting_;  // the copies among them not yet made, in the same order
  bool allSucceeded_ = true;     // since the previous Finish
  std::unordered_set<std::string> folders_;
  std::unordered_set<std::string> destinations_;
  CopyQueue* previous_;
};

}  // namespace lumora
