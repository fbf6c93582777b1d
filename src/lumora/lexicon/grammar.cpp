#include <lumora/lexicon/grammar.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/lexicon/set_file_write.h>
#include <lumora/support/folder_commit.h>
#include <lumora/support/paths.h>

namespace lumora {

std::string CGramBase::getErrors() const {
  std::string all;
  for (const std::string& error : errors) all.append(error).push_back('\n');
  return all;
}

template <typename Visit>
bool CGramV6::ForEachTable(Visit&& visit) {
  // The bubble table's file has always been named with its extension in full; the path comes
  // out the same as for the others.
  return visit(u"t_Gr_Points", points) && visit(u"t_Gr_Titles", titles) &&
         visit(u"t_Gr_Pictures", pictures) && visit(u"t_Gr_Subpoints", subpoints) &&
         visit(u"t_Gr_Parts", parts) && visit(u"t_Gr_SubpointTitles", subpointTitles) &&
         visit(u"t_Gr_keywords", keywords) && visit(u"t_Gr_Links", links) &&
         visit(u"t_Gr_Bubbles", bubbles);
}

LoadResult CGramV6::LoadWithReason(const std::string& folder_path) {
  setFolder(folder_path);
  FolderReadScope scope(folder);
  LoadResult result;
  ForEachTable([&](std::u16string_view name, auto& table) {
    result = LoadSetTable(folder, name, SetFamily::kGrammar, table);
    return result.ok();
  });
  return result;
}

bool CGramV6::load(const std::string& folder_path) { return LoadWithReason(folder_path).ok(); }

void CGramV6::setFolder(const std::string& folder_path) { folder = WithBackslash(folder_path); }

// All nine tables replace the old ones in one commit, or none does.
bool CGramV6::save() {
  try {
    FolderCommit commit(folder);
    ForEachTable([&](std::u16string_view name, auto& table) {
      StageSetTable(commit, name, static_cast<uint32_t>(formatVersion), table);
      return true;
    });
    return CommitSaved(commit);
  } catch (const std::exception& error) {
    WriteStatus::Failure(folder, error.what());
    return false;
  }
}

}  // namespace lumora
