// The in-memory form of one exercise type's index file. Each type has its own subclass for the
// form its file takes; the base loads nothing and flags every resource.
#pragma once

#include <lumora/platform/archive.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class TypeIndex : public Object {
 public:
  const char* ClassName() const override { return "TypeIndex"; }
  // Reads the index file at `path`; false when it is missing or malformed.
  virtual bool Load(const std::string& path) {
    (void)path;
    return false;
  }
  virtual bool GetResourceFlag(uint32_t number) const {
    (void)number;
    return true;
  }
};

}  // namespace lumora

#pragma GCC visibility pop
