// The index file forms shared by several exercise types.
//
//   groups                 ResourceGroups only.
//   groups + usage table   ResourceGroups, then a DWordArray of resource numbers and a parallel
//                          typed array of usage values (1, 2 or 4 bytes wide, per type).
//   number list            a KeyedTable keyed by resource number, entries per type.
//   plain number array     one DWordArray of resource numbers.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/keyed_table.h>
#include <lumora/platform/typed_array.h>
#include <lumora/resources/resource_groups.h>
#include <lumora/resources/type_index.h>
#include <lumora/support/paths.h>

#include <cstdint>
#include <string>

namespace lumora {

class GroupsIndex : public TypeIndex {
 public:
  const char* ClassName() const override { return "GroupsIndex"; }
  void Serialize(Archive& ar) override { groups.Serialize(ar); }
  bool Load(const std::string& path) override { return LoadArchiveFile(path, false, *this); }

  ResourceGroups groups;
};

// How a type with a usage table answers GetResourceFlag.
enum class UsageFlag { kAlwaysTrue, kTopByte };

template <typename Value, UsageFlag kFlag>
class UsageIndex : public GroupsIndex {
 public:
  const char* ClassName() const override { return "UsageIndex"; }
  void Serialize(Archive& ar) override {
    groups.Serialize(ar);
    usageKeys.Serialize(ar);
    usageValues.Serialize(ar);
  }

  // The most significant byte of the resource's usage value; false when it has none.
  bool GetResourceFlag(uint32_t number) const override {
    if constexpr (kFlag == UsageFlag::kAlwaysTrue) {
      (void)number;
      return true;
    } else {
      const uint32_t n = std::min(usageKeys.size(), usageValues.size());
      for (uint32_t i = 0; i < n; ++i) {
        if (usageKeys[i] == number) return (usageValues[i] >> (8 * (sizeof(Value) - 1))) != 0;
      }
      return false;
    }
  }

  // Appends the usage value of a resource number. A number found in two course folders is
  // added twice, as its groups list it twice; lookups answer from the first.
  void AddUsage(uint32_t number, Value value) {
    usageKeys.Add(number);
    usageValues.Add(value);
  }

  DWordArray usageKeys;
  TypedArray<Value> usageValues;
};

template <typename Entry>
class NumberListIndex : public TypeIndex {
 public:
  const char* ClassName() const override { return "NumberListIndex"; }
  void Serialize(Archive& ar) override { table.Serialize(ar); }
  bool Load(const std::string& path) override { return LoadArchiveFile(path, false, *this); }

  KeyedTable<Entry> table;
};

class PlainNumberIndex : public TypeIndex {
 public:
  const char* ClassName() const override { return "PlainNumberIndex"; }
  void Serialize(Archive& ar) override { numbers.Serialize(ar); }
  bool Load(const std::string& path) override { return LoadArchiveFile(path, false, *this); }

  DWordArray numbers;
};

}  // namespace lumora
