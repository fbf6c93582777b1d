// Builds an input in the form FuzzedDataProvider takes it apart: strings are read from the
// front, each ended by a backslash and one other byte (a backslash in the text is doubled), and
// numbers from the back, one byte for a bool or a number of up to 256 values.
#pragma once

#include "seed_folder.h"

namespace seeds {

class ProviderInput {
 public:
  // What ConsumeRandomLengthString gives back, when `text` is no longer than its limit.
  void String(const Bytes& text);
  // What ConsumeIntegral<uint8_t>, ConsumeBool or a small ConsumeIntegralInRange take next.
  void Byte(uint8_t value) { back_.push_back(value); }

  Bytes Finish() const;

 private:
  Bytes front_;
  Bytes back_;  // in the order they are taken
};

}  // namespace seeds
