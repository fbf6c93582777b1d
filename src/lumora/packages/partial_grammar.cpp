#include <lumora/packages/partial_lexicon.h>
#include <lumora/packages/table_runs.h>
#include <lumora/resources/link_record.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/types/type2000.h>
#include <lumora/support/paths.h>

#include <cstdio>
#include <limits>

namespace lumora {
namespace {

constexpr uint16_t kGrammarType = 1002;
// A subpoint is numbered point * 1000 + n, a keyword subpoint * 100 + n.
constexpr uint32_t kSubpointsPerPoint = 1000;
constexpr uint64_t kKeywordsPerPoint = 100000;

// The grammar points the package needs, from its lessons' links and from the descriptions
// its resources reference.
class PointSelection {
 public:
  explicit PointSelection(const CGramV6& source) : source_(source) {}

  void TakeDescribedPoints(const std::string& localRoot, uint32_t id) {
    Type2000Resource description;
    const std::string path = localRoot + CourseFolderName(CourseOf(id)) + kPathSeparator +
                             NumberedName('r', Type2000Resource::kType) + kPathSeparator +
                             NumberedName('r', NumberOf(id)) + ".ars";
    if (!LoadArchiveFile(path, false, description)) return;
    for (const Record16& record : description.records) {
      const LinkRecord link(record);
      if (link.targetType() == kGrammarType) Take(link.targetNumber());
    }
  }

  // Copies the links from `lesson` into `target` and takes the points they lead to: a link's
  // attrA is numbered like a keyword, attrA / 100 being its subpoint.
  void TakeLessonPoints(uint32_t lesson, CGramV6& target) {
    ForEachInRun(
        source_.links, {lesson, 0u, 0u}, [&](const GrLinksRecord& l) { return l.fromId == lesson; },
        [&](const GrLinksRecord& l) {
          target.links.Insert(l);
          Take(l.attrA / kKeywordsPerPoint);
        });
  }

  const std::set<uint16_t>& points() const { return points_; }

 private:
  void Take(uint64_t point) {
    if (point <= std::numeric_limits<uint16_t>::max() &&
        source_.points.Find(static_cast<uint16_t>(point))) {
      points_.insert(static_cast<uint16_t>(point));
    }
  }

  const CGramV6& source_;
  std::set<uint16_t> points_;
};

// Copies what belongs to the taken points, noting the picture folders and resource files that
// the copied records name.
class PointCopy {
 public:
  PointCopy(const CGramV6& source, CGramV6& target) : source_(source), target_(target) {}

  void Copy(uint16_t p) {
    target_.points.Insert(*source_.points.Find(p));
    auto of_point = [p](const auto& r) { return r.pointId == p; };
    ForEachInRun(source_.titles, {p, uint8_t{0}}, of_point,
                 [&](const GrTitlesRecord& r) { target_.titles.Insert(r); });
    ForEachInRun(source_.pictures, {p, uint8_t{0}}, of_point, [&](const GrPicturesRecord& r) {
      target_.pictures.Insert(r);
      pictureFolders_.insert(r.pointId);
    });
    const uint32_t first = p * kSubpointsPerPoint;
    auto numbered_below = [p](uint64_t subpoint) { return subpoint / kSubpointsPerPoint == p; };
    ForEachInRun(
        source_.subpoints, first, [&](const auto& r) { return numbered_below(r.subpointId); },
        [&](const GrSubpointsRecord& r) { target_.subpoints.Insert(r); });
    ForEachInRun(
        source_.subpointTitles, {first, uint8_t{0}},
        [&](const auto& r) { return numbered_below(r.subpointId); },
        [&](const GrSubpointTitlesRecord& r) { target_.subpointTitles.Insert(r); });
    ForEachInRun(
        source_.parts, {first, uint8_t{0}, uint8_t{0}},
        [&](const auto& r) { return numbered_below(r.partId); },
        [&](const GrPartsRecord& r) {
          target_.parts.Insert(r);
          if (r.attrD != 0) resourceFiles_.insert(r.attrD);
        });
    CopyKeywords(p);
  }

  // Bubbles are ordered by language first, so one walk serves every point.
  void CopyBubbles(const std::set<uint16_t>& points) {
    for (const GrBubblesRecord& b : source_.bubbles) {
      if (points.contains(b.pointId)) target_.bubbles.Insert(b);
    }
  }

  const std::set<uint16_t>& pictureFolders() const { return pictureFolders_; }
  const std::set<uint32_t>& resourceFiles() const { return resourceFiles_; }

 private:
  // Keyword numbers run out before the last points do: those points cannot have keywords.
  void CopyKeywords(uint16_t p) {
    const uint64_t first = p * kKeywordsPerPoint;
    if (first > std::numeric_limits<uint32_t>::max()) return;
    ForEachInRun(
        source_.keywords, static_cast<uint32_t>(first),
        [&](const GrKeywordsRecord& r) { return r.keywordId / kKeywordsPerPoint == p; },
        [&](const GrKeywordsRecord& r) { target_.keywords.Insert(r); });
  }

  const CGramV6& source_;
  CGramV6& target_;
  std::set<uint16_t> pictureFolders_;
  std::set<uint32_t> resourceFiles_;
};

std::string PictureFolder(const std::string& grammarFolder, uint8_t quality, uint16_t point) {
  char tail[32];
  std::snprintf(tail, sizeof tail, "Q%d%c%03d%c", static_cast<int>(quality), kPathSeparator,
                static_cast<int>(point), kPathSeparator);
  return grammarFolder + tail;
}

bool CopyPictureFolders(const CGramV6& source, const CGramV6& target,
                        const std::set<uint16_t>& points, const ByteArray& qualityFolders,
                        CopyQueue& copies) {
  bool result = true;
  for (uint16_t point : points) {
    for (uint8_t quality : qualityFolders) {
      const std::string from = PictureFolder(source.folder, quality, point);
      if (!CopySwfFolder(from, PictureFolder(target.folder, quality, point), copies)) {
        copies.Say("Cannot copy media file: " + from + "\n");
        result = false;
      }
    }
  }
  return result;
}

bool CopyResourceFiles(const CGramV6& source, const CGramV6& target,
                       const std::set<uint32_t>& numbers, CopyQueue& copies) {
  for (uint32_t number : numbers) {
    const std::string name = NumberedName('r', number) + ".ars";
    copies.Copy(source.folder + name, target.folder + name,
                FormatReportLine("Cannot copy ars file: %s\n", (source.folder + name).c_str()));
  }
  return copies.Finish();
}

}  // namespace

bool ExportPartialGrammar(const CGramV6& source, const std::string& localRoot,
                          const std::set<uint32_t>& referencedIds, ByteArray qualityFolders,
                          const std::string& folder, std::string& report) {
  CGramV6 target;
  target.setFolder(folder);
  PointSelection selection(source);
  for (uint32_t id : referencedIds) {
    if (id >= kFirstReferencedResourceId) selection.TakeDescribedPoints(localRoot, id);
  }
  for (uint32_t lesson : LessonNumbers(referencedIds)) selection.TakeLessonPoints(lesson, target);
  PointCopy copy(source, target);
  for (uint16_t point : selection.points()) copy.Copy(point);
  copy.CopyBubbles(selection.points());
  if (!target.save()) {
    report += "Cannot save the files of the partial grammar";
    return false;
  }
  CopyQueue copies(report);
  const bool pictures =
      CopyPictureFolders(source, target, copy.pictureFolders(), qualityFolders, copies);
  const bool resources = CopyResourceFiles(source, target, copy.resourceFiles(), copies);
  return pictures && resources;
}

}  // namespace lumora
