#include "arguments.h"

#include <lumora/lumora.h>

namespace py = pybind11;

namespace lumora::python {

uint32_t Unsigned32(int64_t value, const char* name) {
  if (value < 0 || value > UINT32_MAX) {
    throw py::value_error(std::string(name) + " must be 0 to 4294967295, not " +
                          std::to_string(value));
  }
  return static_cast<uint32_t>(value);
}

std::optional<uint32_t> OptionalUnsigned32(const py::object& value, const char* name) {
  if (value.is_none()) return std::nullopt;
  if (!py::isinstance<py::int_>(value)) throw py::type_error(std::string(name) + " must be an int");
  return Unsigned32(value.cast<int64_t>(), name);
}

uint8_t InRange(int64_t value, int64_t low, int64_t high, const char* name) {
  if (value < low || value > high) {
    throw py::value_error(std::string(name) + " must be " + std::to_string(low) + " to " +
                          std::to_string(high) + ", not " + std::to_string(value));
  }
  return static_cast<uint8_t>(value);
}

uint32_t PathKindNamed(const std::string& name, bool local) {
  if (name == "url") return kPathUrl;
  if (name == "unc") return kPathUnc;
  if (local && name == "local") return kPathLocal;
  throw py::value_error("path_kind must be \"url\"" + std::string(local ? ", \"local\"" : "") +
                        " or \"unc\", not \"" + name + "\"");
}

std::vector<uint8_t> QualityFolders(const py::iterable& folders) {
  std::vector<uint8_t> quality;
  for (py::handle folder : folders) {
    if (!py::isinstance<py::int_>(folder)) throw py::type_error("quality folders are ints");
    quality.push_back(InRange(folder.cast<int64_t>(), 1, 3, "a quality folder"));
  }
  if (quality.empty()) throw py::value_error("no quality folder given");
  return quality;
}

}  // namespace lumora::python
