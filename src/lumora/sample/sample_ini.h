// The sample's Content.ini: the common roots and one section per discipline.
#pragma once

#include <string>

namespace lumora::sample {

struct SampleDiscipline {
  int id;
  int type;   // 0: opened; any other value: listed but skipped when opening
  int param;  // low byte: the course language
};

inline constexpr SampleDiscipline kSampleDisciplines[] = {
    {1, 0, 17}, {2, 0, 18}, {3, 0, 15}, {9, 1, 17}};

// "D001/": the folder of a discipline below the content root, its Local root and data folder.
std::string DisciplineFolder(int id);

// Writes `root` + "Content.ini".
bool WriteContentIni(const std::string& root, std::string* error);

}  // namespace lumora::sample
