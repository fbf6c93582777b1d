#include <lumora/platform/kept_files.h>
#include <lumora/resources/media_copy_queue.h>
#include <lumora/support/paths.h>

#include <utility>

namespace lumora {
namespace {

thread_local CopyQueue* current_queue = nullptr;

}  // namespace

CopyQueue::CopyQueue(std::string& report) : report_(report), previous_(current_queue) {
  current_queue = this;
}

CopyQueue::~CopyQueue() {
  Finish();
  writes_.reset();
  current_queue = previous_;
}

CopyQueue* CopyQueue::Current() { return current_queue; }

void CopyQueue::Copy(std::string source, std::string destination, std::string failure) {
  Queue({std::move(destination), std::string(), std::move(source)}, std::move(failure));
}

void CopyQueue::Write(std::string destination, std::string bytes, std::string failure) {
  Queue({std::move(destination), std::move(bytes), std::string()}, std::move(failure));
}

void CopyQueue::Say(std::string line) {
  entries_.push_back({std::move(line), false, std::nullopt});
  SaySettled();
}

void CopyQueue::Queue(WriteQueue::Job job, std::string failure) {
  if (!writes_) writes_.emplace();
  entries_.push_back({std::move(failure), true, std::nullopt});
  awaiting_.push_back(&entries_.back());
  writes_->Add(std::move(job));
}

void CopyQueue::Collect() {
  TakeOutcomes(false);
  SaySettled();
}

bool CopyQueue::Finish() {
  TakeOutcomes(true);
  SaySettled();
  return std::exchange(allSucceeded_, true);
}

void CopyQueue::TakeOutcomes(bool wait) {
  if (!writes_) return;
  // The writer finishes copies in the order they were queued, which is the order of awaiting_.
  for (WriteQueue::Finished& done : writes_->TakeFinished(wait)) {
    const bool ok = done.status.ok();
    if (ok && done.job.source.empty()) KeepFile(done.job.path, std::move(done.job.bytes));
    awaiting_.front()->succeeded = ok;
    awaiting_.pop_front();
    allSucceeded_ = allSucceeded_ && ok;
  }
}

void CopyQueue::SaySettled() {
  while (!entries_.empty()) {
    const Entry& entry = entries_.front();
    if (entry.isCopy && !entry.succeeded) return;
    if (!entry.isCopy || !*entry.succeeded) report_ += entry.line;
    entries_.pop_front();
  }
}

bool CopyQueue::MakeFolder(const std::string& folder) {
  if (folders_.count(folder) != 0) return true;
  if (!FolderExists(folder) && !CreateFolderPath(folder)) return false;
  folders_.insert(folder);
  return true;
}

bool CopyQueue::ClaimDestination(const std::string& destination) {
  return destinations_.insert(destination).second;
}

}  // namespace lumora
