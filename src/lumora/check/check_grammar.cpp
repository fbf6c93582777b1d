// Each discipline's grammar as the library loaded it: its links lead to points and subpoints
// it holds, and the picture folders and grammar resource files its records name are on disk,
// where the host shows them from and exports copy them from. A grammar that stops loading is
// one finding, as for the glossary.
//
// A link's attrA is numbered like a keyword: attrA / 100 is the subpoint it leads to and
// attrA / 100000 that subpoint's point. The pictures of a point lie in the folder
// Q<quality>/<point, three digits>/ of the grammar folder; a part with a non-zero attrD names
// the grammar resource file r<attrD, seven digits>.ars there.
#include <lumora/check/checks.h>
#include <lumora/check/load_stop.h>
#include <lumora/platform/ascii_text.h>
#include <lumora/resources/resource_id.h>
#include <lumora/support/folder_entries.h>
#include <lumora/support/paths.h>

#include <cstdio>
#include <map>
#include <string>

namespace lumora {
namespace {

constexpr uint32_t kKeywordsPerSubpoint = 100;
constexpr uint32_t kKeywordsPerPoint = 100000;

void CheckLinks(const CheckedRoot& root, const CGramV6& g, CheckReport& report) {
  const std::string file = root.Relative(g.folder + "t_Gr_Links.set");
  for (const GrLinksRecord& link : g.links) {
    ++report.checked;
    const std::string from = "the link from " + std::to_string(link.fromId) + " to " +
                             std::to_string(link.toId) + " leads to ";
    const uint32_t point = link.attrA / kKeywordsPerPoint;
    const uint32_t subpoint = link.attrA / kKeywordsPerSubpoint;
    if (point > 0xFFFF || g.points.Find(static_cast<uint16_t>(point)) == nullptr) {
      report.Error(file, from + "point " + std::to_string(point) +
                             ", which t_Gr_Points lacks: the grammar of " +
                             std::to_string(link.fromId) + " and its exports leave it out");
    } else if (g.subpoints.Find(subpoint) == nullptr) {
      report.Error(file, from + "subpoint " + std::to_string(subpoint) +
                             ", which t_Gr_Subpoints lacks: the level and category searches "
                             "over " +
                             std::to_string(link.fromId) + " skip it");
    }
  }
}

// Exports copy the .swf files of a picture folder in any letter case.
bool IsSwf(const FolderEntry& entry) {
  const std::string& name = entry.name;
  return entry.isFile && name.size() >= 4 &&
         EqualsIgnoringCase(name.substr(name.size() - 4), ".swf");
}

bool HoldsSwf(const std::string& folder) {
  const auto entries = ListFolder(folder);
  if (!entries) return false;
  for (const FolderEntry& entry : *entries) {
    if (IsSwf(entry)) return true;
  }
  return false;
}

std::string PictureFolder(const CGramV6& g, uint8_t quality, uint16_t point) {
  char tail[32];
  std::snprintf(tail, sizeof tail, "Q%d%c%03d%c", static_cast<int>(quality), kPathSeparator,
                static_cast<int>(point), kPathSeparator);
  return g.folder + tail;
}

void CheckPictureFolders(const CheckedRoot& root, const CGramV6& g, CheckReport& report) {
  std::map<uint16_t, uint32_t> pictures_of_point;
  for (const GrPicturesRecord& picture : g.pictures) ++pictures_of_point[picture.pointId];
  for (const auto& [point, pictures] : pictures_of_point) {
    const std::string listed = ", though t_Gr_Pictures lists " + std::to_string(pictures) +
                               (pictures == 1 ? " picture" : " pictures") + " of point " +
                               std::to_string(point) +
                               ": the host shows none of them and exports copy none";
    for (uint8_t quality : root.qualityFolders()) {
      ++report.checked;
      const std::string folder = PictureFolder(g, quality, point);
      if (!FolderExists(folder)) {
        report.Error(root.Relative(folder), "does not exist" + listed);
      } else if (!HoldsSwf(folder)) {
        report.Error(root.Relative(folder), "holds no .swf file" + listed);
      }
    }
  }
}

void CheckResourceFiles(const CheckedRoot& root, const CGramV6& g, CheckReport& report) {
  std::map<uint32_t, uint32_t> first_part_naming;
  for (const GrPartsRecord& part : g.parts) {
    if (part.attrD != 0) first_part_naming.emplace(part.attrD, part.partId);
  }
  for (const auto& [number, part] : first_part_naming) {
    ++report.checked;
    const std::string path = g.folder + NumberedName('r', number) + ".ars";
    if (FileExists(path)) continue;
    report.Error(root.Relative(path), "is missing, though part " + std::to_string(part) +
                                          " of t_Gr_Parts names it: the host finds nothing "
                                          "there and exports cannot copy it");
  }
}

}  // namespace

void CheckGrammar(const CheckedRoot& root, CheckReport& report) {
  for (const CheckedDiscipline& d : root.disciplines) {
    const CGramV6& g = d.discipline->grammar;
    if (ReportLoadStop(root, g.folder, "grammar", d.lexicon.grammar, "t_Gr_Points", report)) {
      continue;
    }
    CheckLinks(root, g, report);
    CheckPictureFolders(root, g, report);
    CheckResourceFiles(root, g, report);
  }
}

}  // namespace lumora
