#include <lumora/check/checked_root.h>

namespace lumora {

CheckedRoot::CheckedRoot(const std::string& content_root, const CheckOptions& options)
    : options(options), root(NormalizedRoot(content_root)), iniPath(ContentIniPath(root)) {
  quality_ = options.qualityFolders;
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
}

std::string CheckedRoot::Relative(const std::string& path) const {
  if (!root.empty() && path.size() > root.size() && path.compare(0, root.size(), root) == 0) {
    return path.substr(root.size());
  }
  return path;
}

}  // namespace lumora
