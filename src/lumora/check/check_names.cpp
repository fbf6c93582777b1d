// Names that differ only in case from what the library looks for: content copied from a disk
// that ignores case keeps the names it was given there, and the library, which asks for exact
// names, then misses the file. With fixCase each is renamed to the name looked for, unless
// that name is taken.
#include <lumora/check/checks.h>
#include <lumora/platform/ascii_text.h>
#include <lumora/support/folder_entries.h>
#include <lumora/support/paths.h>

#include <stdio.h>

#include <cerrno>
#include <cstring>
#include <optional>
#include <regex>
#include <set>
#include <string>

namespace lumora {
namespace {

// What the library looks for, and the spelling it asks for: a letter case for each letter.
struct NamePattern {
  std::regex exact;
  std::regex ignoringCase;
  std::string (*spelled)(const std::string& found);
};

// The first letter as given, the rest of the name as found but with a lowercase extension.
template <char kFirst>
std::string FirstLetterAndLowerExtension(const std::string& found) {
  std::string name = found;
  name[0] = kFirst;
  const size_t dot = name.rfind('.');
  if (dot != std::string::npos) name = name.substr(0, dot) + LowerAscii(name.substr(dot));
  return name;
}

template <const char* kName>
std::string Fixed(const std::string&) {
  return kName;
}

constexpr char kContentIni[] = "Content.ini";
constexpr char kContentMdb[] = "Content.mdb";
constexpr char kCrcFile[] = "CRCFile.ini";
constexpr char kClasses[] = "Classes";

NamePattern Pattern(const char* regex, std::string (*spelled)(const std::string&)) {
  return {std::regex(regex), std::regex(regex, std::regex::icase), spelled};
}

const std::vector<NamePattern>& Patterns() {
  static const std::vector<NamePattern> patterns = [] {
    std::vector<NamePattern> all;
    all.push_back(Pattern("Content\\.ini", &Fixed<kContentIni>));
    all.push_back(Pattern("Content\\.mdb", &Fixed<kContentMdb>));
    all.push_back(Pattern("CRCFile\\.ini", &Fixed<kCrcFile>));
    all.push_back(Pattern("Classes", &Fixed<kClasses>));
    all.push_back(Pattern("C[0-9]{4}", &FirstLetterAndLowerExtension<'C'>));
    all.push_back(Pattern("D[0-9]{3}", &FirstLetterAndLowerExtension<'D'>));
    all.push_back(Pattern("r[0-9]{7}(\\.(ars|arh|ari))?", &FirstLetterAndLowerExtension<'r'>));
    all.push_back(Pattern("t_.+\\.(set|idx)", &FirstLetterAndLowerExtension<'t'>));
    return all;
  }();
  return patterns;
}

// The spelling the library asks for when `name` differs from it only in case.
std::optional<std::string> SpellingLookedFor(const std::string& name) {
  for (const NamePattern& pattern : Patterns()) {
    if (std::regex_match(name, pattern.exact)) return std::nullopt;
    if (std::regex_match(name, pattern.ignoringCase)) {
      std::string spelled = pattern.spelled(name);
      if (spelled == name) return std::nullopt;
      return spelled;
    }
  }
  return std::nullopt;
}

class NameWalk {
 public:
  NameWalk(const CheckedRoot& root, CheckReport& report) : root_(root), report_(report) {}

  // Checks the entries of `folder`, and those of its subfolders `depth` levels down.
  void Walk(const std::string& folder, int depth) {
    if (!visited_.insert(folder).second) return;
    const auto entries = ListFolder(folder);
    if (!entries) return;
    for (const FolderEntry& entry : *entries) {
      ++report_.checked;
      std::string name = entry.name;
      if (const auto spelled = SpellingLookedFor(name)) {
        if (Report(folder, name, *spelled)) name = *spelled;
      }
      if (entry.isFolder && depth > 0) Walk(folder + name + kPathSeparator, depth - 1);
    }
  }

 private:
  // True when the entry now has the spelling looked for.
  bool Report(const std::string& folder, const std::string& name, const std::string& spelled) {
    const std::string from = folder + name;
    const std::string to = folder + spelled;
    const std::string relative = root_.Relative(from);
    if (!root_.options.fixCase) {
      report_.Error(relative, "differs only in case from " + spelled +
                                  ", the name the library looks for: it is not found (lumora "
                                  "check --fix-case renames it)");
      return false;
    }
    if (FileExists(to) || FolderExists(to)) {
      report_.Error(relative, "differs only in case from " + spelled +
                                  ", which exists beside it: not renamed");
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
  std::set<std::string> visited_;
};

}  // namespace

// Deepest walks first: a folder already walked is not walked again, and the disciplines' roots
// often lie in the common folder, which lies in the content root.
void CheckNameCase(const CheckedRoot& root, CheckReport& report) {
  NameWalk walk(root, report);
  // Each discipline: course folders, type folders, resource files and the lexicon's files.
  for (const CheckedDiscipline& d : root.disciplines) walk.Walk(d.discipline->localRoot, 3);
  // The common folder: Classes and the data folders with their index files and Content.mdb.
  if (root.iniLoaded) walk.Walk(root.common.local, 1);
  walk.Walk(root.root, 0);
}

}  // namespace lumora
