// The grammar of one discipline, loaded from its grammar folder when the discipline opens.
// The tables and their set files come later; until then nothing loads.
#pragma once

#include <lumora/platform/object.h>

#include <string>

namespace lumora {

class CGramV6 : public Object {
 public:
  const char* ClassName() const override { return "CGramV6"; }

  // Reads the grammar tables from `folder`; false while there are no tables to read.
  bool load(const std::string& folder) {
    (void)folder;
    return false;
  }
};

}  // namespace lumora
