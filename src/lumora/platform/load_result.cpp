#include <lumora/platform/load_result.h>

namespace lumora {

std::string LoadFailure::Details() const {
  return offset ? "at byte " + std::to_string(*offset) + ": " + what : what;
}

std::string LoadFailure::ToString() const { return file + ": " + Details(); }

}  // namespace lumora
