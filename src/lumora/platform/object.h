// Root of every persistent class: a class name for diagnostics, a virtual destructor and one
// Serialize that both stores and loads the same field sequence.
#pragma once

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Archive;

class Object {
 public:
  virtual ~Object() = default;
  virtual const char* ClassName() const { return "Object"; }
  virtual void Serialize(Archive& ar) { (void)ar; }

 protected:
  Object() = default;
  Object(const Object&) = default;
  Object& operator=(const Object&) = default;
};

}  // namespace lumora

#pragma GCC visibility pop
