#include <lumora/resources/index_forms.h>
#include <lumora/resources/indexed_numbers.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/resources/type21_index.h>
#include <lumora/resources/types/type1003_index.h>
#include <lumora/resources/types/type1005_index.h>
#include <lumora/resources/types/type1010_index.h>

namespace lumora {
namespace {

IndexedNumbers FromGroups(const ResourceGroups& groups) {
  IndexedNumbers out;
  out.groups = groups.size();
  for (uint32_t i = 0; i < groups.size(); ++i) {
    for (uint32_t number : groups.GroupAt(i)) out.numbers.push_back(number);
  }
  return out;
}

IndexedNumbers FromArray(const DWordArray& numbers) {
  IndexedNumbers out;
  for (uint32_t number : numbers) out.numbers.push_back(number);
  return out;
}

template <typename Entry>
std::optional<IndexedNumbers> FromTable(const TypeIndex& index) {
  const auto* list = dynamic_cast<const NumberListIndex<Entry>*>(&index);
  if (list == nullptr) return std::nullopt;
  IndexedNumbers out;
  for (uint32_t i = 0; i < list->table.size(); ++i) out.numbers.push_back(list->table.KeyAt(i));
  return out;
}

}  // namespace

std::optional<IndexedNumbers> NumbersOf(const TypeIndex& index) {
  if (const auto* grouped = dynamic_cast<const GroupsIndex*>(&index)) {
    return FromGroups(grouped->groups);
  }
  if (const auto* type1010 = dynamic_cast<const Type1010Index*>(&index)) {
    return FromGroups(type1010->groups);
  }
  if (const auto* type21 = dynamic_cast<const Type21Index*>(&index)) {
    return FromArray(type21->numbers);
  }
  if (const auto* plain = dynamic_cast<const PlainNumberIndex*>(&index)) {
    return FromArray(plain->numbers);
  }
  if (auto numbers = FromTable<Type1003Entry>(index)) return numbers;
  if (auto numbers = FromTable<Type1005Entry>(index)) return numbers;
  return FromTable<Type2000Entry>(index);
}

}  // namespace lumora
