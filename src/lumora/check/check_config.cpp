// Content.ini as the library reads it: which sections it reads and which it never reaches,
// the value it takes for a key given twice, the disciplines it lists but does not open, and
// roots that are not there.
#include <lumora/check/checks.h>
#include <lumora/platform/ascii_text.h>
#include <lumora/support/paths.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace lumora {
namespace {

constexpr const char* kIni = "Content.ini";

// The sections and key lines of the file as written, with their line numbers (from 1).
struct Layout {
  struct Section {
    std::string name;  // as written between the brackets
    int line = 0;
    std::map<std::string, std::vector<int>> keys;  // lowered key name -> its lines
  };
  std::vector<Section> sections;
  std::vector<int> keysBeforeAnySection;
};

Layout LayoutOf(const ProfileFile& ini) {
  Layout layout;
  for (size_t i = 0; i < ini.lines.size(); ++i) {
    const std::string& line = ini.lines[i];
    const int number = static_cast<int>(i) + 1;
    if (line[0] == '[') {
      const size_t close = line.find(']');
      layout.sections.push_back(
          {line.substr(1, close == std::string::npos ? std::string::npos : close - 1), number, {}});
      continue;
    }
    const size_t equals = line.find('=');
    if (equals == std::string::npos || equals == 0) continue;
    if (layout.sections.empty()) {
      layout.keysBeforeAnySection.push_back(number);
    } else {
      layout.sections.back().keys[LowerAscii(line.substr(0, equals))].push_back(number);
    }
  }
  return layout;
}

bool IsDisciplineSectionName(const std::string& name) {
  return name.size() == 3 && std::all_of(name.begin(), name.end(), [](char c) {
           return std::isdigit(static_cast<unsigned char>(c));
         });
}

// "3, 5 and 9"; past five lines, the first five and how many more.
std::string Lines(const std::vector<int>& lines) {
  constexpr size_t kShown = 5;
  const size_t shown = std::min(lines.size(), kShown);
  std::string text;
  for (size_t i = 0; i < shown; ++i) {
    const bool last = i + 1 == shown && lines.size() <= kShown;
    text += (i == 0 ? "" : last ? " and " : ", ") + std::to_string(lines[i]);
  }
  if (lines.size() > kShown) text += " and " + std::to_string(lines.size() - kShown) + " more";
  return text;
}

// What the open reads of one section: for each key it finds, the line its value comes from.
struct KeyRead {
  int line = 0;
  std::string value;
};
using KeysRead = std::map<std::string, KeyRead>;

// Reads the keys of the current section in the order the open reads them; a search that finds
// its key leaves the cursor on that key's line.
KeysRead ReadKeys(ProfileFile& ini, std::initializer_list<const char*> keys) {
  KeysRead read;
  for (const char* key : keys) {
    std::string value = ini.GetString(key);
    const std::string& line = ini.lines[static_cast<size_t>(ini.cursor)];
    if (StartsWithIgnoringCase(line, std::string(key) + "=")) {
      read[LowerAscii(key)] = {ini.cursor + 1, std::move(value)};
    }
  }
  return read;
}

int32_t IntRead(const KeysRead& read, const char* key) {
  const auto found = read.find(key);
  return found == read.end() ? 0 : ParseProfileInt(found->second.value);
}

void ReportRepeatedKeys(const Layout::Section& section, const KeysRead& read, CheckReport& report) {
  for (const auto& [key, lines] : section.keys) {
    if (lines.size() < 2) continue;
    std::string message = "key " + key + " is given " + std::to_string(lines.size()) +
                          " times in section [" + section.name + "] (lines " + Lines(lines) + ")";
    const auto used = read.find(key);
    if (used != read.end() &&
        std::find(lines.begin(), lines.end(), used->second.line) != lines.end()) {
      message += ": the library uses line " + std::to_string(used->second.line) + ", \"" +
                 used->second.value + "\"";
    } else {
      message += ": the library reads none of them";
    }
    report.Warning(kIni, message, lines.size());
  }
}

void ReportMissingFolder(const CheckedRoot& root, const std::string& folder,
                         const std::string& what, CheckReport& report) {
  ++report.checked;
  if (FolderExists(folder)) return;
  const std::string without_separator = folder.substr(0, folder.size() - 1);
  report.Error(
      root.Relative(folder),
      what + (FileExists(without_separator) ? " is a file, not a folder" : " does not exist"));
}

void CheckRoots(const CheckedRoot& root, CheckReport& report) {
  ReportMissingFolder(root, root.common.local,
                      "the common Local folder (classification and data folders below it)", report);
  for (const CheckedDiscipline& d : root.disciplines) {
    const std::string name = "discipline " + std::to_string(d.id);
    ReportMissingFolder(root, d.discipline->localRoot, "the Local root of " + name, report);
    ReportMissingFolder(root, d.discipline->dataFolder,
                        "the data folder of " + name + " (index files, Content.mdb)", report);
  }
}

}  // namespace

