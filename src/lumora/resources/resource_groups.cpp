#include <lumora/platform/archive.h>
#include <lumora/platform/keyed_table.h>
#include <lumora/resources/resource_groups.h>

namespace lumora {

void ResourceGroups::Clear() {
  keys_.RemoveAll();
  groups_.clear();
  sorted_ = false;
}

void ResourceGroups::Serialize(Archive& ar) {
  if (ar.IsStoring()) {
    ar.WriteU32(size());
    ar.WriteU8(sorted_ ? 1 : 0);
    if (size() == 0) return;
    keys_.Serialize(ar);
    for (auto& group : groups_) group->Serialize(ar);
    return;
  }
  Clear();
  const uint32_t count = ar.ReadU32();
  sorted_ = ar.ReadU8() != 0;
  if (count == 0) return;
  keys_.Serialize(ar);
  if (keys_.size() != count) {
    throw ArchiveError(ArchiveError::Kind::kBadFormat, "group keys differ from group count");
  }
  // Each stored group takes at least its 12-byte array head.
  ar.Require(uint64_t{count} * 12);
  groups_.reserve(count);
  for (uint32_t i = 0; i < count; ++i) {
    auto group = std::make_unique<DWordArray>();
    group->Serialize(ar);
    groups_.push_back(std::move(group));
  }
}

std::optional<uint32_t> ResourceGroups::IndexOf(uint8_t key) const {
  return FindKeyIndex(keys_, size(), key, sorted_);
}

DWordArray* ResourceGroups::Find(uint8_t key) const {
  auto i = IndexOf(key);
  return i ? groups_[*i].get() : nullptr;
}

DWordArray& ResourceGroups::FindOrInsert(uint8_t key) {
  if (DWordArray* group = Find(key)) return *group;
  keys_.Add(key);
  groups_.push_back(std::make_unique<DWordArray>());
  sorted_ = false;
  return *groups_.back();
}

void ResourceGroups::GetResourceNumbers(uint8_t key, DWordArray& out) const {
  out.RemoveAll();
  auto append = [&out](const DWordArray& group) {
    for (uint32_t number : group) out.Add(number);
  };
  if (key == 0) {
    for (const auto& group : groups_) append(*group);
  } else if (const DWordArray* group = Find(key)) {
    append(*group);
  }
}

}  // namespace lumora
