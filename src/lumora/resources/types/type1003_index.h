// The index of type 1003 (videos): a number list whose entry gives the number of paragraphs
// of each video, so that links to a paragraph can be judged without opening the video's
// file. Entry stored form: u32 paragraph count.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/resources/index_forms.h>

#include <cstdint>

namespace lumora {

class Type1003Entry : public Object {
 public:
  const char* ClassName() const override { return "Type1003Entry"; }
  void Serialize(Archive& ar) override { ar.Io(paragraphCount); }

  uint32_t paragraphCount = 0;
};

using Type1003Index = NumberListIndex<Type1003Entry>;

}  // namespace lumora
