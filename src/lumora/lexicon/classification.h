// The library-wide classification: the label tables that glossaries and grammars refer to by
// number. Loaded once per open from the common "Classes" folder and emptied at close. The
// tables and their set files come later; until then nothing loads and the object stays empty.
#pragma once

#include <lumora/platform/object.h>

#include <string>

namespace lumora {

class Classification : public Object {
 public:
  const char* ClassName() const override { return "Classification"; }

  // Reads the tables from `folder`; false while there are no tables to read.
  bool load(const std::string& folder) {
    (void)folder;
    return false;
  }
  void Clear() {}
  bool IsEmpty() const { return true; }
};

}  // namespace lumora
