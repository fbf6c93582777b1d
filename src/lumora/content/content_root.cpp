// Opening and closing the one content root of the process, and its disciplines.
#include <lumora/content.h>
#include <lumora/content/content_answers.h>
#include <lumora/content/glossary_search_cache.h>
#include <lumora/describe/printable_text.h>
#include <lumora/frame/library_lock.h>
#include <lumora/frame/opened_disciplines.h>

#include <filesystem>
#include <mutex>

namespace lumora {
namespace {

// Whether a ContentRoot is open; guarded by the library lock.
bool root_open = false;

}  // namespace

std::unique_ptr<ContentRoot> ContentRoot::Open(const std::string& root, const OpenOptions& options,
                                               Status* status) {
  std::unique_lock lock(LibraryMutex());
  ForgetSearchIndexes();
  Status failure;
  std::error_code error;
  if (root_open) {
    failure = Failure(StatusCode::kBusy, "another content root is open in this process");
  } else if (!std::filesystem::is_regular_file(std::filesystem::path(root) / "Content.ini",
                                               error)) {
    failure = Failure(StatusCode::kNotFound, "no Content.ini in " + root);
  } else {
    const bool opened = options.databases ? lmOpen_Database(root.c_str(), options.discipline)
                                          : lmOpen(root.c_str(), options.discipline);
    if (opened) {
      root_open = true;
      if (status != nullptr) *status = Status();
      return std::unique_ptr<ContentRoot>(new ContentRoot(root));
    }
    lmClose();
    failure = Failure(StatusCode::kNotFound,
                      options.databases
                          ? "no discipline could be opened with its package database below " + root
                          : "no discipline could be opened below " + root);
  }
  if (status != nullptr) *status = failure;
  return nullptr;
}

ContentRoot::~ContentRoot() { Close(); }

void ContentRoot::Close() {
  std::unique_lock lock(LibraryMutex());
  if (!open_) return;
  ForgetSearchIndexes();
  lmClose();
  open_ = false;
  root_open = false;
}

bool ContentRoot::open() const {
  std::shared_lock lock(LibraryMutex());
  return open_;
}

std::vector<DisciplineSummary> ContentRoot::Disciplines() const {
  std::shared_lock lock(LibraryMutex());
  std::vector<DisciplineSummary> disciplines;
  if (!open_) return disciplines;
  for (const OpenedDiscipline& d : ListOpenedDisciplines()) disciplines.push_back(SummaryOf(d));
  return disciplines;
}

std::optional<DisciplineSummary> ContentRoot::Discipline(uint32_t id) const {
  std::shared_lock lock(LibraryMutex());
  OpenedDiscipline found;
  if (!open_ || !FindOpenedDiscipline(id, &found)) return std::nullopt;
  return SummaryOf(found);
}

Description ContentRoot::DescribeOpen() const {
  Description disciplines = Description::array();
  for (const DisciplineSummary& d : Disciplines()) {
    disciplines.push_back({{"id", d.id},
                           {"localRoot", PrintableText(d.localRoot, kWindowsAnsi)},
                           {"uncRoot", PrintableText(d.uncRoot, kWindowsAnsi)},
                           {"urlRoot", PrintableText(d.urlRoot, kWindowsAnsi)},
                           {"dataFolder", PrintableText(d.dataFolder, kWindowsAnsi)},
                           {"types", d.types}});
  }
  return {{"ok", open()}, {"disciplines", disciplines}};
}

}  // namespace lumora
