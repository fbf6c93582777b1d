// The glossary and the grammar that an exported package carries: only what its lessons need,
// with their media in the chosen quality folders. Both exports start from the discipline's
// loaded glossary or grammar and the identifiers the export collected from its resources, append
// every problem as a line to the export's report and answer whether all went well.
//
// The lessons of a package are numbered from those identifiers: a value below 0x1000 is a
// lesson number already; a larger one is a resource identifier whose bits 11 to 19 hold x, the
// lesson (x / 100) * 10000 + x % 100.
//
// Choices made where the content leaves room:
//  - The partial glossary keeps the source's language, so that its alphabetical order is
//    rebuilt with the rules of the course language, and it is saved with the index of its
//    sound and recognition tables over the quality folders of the export: the package then
//    answers hasSound for exactly the words whose sound files it carries.
//  - A referenced identifier v of 0x1000 or more names the type-2000 resource v itself (course
//    v >> 20, number v & 0xFFFFF) below the Local root. The grammar points it brings in are the
//    link records of its head that target type 1002, by their target number, when the grammar
//    has such a point. A resource that does not load brings in nothing.
//  - A grammar link from a lesson brings in the point attrA / 100000: attrA / 100 is the
//    subpoint the link leads to.
//  - A point brings in its record, its titles, its pictures, its bubbles in every language, and
//    everything numbered below it: subpoints (subpointId / 1000), subpoint titles, parts
//    (partId / 1000) and keywords (keywordId / 100000).
//  - Every copied picture names the folder Q<q>/<its point, three digits> of the grammar
//    folder, which holds that point's pictures; every copied part with a non-zero attrD names
//    the grammar resource file r<attrD, seven digits>.ars.
//  - A folder copy takes the regular files whose extension is ".swf" in any letter case, as a
//    file system that ignores case would list them.
#pragma once

#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/grammar.h>
#include <lumora/platform/typed_array.h>
#include <lumora/resources/media_copy_queue.h>

#include <cstdint>
#include <set>
#include <string>

namespace lumora {

// Referenced identifiers from here on are resource identifiers rather than lesson numbers.
inline constexpr uint32_t kFirstReferencedResourceId = 0x1000;

// The lesson numbers of `referencedIds`, ascending and distinct.
std::set<uint32_t> LessonNumbers(const std::set<uint32_t>& referencedIds);

// Builds in `folder` (which must exist) the glossary of the links from the general entries
// (fromId 1000 to 10000) and from the lessons, the words they reach with their texts, sounds
// and recognition data, all clouds, and the sound files of those words in every quality
// folder of `qualityFolders`. A missing sound file is reported but still counts as success;
// a folder or copy that fails, or a save that fails, does not.
bool ExportPartialGlossary(const CGloV6& source, const std::set<uint32_t>& referencedIds,
                           ByteArray qualityFolders, const std::string& folder,
                           std::string& report);

// Builds in `folder` (which must exist) the grammar of the points the lessons and the
// referenced descriptions name, then copies their picture folders for every quality folder of
// `qualityFolders` and the grammar resource files their parts name. `localRoot` is the folder
// the discipline's resource files lie under, with its separator. False, after reporting,
// when the save or any copy fails.
bool ExportPartialGrammar(const CGramV6& source, const std::string& localRoot,
                          const std::set<uint32_t>& referencedIds, ByteArray qualityFolders,
                          const std::string& folder, std::string& report);

// Copies the ".swf" files directly in folder `source` into folder `destination`, creating it
// first, through `copies`, and waits for them; subfolders and other files stay behind. A file
// that cannot be copied is reported and the others are still copied; false when the destination
// cannot be made or any copy asked for since the queue's last Finish failed.
bool CopySwfFolder(const std::string& source, const std::string& destination, CopyQueue& copies);

}  // namespace lumora
