// The resource class of type 13 (Grammar Practice/Sentence Practice); its fields and stored
// form are those of SentencePracticeResource.
#pragma once

#include <lumora/resources/types/sentence_practice.h>

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type13Resource final : public SentencePracticeResource {
 public:
  static constexpr uint32_t kType = 13;

  const char* ClassName() const override { return "Type13Resource"; }
  uint32_t GetType() const override { return kType; }
};

}  // namespace lumora

#pragma GCC visibility pop
