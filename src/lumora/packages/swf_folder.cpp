#include <lumora/packages/partial_lexicon.h>
#include <lumora/platform/ascii_text.h>
#include <lumora/resources/report_format.h>
#include <lumora/support/folder_entries.h>
#include <lumora/support/paths.h>

namespace lumora {
namespace {

bool IsSwfName(std::string_view name) {
  constexpr std::string_view kExtension = ".swf";
  return name.size() >= kExtension.size() &&
         EqualsIgnoringCase(name.substr(name.size() - kExtension.size()), kExtension);
}

}  // namespace

bool CopySwfFolder(const std::string& source, const std::string& destination, CopyQueue& copies) {
  const std::string from = WithBackslash(source);
  const std::string to = WithBackslash(destination);
  if (!copies.MakeFolder(to)) {
    copies.Say(FormatReportLine("Can not create directory : %s\n", destination.c_str()));
    return false;
  }
  // A source folder that cannot be listed has nothing to copy.
  for (const FolderEntry& entry : ListFolder(from).value_or(std::vector<FolderEntry>{})) {
    if (entry.isFolder || !IsSwfName(entry.name)) continue;
    copies.Copy(from + entry.name, to + entry.name,
                FormatReportLine("Cannot copy file: %s\n", (from + entry.name).c_str()));
  }
  return copies.Finish();
}

}  // namespace lumora
