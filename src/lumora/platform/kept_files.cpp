#include <lumora/platform/kept_files.h>

#include <utility>

namespace lumora {
namespace {

thread_local KeptFiles* kept = nullptr;
// Whether `kept` is another thread's, read through a view.
thread_local bool viewing = false;

}  // namespace

KeptFiles::KeptFiles(size_t most_bytes) : most_bytes_(most_bytes), previous_(kept) { kept = this; }

KeptFiles::~KeptFiles() { kept = previous_; }

void KeepFile(const std::string& path, std::string bytes) {
  if (viewing) return;
  ForgetKeptFile(path);
  if (kept == nullptr || bytes.size() > kept->most_bytes_ - kept->bytes_) return;
  kept->bytes_ += bytes.size();
  kept->files_.emplace(path, std::move(bytes));
}

const std::string* KeptFile(const std::string& path) {
  if (kept == nullptr) return nullptr;
  const auto found = kept->files_.find(path);
  return found == kept->files_.end() ? nullptr : &found->second;
}

void ForgetKeptFile(const std::string& path) {
  if (kept == nullptr || viewing) return;
  const auto found = kept->files_.find(path);
  if (found == kept->files_.end()) return;
  kept->bytes_ -= found->second.size();
  kept->files_.erase(found);
}

KeptFilesView::KeptFilesView(KeptFiles& shared) : previous_(kept), previousViewing_(viewing) {
  kept = &shared;
  viewing = true;
}

KeptFilesView::~KeptFilesView() {
  kept = previous_;
  viewing = previousViewing_;
}

}  // namespace lumora
