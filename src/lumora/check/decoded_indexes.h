// The index check's work done while the resources check decodes: what the rebuilds of the
// type-1005 and type-40 index files keep of each resource file, taken from the resource decoded
// from it, so that the index check rebuilds those indexes without decoding the files again.
#pragma once

#include <lumora/check/checked_root.h>
#include <lumora/resources/types/index_inputs.h>

#include <cstddef>
#include <cstdint>
#include <set>
#include <utility>
#include <variant>

namespace lumora {

class ExerciseResource;

class DecodedIndexes {
 public:
  using Input = std::variant<std::monostate, ElementIndexInput, Type40IndexInput>;

  explicit DecodedIndexes(const CheckedRoot& root);

  // Whether the inputs of the files of `type` are taken here: for the two types that hold
  // nearly every file, when the index check runs and every resource file is decoded here.
  bool Takes(uint32_t type) const;
  // The input of the file of `type` numbered `number` (".ars" files only), from the resource
  // decoded from it (null when it does not decode).
  static Input InputOf(uint32_t type, uint32_t number, const ExerciseResource* decoded);
  // Adds the input of the next ".ars" file of `type` in discipline `d`, in scan order. A file
  // too large to be read here leaves its type to the index check's own rebuild, which reads it
  // however large.
  void Add(size_t d, uint32_t type, Input input, bool tooLarge);
  // Hands the inputs to the index check (root.decoded).
  void Finish();

 private:
  const CheckedRoot& root_;
  bool takes_;
  std::set<std::pair<size_t, uint32_t>> unread_;
};

}  // namespace lumora