void CheckConfig(const CheckedRoot& root, CheckReport& report) {
  ++report.checked;
  if (!root.iniLoaded) {
    report.Error(kIni, "cannot be read: the library opens nothing below this root");
    return;
  }
  const Layout layout = LayoutOf(root.ini);
  ProfileFile ini = root.ini;  // the searches move its cursor
  ini.sectionStart = 0;
  ini.cursor = 0;

  for (int line : layout.keysBeforeAnySection) {
    report.Warning(kIni, "line " + std::to_string(line) +
                             " is a key before the first section header: it is never read");
  }

  // Which sections the open reads, in the order and with the searches it makes.
  std::map<std::string, KeysRead> read;
  if (ini.FindSection("Common")) read["common"] = ReadKeys(ini, {"Local", "UNC", "URL"});
  std::set<uint32_t> numbers_read;
  std::map<uint32_t, uint32_t> first_section_of_id;
  for (uint32_t n = 1; ini.FindSection(DisciplineSectionName(n)); ++n) {
    const std::string name = DisciplineSectionName(n);
    numbers_read.insert(n);
    const KeysRead& keys = read[name] =
        ReadKeys(ini, {"Discipline", "Type", "Param", "Local", "UNC", "URL"});
    if (keys.count("discipline") == 0) {
      report.Warning(kIni, "section [" + name + "] has no Discipline key: it is discipline 0");
    }
    const uint32_t id = static_cast<uint32_t>(IntRead(keys, "discipline"));
    const int type = IntRead(keys, "type") & 0xFF;
    if (type != 0) {
      report.Warning(kIni, "section [" + name + "] (discipline " + std::to_string(id) +
                               ") has Type " + std::to_string(type) +
                               ": lmGetDisciplines lists it, the open never opens it");
    } else if (!first_section_of_id.emplace(id, n).second) {
      report.Warning(kIni, "discipline " + std::to_string(id) + " is configured in sections [" +
                               DisciplineSectionName(first_section_of_id[id]) + "] and [" + name +
                               "]: every lookup finds the first");
    }
  }
  if (numbers_read.empty()) {
    report.Error(kIni, "has no section [001]: the library opens no discipline");
  }

  std::map<std::string, std::vector<int>> headers;
  for (const Layout::Section& section : layout.sections) {
    ++report.checked;
    headers[LowerAscii(section.name)].push_back(section.line);
    if (IsDisciplineSectionName(section.name) &&
        numbers_read.count(static_cast<uint32_t>(std::stoi(section.name))) == 0) {
      report.Warning(kIni,
                     "section [" + section.name + "] (line " + std::to_string(section.line) +
                         ") comes after a gap in the numbering (there is no [" +
                         DisciplineSectionName(static_cast<uint32_t>(numbers_read.size()) + 1) +
                         "]): the library never reads it");
    }
    const auto keys_read = read.find(LowerAscii(section.name));
    ReportRepeatedKeys(section, keys_read == read.end() ? KeysRead{} : keys_read->second, report);
  }
  for (const auto& [name, lines] : headers) {
    if (lines.size() < 2) continue;
    report.Warning(kIni,
                   "section [" + name + "] is given " + std::to_string(lines.size()) +
                       " times (lines " + Lines(lines) +
                       "): the library reads the keys of one of them only",
                   lines.size());
  }
  CheckRoots(root, report);
}

}  // namespace lumora
