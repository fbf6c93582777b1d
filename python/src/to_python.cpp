#include "to_python.h"

#include <lumora/maintenance.h>

namespace py = pybind11;

namespace lumora::python {
namespace {

// A new reference, or null with the Python error set.
PyObject* Convert(const Description& value);

PyObject* Text(const std::string& text) {
  return PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "replace");
}

PyObject* List(const Description& array) {
  PyObject* list = PyList_New(static_cast<Py_ssize_t>(array.size()));
  if (list == nullptr) return nullptr;
  Py_ssize_t i = 0;
  for (const Description& item : array) {
    PyObject* converted = Convert(item);
    if (converted == nullptr) {
      Py_DECREF(list);
      return nullptr;
    }
    PyList_SET_ITEM(list, i++, converted);
  }
  return list;
}

PyObject* Dict(const Description& object) {
  PyObject* dict = PyDict_New();
  if (dict == nullptr) return nullptr;
  for (auto it = object.begin(); it != object.end(); ++it) {
    PyObject* key = Text(it.key());
    PyObject* value = key != nullptr ? Convert(it.value()) : nullptr;
    const bool set = value != nullptr && PyDict_SetItem(dict, key, value) == 0;
    Py_XDECREF(key);
    Py_XDECREF(value);
    if (!set) {
      Py_DECREF(dict);
      return nullptr;
    }
  }
  return dict;
}

PyObject* Convert(const Description& value) {
  using Type = Description::value_t;
  switch (value.type()) {
    case Type::object:
      return Dict(value);
    case Type::array:
      return List(value);
    case Type::string:
      return Text(value.get_ref<const std::string&>());
    case Type::boolean:
      return PyBool_FromLong(value.get<bool>());
    case Type::number_integer:
      return PyLong_FromLongLong(value.get<int64_t>());
    case Type::number_unsigned:
      return PyLong_FromUnsignedLongLong(value.get<uint64_t>());
    case Type::number_float:
      return PyFloat_FromDouble(value.get<double>());
    default:
      Py_RETURN_NONE;
  }
}

}  // namespace

py::object ToPython(const Description& document) {
  PyObject* converted = Convert(document);
  if (converted == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::object>(converted);
}

py::str FromNarrow(std::string_view text) {
  const std::string printable = PrintableText(text, kWindowsAnsi);
  PyObject* decoded = Text(printable);
  if (decoded == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::str>(decoded);
}

}  // namespace lumora::python
