#include <lumora/content.h>

namespace lumora {

std::string Status::ToString() const {
  std::string text;
  if (!file.empty()) text = file + ": ";
  if (byte) text += "at byte " + std::to_string(*byte) + ": ";
  return text + reason;
}

}  // namespace lumora
