// The glossary of one discipline. The discipline loads it from its glossary folder when it
// opens, then points it at the library-wide classification and gives it the discipline's
// language number. The tables and their set files come later; until then nothing loads.
#pragma once

#include <lumora/platform/object.h>

#include <cstdint>
#include <string>

namespace lumora {

class Classification;

class CGloV6 : public Object {
 public:
  const char* ClassName() const override { return "CGloV6"; }

  // Reads the glossary tables from `folder`; false while there are no tables to read.
  bool load(const std::string& folder) {
    (void)folder;
    return false;
  }

  uint8_t language = 0;
  Classification* classification = nullptr;  // borrowed; the library owns it
};

}  // namespace lumora
