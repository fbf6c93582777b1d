#include <lumora/platform/atomic_write.h>
#include <lumora/platform/write_queue.h>

#include <optional>
#include <utility>

namespace lumora {
WriteQueue::WriteQueue(size_t most_bytes)
    : most_bytes_(most_bytes), writer_([this, deferred = FlushesDeferred()] { Run(deferred); }) {}

WriteQueue::~WriteQueue() {
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    stopping_ = true;
  }
  added_.notify_one();
  writer_.join();
}

void WriteQueue::Add(Job job) {
  std::unique_lock<std::mutex> lock(mutex_);
  // A job larger than the limit still goes, alone.
  callerWaits_ = true;
  done_.wait(lock,
             [&] { return queued_bytes_ == 0 || queued_bytes_ + job.bytes.size() <= most_bytes_; });
  callerWaits_ = false;
  queued_bytes_ += job.bytes.size();
  ++unfinished_;
  waiting_.push_back(std::move(job));
  const bool wake = writerWaits_;
  lock.unlock();
  if (wake) added_.notify_one();
}

std::vector<WriteQueue::Finished> WriteQueue::TakeFinished(bool all) {
  std::unique_lock<std::mutex> lock(mutex_);
  if (all) {
    callerWaits_ = true;
    done_.wait(lock, [&] { return unfinished_ == 0; });
    callerWaits_ = false;
  }
  return std::exchange(finished_, {});
}

int WriteQueue::HoldFolder(const std::string& folder, const FolderLock** held) {
  for (auto it = held_.begin(); it != held_.end(); ++it) {
    if (it->folder != folder) continue;
    held_.splice(held_.begin(), held_, it);
    *held = &held_.front().lock;
    return 0;
  }
  held_.emplace_front();
  held_.front().folder = folder;
  if (int error = held_.front().lock.Acquire(folder, FolderLock::Mode::kExclusive)) {
    held_.pop_front();
    return error;
  }
  if (held_.size() > kMostFoldersHeld) held_.pop_back();
  *held = &held_.front().lock;
  return 0;
}

void WriteQueue::Run(bool deferred) {
  // The writer's flushes are deferred as the caller's were.
  std::optional<DeferredFlush> flush;
  if (deferred) flush.emplace(std::string());
  std::unique_lock<std::mutex> lock(mutex_);
  for (;;) {
    writerWaits_ = true;
    added_.wait(lock, [&] { return stopping_ || !waiting_.empty(); });
    writerWaits_ = false;
    if (waiting_.empty()) break;
    Job job = std::move(waiting_.front());
    waiting_.pop_front();
    lock.unlock();
    WriteStatus status;
    const FolderLock* held = nullptr;
    if (int error = HoldFolder(FolderPart(job.path), &held)) {
      status = WriteStatus::Failure(job.path, "cannot lock its folder", error);
    } else {
      status = job.source.empty() ? WriteFileInLockedFolder(*held, job.path, job.bytes)
                                  : CopyFileInLockedFolder(*held, job.source, job.path);
    }
    lock.lock();
    queued_bytes_ -= job.bytes.size();
    --unfinished_;
    finished_.push_back({std::move(job), std::move(status)});
    if (callerWaits_) done_.notify_one();
  }
  lock.unlock();
  held_.clear();
}

}  // namespace lumora
