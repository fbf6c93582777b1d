#include <lumora/check/decoded_indexes.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type40.h>

namespace lumora {

DecodedIndexes::DecodedIndexes(const CheckedRoot& root)
    : root_(root), takes_(root.Runs("index") && root.ChecksEveryResourceFile()) {}

bool DecodedIndexes::Takes(uint32_t type) const {
  return takes_ && (type == kContentElementType || type == Type40Resource::kType);
}

DecodedIndexes::Input DecodedIndexes::InputOf(uint32_t type, uint32_t number,
                                              const ExerciseResource* decoded) {
  if (type == kContentElementType) {
    if (decoded == nullptr) return ElementIndexInput{number, nullptr};
    return ElementIndexInputOf(static_cast<const ContentElement&>(*decoded), number);
  }
  if (decoded == nullptr) return UnloadedType40IndexInput(number);
  return Type40IndexInputOf(static_cast<const Type40Resource&>(*decoded), number);
}

void DecodedIndexes::Add(size_t d, uint32_t type, Input input, bool tooLarge) {
  if (tooLarge) unread_.emplace(d, type);
  if (auto* element = std::get_if<ElementIndexInput>(&input)) {
    root_.decoded.elements[d].push_back(std::move(*element));
  } else if (auto* resource = std::get_if<Type40IndexInput>(&input)) {
    root_.decoded.type40[d].push_back(std::move(*resource));
  }
}

void DecodedIndexes::Finish() {
  for (const auto& [d, type] : unread_) {
    if (type == kContentElementType) {
      root_.decoded.elements.erase(d);
    } else {
      root_.decoded.type40.erase(d);
    }
  }
}

}  // namespace lumora
