#include "errors.h"

namespace py = pybind11;

namespace lumora::python {
namespace {

// Owned by the module, which lives as long as the interpreter.
PyObject* error_type = nullptr;
PyObject* content_error_type = nullptr;
PyObject* not_found_type = nullptr;

[[noreturn]] void RaiseWith(PyObject* type, const Status& status) {
  py::object error = py::reinterpret_borrow<py::object>(type)(status.ToString());
  error.attr("reason") = status.reason;
  error.attr("file") = status.file.empty() ? py::none() : py::cast(status.file);
  error.attr("byte") = status.byte ? py::cast(*status.byte) : py::none();
  PyErr_SetObject(type, error.ptr());
  throw py::error_already_set();
}

Status Reason(std::string reason) {
  Status status;
  status.reason = std::move(reason);
  return status;
}

}  // namespace

void RegisterErrors(py::module_& module) {
  error_type = PyErr_NewExceptionWithDoc(
      "lumora.Error", "A request the library could not answer; .reason says why.", nullptr,
      nullptr);
  content_error_type = PyErr_NewExceptionWithDoc(
      "lumora.ContentError",
      "A resource, index or table that cannot be read: .file, .byte and .reason say where and why.",
      error_type, nullptr);
  const py::tuple bases = py::make_tuple(py::handle(error_type), py::handle(PyExc_KeyError));
  not_found_type = PyErr_NewExceptionWithDoc(
      "lumora.NotFoundError", "No such discipline, type, word or point (also a KeyError).",
      bases.ptr(), nullptr);
  if (error_type == nullptr || content_error_type == nullptr || not_found_type == nullptr) {
    throw py::error_already_set();
  }
  module.add_object("Error", py::handle(error_type));
  module.add_object("ContentError", py::handle(content_error_type));
  module.add_object("NotFoundError", py::handle(not_found_type));
}

void Raise(const Status& status, bool closed) {
  if (closed) RaiseClosed();
  switch (status.code) {
    case StatusCode::kUnreadable:
      RaiseWith(content_error_type, status);
    case StatusCode::kNotFound:
      RaiseWith(not_found_type, status);
    case StatusCode::kInvalidArgument:
      throw py::value_error(status.reason);
    default:
      RaiseWith(error_type, status);
  }
}

void RaiseError(const std::string& reason) { RaiseWith(error_type, Reason(reason)); }

void RaiseNotFound(const std::string& reason) { RaiseWith(not_found_type, Reason(reason)); }

void RaiseClosed() { RaiseError("the content root is closed"); }

}  // namespace lumora::python
