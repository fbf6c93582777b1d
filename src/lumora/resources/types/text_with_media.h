// An item record of types 10 and 21: a marked text and the medium that goes with it.
// Stored form: the MarkedText, then the MediaRef (7 bytes).
#pragma once

#include <lumora/resources/marked_text.h>
#include <lumora/resources/media_ref.h>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class TextWithMedia : public Object {
 public:
  const char* ClassName() const override { return "TextWithMedia"; }
  void Serialize(Archive& ar) override {
    text.Serialize(ar);
    media.Serialize(ar);
  }

  MarkedText text;
  MediaRef media;
};

}  // namespace lumora

#pragma GCC visibility pop
