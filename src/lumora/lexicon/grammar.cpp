#include <lumora/lexicon/grammar.h>
#include <lumora/lexicon/set_file.h>
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

bool CGramV6::load(const std::string& folder_path) {
  setFolder(folder_path);
  return ForEachTable([this](std::u16string_view name, auto& table) {
    return ReadSetTable(folder, name, SetFamily::kGrammar, table);
  });
}

void CGramV6::setFolder(const std::string& folder_path) { folder = WithBackslash(folder_path); }

bool CGramV6::save() {
  return ForEachTable([this](std::u16string_view name, auto& table) {
    const auto version = static_cast<uint32_t>(formatVersion);
    return WriteSetFile(SetFilePath(folder, name), version,
                        [&](Archive& ar) { table.WriteRecords(ar, version); });
  });
}

}  // namespace lumora
