// The index of type 1010: six tables.
//   1. ByteArray: the group keys in use, ascending, each once;
//   2. ResourceGroups: the resource numbers by group key;
//   3-6. one DWordArray per text of the resource (in stored order): the numbers of the
//        resources whose text has at least one translation.
// A number found in two course folders is listed twice, in its group and in its tables.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/typed_array.h>
#include <lumora/resources/resource_groups.h>
#include <lumora/resources/type_index.h>
#include <lumora/support/paths.h>

#include <array>
#include <cstdint>
#include <string>

namespace lumora {

class Type1010Index : public TypeIndex {
 public:
  static constexpr size_t kTextCount = 4;

  const char* ClassName() const override { return "Type1010Index"; }
  void Serialize(Archive& ar) override {
    groupKeys.Serialize(ar);
    groups.Serialize(ar);
    for (DWordArray& numbers : translated) numbers.Serialize(ar);
  }
  bool Load(const std::string& path) override { return LoadArchiveFile(path, false, *this); }

  ByteArray groupKeys;
  ResourceGroups groups;
  std::array<DWordArray, kTextCount> translated;
};

}  // namespace lumora
