// What the registry holds for each open discipline, for programs that work on the content
// itself (a check, an index rebuild, a media verification) rather than show it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lumora {

struct OpenedDiscipline {
  uint32_t id = 0;
  int32_t param = 0;  // the section's Param: its low byte is the discipline's language
  std::string localRoot;
  std::string uncRoot;
  std::string urlRoot;
  std::string dataFolder;
};

// Every registered discipline, in registration order (a discipline opened twice is listed
// twice).
std::vector<OpenedDiscipline> ListOpenedDisciplines();

// The first registered discipline with identifier `id`; false, with `found` untouched, when
// none is open.
bool FindOpenedDiscipline(uint32_t id, OpenedDiscipline* found);

}  // namespace lumora
