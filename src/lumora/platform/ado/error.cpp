#include <lumora/platform/ado/error.h>

#include <utility>

namespace lumora::ado {

Error::Error(HRESULT hr, std::string source, std::string description)
    : std::runtime_error(description),
      hr_(hr),
      source_(std::move(source)),
      description_(std::move(description)) {}

std::optional<std::string> Error::SystemMessage() const {
  switch (hr_) {
    case kUnspecifiedError:
      return "Unspecified error";
    case kOutOfMemory:
      return "Not enough memory resources are available to complete this operation.";
    case kNotInitialized:
      return "CoInitialize has not been called.";
    case kTypeMismatch:
      return "Type mismatch.";
    case kOverflow:
      return "Out of present range.";
    default:
      return std::nullopt;
  }
}

}  // namespace lumora::ado
