// Index rebuilds of the text-only types that keep a usage table. Their usage value answers one
// question, whether the resource has anything to practise: 1 when its main list holds at least
// one entry, else 0. For types 12, 13 and 15 that byte is what GetResourceFlag reads; types 2
// and 7 store it in the low byte of a 16-bit value and, like type 3, flag every resource anyway.
#include <lumora/resources/index_forms.h>
#include <lumora/resources/types/groups_index_builder.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/type12.h>
#include <lumora/resources/types/type13.h>
#include <lumora/resources/types/type15.h>
#include <lumora/resources/types/type2.h>
#include <lumora/resources/types/type3.h>
#include <lumora/resources/types/type7.h>

namespace lumora {
namespace {

using enum UsageFlag;

// Types 12 and 13: the records after the leading one.
template <typename Resource>
bool BuildSentencePracticeIndex(const std::string& resource_root, const std::string& index_folder) {
  return BuildUsageIndex<Resource, uint8_t, kTopByte>(
      resource_root, index_folder, [](const Resource& r) { return !r.records.empty(); });
}

}  // namespace

bool BuildType2Index(const std::string& resource_root, const std::string& index_folder) {
  return BuildUsageIndex<Type2Resource, uint16_t, kAlwaysTrue>(
      resource_root, index_folder, [](const Type2Resource& r) { return !r.words.items.empty(); });
}

bool BuildType3Index(const std::string& resource_root, const std::string& index_folder) {
  return BuildUsageIndex<Type3Resource, uint8_t, kAlwaysTrue>(
      resource_root, index_folder, [](const Type3Resource& r) { return !r.texts.empty(); });
}

bool BuildType7Index(const std::string& resource_root, const std::string& index_folder) {
  return BuildUsageIndex<Type7Resource, uint16_t, kAlwaysTrue>(
      resource_root, index_folder, [](const Type7Resource& r) { return !r.choices.empty(); });
}

bool BuildType12Index(const std::string& resource_root, const std::string& index_folder) {
  return BuildSentencePracticeIndex<Type12Resource>(resource_root, index_folder);
}

bool BuildType13Index(const std::string& resource_root, const std::string& index_folder) {
  return BuildSentencePracticeIndex<Type13Resource>(resource_root, index_folder);
}

bool BuildType15Index(const std::string& resource_root, const std::string& index_folder) {
  return BuildUsageIndex<Type15Resource, uint8_t, kTopByte>(
      resource_root, index_folder, [](const Type15Resource& r) { return !r.items.empty(); });
}

}  // namespace lumora
