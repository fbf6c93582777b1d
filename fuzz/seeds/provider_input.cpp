#include "provider_input.h"

namespace seeds {

void ProviderInput::String(const Bytes& text) {
  for (const uint8_t byte : text) {
    front_.push_back(byte);
    if (byte == '\\') front_.push_back(byte);
  }
  front_.push_back('\\');
  front_.push_back('\n');
}

Bytes ProviderInput::Finish() const {
  Bytes input = front_;
  input.insert(input.end(), back_.rbegin(), back_.rend());
  return input;
}

}  // namespace seeds
