#include <lumora/maintenance.h>
#include <lumora/resources/index_forms.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/resources/type21_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/groups_index_builder.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/type1.h>
#include <lumora/resources/types/type10.h>
#include <lumora/resources/types/type1003.h>
#include <lumora/resources/types/type1003_index.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type1005_index.h>
#include <lumora/resources/types/type1006.h>
#include <lumora/resources/types/type1010.h>
#include <lumora/resources/types/type1010_index.h>
#include <lumora/resources/types/type12.h>
#include <lumora/resources/types/type13.h>
#include <lumora/resources/types/type14.h>
#include <lumora/resources/types/type15.h>
#include <lumora/resources/types/type16.h>
#include <lumora/resources/types/type17.h>
#include <lumora/resources/types/type18.h>
#include <lumora/resources/types/type19.h>
#include <lumora/resources/types/type2.h>
#include <lumora/resources/types/type20.h>
#include <lumora/resources/types/type2000.h>
#include <lumora/resources/types/type21.h>
#include <lumora/resources/types/type28.h>
#include <lumora/resources/types/type3.h>
#include <lumora/resources/types/type4.h>
#include <lumora/resources/types/type40.h>
#include <lumora/resources/types/type5.h>
#include <lumora/resources/types/type7.h>
#include <lumora/resources/types/type8.h>
#include <lumora/resources/types/type9.h>

#include <algorithm>
#include <functional>

