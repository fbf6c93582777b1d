// Names that differ only in case from what the library looks for: content copied from a disk
// that ignores case keeps the names it was given there, and the library, which asks for exact
// names, then misses the file. Each name is matched only in the folder where the library looks
// for it. With fixCase each is renamed to the name looked for, unless that name is taken or
// the folder holding it lies outside the content root (reached through a link, or configured
// there): a check of a tree received from elsewhere never changes anything outside it.
#include <lumora/check/checks.h>
#include <lumora/platform/ascii_text.h>
#include <lumora/support/folder_entries.h>
#include <lumora/support/paths.h>

#include <stdio.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <map>
#include <optional>
#include <regex>
#include <string>
#include <utility>
#include <vector>

namespace lumora {
namespace {

// The folders where the library looks for names, each with the names it asks for there.
enum class Place {
  kNone,            // nothing below is looked for by name
  kContentRoot,     // Content.ini
  kCommon,          // the common Local folder: Classes and the data folders
  kClasses,         // the classification's tables
  kData,            // a discipline's data folder: index files and Content.mdb
  kLocal,           // a discipline's Local root: course folders
  kCourse,          // a course folder: type folders
  kLexiconCourse,   // C0000: type folders, and the glossary's and grammar's folders
  kType,            // a type folder: resource files and quality folders
  kTypeQuality,     // a type's quality folder: sounds, pictures and videos
  kLexicon,         // the glossary's or grammar's folder: tables, the grammar's resource files
                    // and quality folders
  kLexiconQuality,  // their quality folder: one folder per hundred words or per point
  kLexiconNumber,   // the sounds of the glossary's words, the pictures of grammar points
};

// A name looked for, and how it is spelled: a fixed name, or the name as found with its first
// letter given (0: as found) and its extension in lowercase.
struct NamePattern {
  Place place;
  std::regex exact;
  std::regex ignoringCase;
  const char* fixed;
  char first;
  Place below;  // where a folder of this name leads
};

NamePattern Fixed(Place place, const char* regex, const char* name, Place below = Place::kNone) {
  return {place, std::regex(regex), std::regex(regex, std::regex::icase), name, 0, below};
}

NamePattern Numbered(Place place, const char* regex, char first, Place below = Place::kNone) {
  return {place, std::regex(regex), std::regex(regex, std::regex::icase), nullptr, first, below};
}

const std::vector<NamePattern>& Patterns() {
  using P = Place;
  static const std::vector<NamePattern> patterns = {
      Fixed(P::kContentRoot, "Content\\.ini", "Content.ini"),
      Fixed(P::kCommon, "Classes", "Classes"),
      Numbered(P::kCommon, "D[0-9]{3,}", 'D'),
      Fixed(P::kClasses, "CRCFile\\.ini", "CRCFile.ini"),
      Numbered(P::kClasses, "t_.+\\.(set|idx)", 't'),
      Numbered(P::kData, "r[0-9]{7}\\.ari", 'r'),
      Fixed(P::kData, "Content\\.mdb", "Content.mdb"),
      Fixed(P::kLocal, "C0000", "C0000", P::kLexiconCourse),
      Numbered(P::kLocal, "C[0-9]{4}", 'C', P::kCourse),
      Numbered(P::kCourse, "r[0-9]{7}", 'r', P::kType),
      Fixed(P::kLexiconCourse, "r0001001", "r0001001", P::kLexicon),
      Fixed(P::kLexiconCourse, "r0001002", "r0001002", P::kLexicon),
      Numbered(P::kLexiconCourse, "r[0-9]{7}", 'r', P::kType),
      Numbered(P::kType, "r[0-9]{7}\\.(ars|arh)", 'r'),
      Numbered(P::kType, "Q[0-9]+", 'Q', P::kTypeQuality),
      Numbered(P::kTypeQuality, "s[0-9]{7}\\.swf", 's'),
      Numbered(P::kTypeQuality, "p[0-9]{7}\\.swf", 'p'),
      Numbered(P::kTypeQuality, "v[0-9]{7}\\.(mpg|avi|swf)", 'v'),
      Fixed(P::kLexicon, "CRCFile\\.ini", "CRCFile.ini"),
      Numbered(P::kLexicon, "t_.+\\.(set|idx)", 't'),
      Numbered(P::kLexicon, "r[0-9]{7}\\.ars", 'r'),
      Numbered(P::kLexicon, "Q[0-9]+", 'Q', P::kLexiconQuality),
      Numbered(P::kLexiconQuality, "[0-9]{3,}", 0, P::kLexiconNumber),
      Numbered(P::kLexiconNumber, "[0-9]{2,}\\.swf", 0),
  };
  return patterns;
}

std::string Spelled(const NamePattern& pattern, const std::string& found) {
  if (pattern.fixed != nullptr) return pattern.fixed;
  std::string name = found;
  if (pattern.first != 0) name[0] = pattern.first;
  const size_t dot = name.rfind('.');
  if (dot != std::string::npos) name = name.substr(0, dot) + LowerAscii(name.substr(dot));
  return name;
}

// What the library asks for in `places` that `name` is, or differs from only in case.
struct Match {
  const NamePattern* pattern;
  std::optional<std::string> spelled;  // set when the name differs in case
};

std::optional<Match> MatchName(const std::vector<Place>& places, const std::string& name) {
  const auto in_places = [&](const NamePattern& p) {
    return std::find(places.begin(), places.end(), p.place) != places.end();
  };
  for (const NamePattern& pattern : Patterns()) {
    if (in_places(pattern) && std::regex_match(name, pattern.exact)) return Match{&pattern, {}};
  }
  for (const NamePattern& pattern : Patterns()) {
    if (!in_places(pattern) || !std::regex_match(name, pattern.ignoringCase)) continue;
    std::string spelled = Spelled(pattern, name);
    if (spelled == name) return Match{&pattern, {}};
    return Match{&pattern, std::move(spelled)};
  }
  return std::nullopt;
}

class NameWalk {
 public:
  NameWalk(const CheckedRoot& root, CheckReport& report) : root_(root), report_(report) {}

