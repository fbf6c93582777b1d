#include <lumora/check/checked_root.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/resources/type_catalog.h>

#include <algorithm>

namespace lumora {

CheckedRoot::CheckedRoot(const std::string& content_root, const CheckOptions& options)
    : options(options), root(NormalizedRoot(content_root)), iniPath(ContentIniPath(root)) {
  quality_ = options.qualityFolders;
  onlyResourceFiles_.insert(options.onlyResourceFiles.begin(), options.onlyResourceFiles.end());
  if (quality_.size() == 0) {
    for (uint8_t folder = 1; folder <= 3; ++folder) quality_.Add(folder);
  }
  iniLoaded = ini.Load(iniPath);
  if (!iniLoaded) return;
  common = ReadCommonRoots(ini, root);
  classificationLoad = classification.LoadWithReason(ClassesFolder(common.local));
  for (uint32_t n = 1; ini.FindSection(DisciplineSectionName(n)); ++n) {
    const uint32_t id = ReadDisciplineId(ini);
    if (options.disciplineFilter != 0 && id != options.disciplineFilter) continue;
    auto discipline = std::make_unique<Discipline>();
    discipline->Open(ini, root, common.local, DisciplineFolder(id));
    if (discipline->info.Type != 0) continue;
    LexiconLoadResult lexicon = discipline->LoadLexicon(classification);
    disciplines.push_back({n, id, std::move(discipline), std::move(lexicon)});
  }
  for (const CheckedDiscipline& d : disciplines) {
    ListResourceFolders(d.discipline->localRoot, resourceFolders);
  }
  const SharedFolderListing listed(resourceFolders);
  for (const CheckedDiscipline& d : disciplines) {
    for (uint32_t type : kExerciseTypes) {
      resourceFiles += ScanResourceFiles(d.discipline->localRoot, type, {true}).size();
    }
  }
}

void CheckedRoot::SetProgressRange(uint64_t steps) {
  expected_ = steps;
  if (options.progress != nullptr) {
    options.progress->SetRange(static_cast<uint32_t>(std::min<uint64_t>(expected_, UINT32_MAX)));
  }
}

void CheckedRoot::StepsDone(uint64_t steps) const {
  if (options.progress == nullptr || steps == 0) return;
  const std::lock_guard<std::mutex> guard(progress_lock_);
  // The counts a check expects are estimates: the bar never runs past its end.
  done_ = steps >= expected_ - done_ ? expected_ : done_ + steps;
  options.progress->SetPosition(static_cast<uint32_t>(std::min<uint64_t>(done_, UINT32_MAX)));
}

bool CheckedRoot::Runs(std::string_view check) const {
  return options.checks.empty() ||
         std::find(options.checks.begin(), options.checks.end(), check) != options.checks.end();
}

bool CheckedRoot::ChecksResourceFile(const std::string& path) const {
  return onlyResourceFiles_.empty() || onlyResourceFiles_.count(Relative(path)) > 0;
}

std::string CheckedRoot::Relative(const std::string& path) const {
  if (!root.empty() && path.size() > root.size() && path.compare(0, root.size(), root) == 0) {
    return path.substr(root.size());
  }
  return path;
}

}  // namespace lumora