namespace lumora {
namespace {

using enum UsageFlag;
using BuildFn = bool (*)(const std::string&, const std::string&);

constexpr uint8_t kAllMedia = kResolvesMedia | kCopiesMedia | kVerifiesMedia;
constexpr uint8_t kResolvesAndVerifies = kResolvesMedia | kVerifiesMedia;
constexpr uint8_t kCopiesAndVerifies = kCopiesMedia | kVerifiesMedia;

template <typename Resource>
std::unique_ptr<ExerciseResource> NewResourceOf() {
  return std::make_unique<Resource>();
}

template <typename Index>
std::unique_ptr<TypeIndex> NewIndexOf() {
  return std::make_unique<Index>();
}

// The type number of a resource class; the content element, embedded by other
// types, names its number apart.
template <typename Resource>
constexpr uint32_t kTypeOf = Resource::kType;
template <>
constexpr uint32_t kTypeOf<ContentElement> = kContentElementType;

// The value width and flag rule of a usage index class.
template <typename Index>
struct UsageForm;
template <typename Value, UsageFlag kFlag>
struct UsageForm<UsageIndex<Value, kFlag>> {
  using ValueType = Value;
  static constexpr UsageFlag kUsageFlag = kFlag;
};

// The usage value of each resource is its class's UsageValue(), stored in the
// width and read with the flag rule of the index class, so that the form is
// named once, in the row.
template <typename Resource, typename Index>
bool BuildUsageValueIndex(const std::string& resource_root, const std::string& index_folder) {
  using Form = UsageForm<Index>;
  return BuildUsageIndex<Resource, typename Form::ValueType, Form::kUsageFlag>(
      resource_root, index_folder, std::mem_fn(&Resource::UsageValue));
}

// A type whose index class and rebuild are its own.
template <typename Resource, typename Index>
constexpr ExerciseType Row(const char* name, uint8_t rank, uint8_t media, BuildFn build) {
  return {kTypeOf<Resource>,  name, rank, media, &NewResourceOf<Resource>,
          &NewIndexOf<Index>, build};
}

// A type whose index file groups its resources by their group key.
template <typename Resource>
constexpr ExerciseType GroupsRow(const char* name, uint8_t rank, uint8_t media) {
  return Row<Resource, GroupsIndex>(name, rank, media, &BuildGroupsIndex<Resource>);
}

// A type whose index file adds each resource's UsageValue() to the groups.
template <typename Resource, typename Index>
constexpr ExerciseType UsageValueRow(const char* name, uint8_t rank, uint8_t media) {
  return Row<Resource, Index>(name, rank, media, &BuildUsageValueIndex<Resource, Index>);
}

constexpr const char* kSentencePractice = "Grammar Practice/Sentence Practice";

constexpr std::array<ExerciseType, kExerciseTypeCount> kRows = {{
    GroupsRow<Type1Resource>("Word Association", 0, kNoMedia),
    Row<Type2Resource, UsageIndex<uint16_t, kAlwaysTrue>>("Word Order", 1, kNoMedia,
                                                          &BuildType2Index),
    Row<Type3Resource, UsageIndex<uint8_t, kAlwaysTrue>>("Fill-in-the-Blanks", 2, kNoMedia,
                                                         &BuildType3Index),
    GroupsRow<Type4Resource>("Mysterious Phrase", 3, kNoMedia),
    UsageValueRow<Type5Resource, UsageIndex<uint16_t, kTopByte>>("Dictation", 4, kAllMedia),
    Row<Type7Resource, UsageIndex<uint16_t, kAlwaysTrue>>("The Right Word", 5, kNoMedia,
                                                          &BuildType7Index),
    Row<Type8Resource, UsageIndex<uint8_t, kTopByte>>("Video Questions", 6, kCopiesAndVerifies,
                                                      &BuildType8Index),
    UsageValueRow<Type9Resource, UsageIndex<uint8_t, kAlwaysTrue>>("Picture/Word Association", 7,
                                                                   kAllMedia),
    GroupsRow<Type10Resource>("Phonetics", 8, kAllMedia),
    Row<Type12Resource, UsageIndex<uint8_t, kTopByte>>(kSentencePractice, 9, kNoMedia,
                                                       &BuildType12Index),
    Row<Type13Resource, UsageIndex<uint8_t, kTopByte>>(kSentencePractice, 10, kNoMedia,
                                                       &BuildType13Index),
    GroupsRow<Type14Resource>(nullptr, 11, kAllMedia),
    Row<Type15Resource, UsageIndex<uint8_t, kTopByte>>(kSentencePractice, 12, kNoMedia,
                                                       &BuildType15Index),
    GroupsRow<Type16Resource>("Grammatical Nature", 13, kNoMedia),
    GroupsRow<Type17Resource>("Cultural Card", 14, kNoMedia),
    GroupsRow<Type18Resource>(nullptr, 15, kNoMedia),
    GroupsRow<Type19Resource>(nullptr, 16, kVerifiesMedia),
    GroupsRow<Type20Resource>("PatchWork", 17, kAllMedia),
    Row<Type21Resource, Type21Index>("Riddle", 18, kResolvesAndVerifies, &BuildType21Index),
    UsageValueRow<Type28Resource, UsageIndex<uint8_t, kTopByte>>(nullptr, 19, kResolvesAndVerifies),
    Row<Type40Resource, UsageIndex<uint32_t, kTopByte>>(nullptr, 20, kAllMedia, &BuildType40Index),
    Row<Type1003Resource, Type1003Index>(nullptr, 23, kResolvesAndVerifies, &BuildType1003Index),
    Row<ContentElement, Type1005Index>(nullptr, 25, kAllMedia, &BuildType1005Index),
    Row<Type1006Resource, PlainNumberIndex>(nullptr, 22, kAllMedia, &BuildType1006Index),
    Row<Type1010Resource, Type1010Index>(nullptr, 21, kAllMedia, &BuildType1010Index),
    Row<Type2000Resource, Type2000Index>(nullptr, 24, kCopiesAndVerifies, &BuildType2000Index),
}};

constexpr std::array<uint32_t, kExerciseTypeCount> Numbers() {
  std::array<uint32_t, kExerciseTypeCount> numbers{};
  for (size_t i = 0; i < kRows.size(); ++i) numbers[i] = kRows[i].number;
  return numbers;
}

constexpr std::array<uint32_t, kExerciseTypeCount> LoadOrder() {
  std::array<uint32_t, kExerciseTypeCount> order{};
  for (const ExerciseType& row : kRows) order[row.loadRank] = row.number;
  return order;
}

constexpr bool RanksArePlaces() {
  std::array<bool, kExerciseTypeCount> taken{};
  for (const ExerciseType& row : kRows) {
    if (row.loadRank >= kExerciseTypeCount || taken[row.loadRank]) return false;
    taken[row.loadRank] = true;
  }
  return true;
}

static_assert(RanksArePlaces(), "each load rank is one place of the load order");

}  // namespace

constexpr std::array<uint32_t, kExerciseTypeCount> kExerciseTypes = Numbers();
constexpr std::array<uint32_t, kExerciseTypeCount> kIndexLoadOrder = LoadOrder();
static_assert(std::is_sorted(kExerciseTypes.begin(), kExerciseTypes.end()),
              "rows by ascending number");

std::span<const ExerciseType> ExerciseTypes() { return kRows; }

const ExerciseType* FindExerciseType(uint32_t number) {
  const auto row = std::find_if(kRows.begin(), kRows.end(),
                                [number](const ExerciseType& r) { return r.number == number; });
  return row == kRows.end() ? nullptr : &*row;
}

bool IsExerciseType(uint32_t type) { return FindExerciseType(type) != nullptr; }

const char* ExerciseDisplayName(uint32_t type) {
  const ExerciseType* row = FindExerciseType(type);
  return row ? row->name : nullptr;
}

std::unique_ptr<TypeIndex> NewTypeIndex(uint32_t type) {
  const ExerciseType* row = FindExerciseType(type);
  return row ? row->newIndex() : nullptr;
}

std::unique_ptr<ExerciseResource> NewResource(uint32_t type) {
  const ExerciseType* row = FindExerciseType(type);
  return row ? row->newResource() : nullptr;
}

bool BuildTypeIndex(uint32_t type, const std::string& resource_root,
                    const std::string& index_folder) {
  const ExerciseType* row = FindExerciseType(type);
  return row && row->buildIndex(resource_root, index_folder);
}

}  // namespace lumora