  // Checks the entries of `folder` against the names looked for in `places`, and walks the
  // folders among them that lead somewhere.
  void Walk(const std::string& folder, const std::vector<Place>& places) {
    // The root's listing of the course and type folders holds most names; it no longer says
    // what is there once names are fixed.
    const FolderEntries* listed =
        root_.options.fixCase ? nullptr : root_.resourceFolders.Find(folder);
    const FolderEntries entries = listed != nullptr ? FolderEntries() : ListFolder(folder);
    Walk(folder, listed != nullptr ? *listed : entries, places);
  }

 private:
  void Walk(const std::string& folder, const FolderEntries& entries,
            const std::vector<Place>& places) {
    if (!entries) {
      if (FolderExists(folder)) {
        report_.Warning(root_.Relative(folder), "cannot be listed: nothing below it is checked");
      }
      return;
    }
    for (const FolderEntry& entry : *entries) {
      ++report_.checked;
      const auto match = MatchName(places, entry.name);
      if (!match) continue;
      std::string name = entry.name;
      if (match->spelled && Report(folder, name, *match->spelled)) name = *match->spelled;
      if (entry.isFolder && match->pattern->below != Place::kNone) {
        Walk(folder + name + kPathSeparator, {match->pattern->below});
      }
    }
  }

  // True when the entry now has the spelling looked for.
  bool Report(const std::string& folder, const std::string& name, const std::string& spelled) {
    const std::string from = folder + name;
    const std::string to = folder + spelled;
    const std::string relative = root_.Relative(from);
    const std::string differs = "differs only in case from " + spelled;
    const bool outside = !PathIsWithin(folder, root_.root);
    if (outside) {
      report_.Error(relative, differs +
                                  ", the name the library looks for, but its folder lies outside "
                                  "the content root (through a link or the configuration): it "
                                  "is not found, and lumora check never renames it");
      return false;
    }
    if (!root_.options.fixCase) {
      report_.Error(relative, differs +
                                  ", the name the library looks for: it is not found (lumora "
                                  "check --fix-case renames it)");
      return false;
    }
    if (FileExists(to) || FolderExists(to)) {
      report_.Error(relative, differs + ", which exists beside it: not renamed");
      return false;
    }
    if (::rename(from.c_str(), to.c_str()) != 0) {
      report_.Error(relative, "could not be renamed to " + spelled + ": " + std::strerror(errno));
      return false;
    }
    report_.Warning(root_.Relative(to), "was named " + name + ": renamed");
    return true;
  }

  const CheckedRoot& root_;
  CheckReport& report_;
};

}  // namespace

// The folders the configuration names are walked in this order, each once with every name
// looked for there (the common folder is often the content root, and a data folder often the
// Local root too): a folder renamed in one is then found by the next.
void CheckNameCase(const CheckedRoot& root, CheckReport& report) {
  std::vector<std::pair<std::string, std::vector<Place>>> folders;
  const auto add = [&folders](const std::string& folder, Place place) {
    for (auto& [path, places] : folders) {
      if (path != folder) continue;
      if (std::find(places.begin(), places.end(), place) == places.end()) places.push_back(place);
      return;
    }
    folders.push_back({folder, {place}});
  };
  add(root.root, Place::kContentRoot);
  if (root.iniLoaded) {
    add(WithBackslash(root.common.local), Place::kCommon);
    add(WithBackslash(ClassesFolder(root.common.local)), Place::kClasses);
  }
  for (const CheckedDiscipline& d : root.disciplines) {
    add(WithBackslash(d.discipline->dataFolder), Place::kData);
    add(WithBackslash(d.discipline->localRoot), Place::kLocal);
  }
  NameWalk walk(root, report);
  for (const auto& [folder, places] : folders) walk.Walk(folder, places);
}

}  // namespace lumora
