// lumora.open and the open content root: its disciplines and its classification.
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <cerrno>
#include <filesystem>

#include "arguments.h"
#include "bindings.h"
#include "handles.h"
#include "to_python.h"

namespace py = pybind11;

namespace lumora::python {
namespace {

// The Python object of an open root. Its state is shared with everything taken from it.
struct Root {
  SharedRoot state;
};

// A folder without Content.ini is a FileNotFoundError, as opening a missing file is.
[[noreturn]] void RaiseOpenFailure(const std::string& path, const Status& status) {
  std::error_code error;
  if (status.code == StatusCode::kNotFound &&
      !std::filesystem::is_regular_file(std::filesystem::path(path) / "Content.ini", error)) {
    PyErr_SetObject(PyExc_FileNotFoundError,
                    py::make_tuple(ENOENT, status.reason, path + "/Content.ini").ptr());
    throw py::error_already_set();
  }
  if (status.code == StatusCode::kNotFound) RaiseError(status.reason);
  Raise(status);
}

Root Open(const std::string& path, int64_t discipline, bool databases) {
  OpenOptions options;
  options.discipline = Unsigned32(discipline, "discipline");
  options.databases = databases;
  Status status;
  auto state = std::make_shared<RootState>();
  {
    const py::gil_scoped_release release;
    state->root = ContentRoot::Open(path, options, &status);
  }
  if (!state->root) RaiseOpenFailure(path, status);
  return {std::move(state)};
}

void Close(const Root& root) {
  const py::gil_scoped_release release;
  root.state->root->Close();
}

Discipline DisciplineOf(const Root& root, int64_t id) {
  const uint32_t number = Unsigned32(id, "discipline");
  std::optional<DisciplineSummary> summary = root.state->Live().Discipline(number);
  if (!summary) RaiseNotFound("discipline " + std::to_string(number) + " is not open");
  return {root.state, std::move(*summary)};
}

std::vector<Discipline> Disciplines(const Root& root) {
  std::vector<Discipline> disciplines;
  for (DisciplineSummary& summary : root.state->Live().Disciplines()) {
    disciplines.push_back({root.state, std::move(summary)});
  }
  return disciplines;
}

}  // namespace

void RegisterRoot(py::module_& module) {
  py::class_<Root>(module, "Root", "An open content root; lumora.open gives it.")
      .def_property_readonly("path", [](const Root& r) { return r.state->root->root(); })
      .def_property_readonly("closed", [](const Root& r) { return !r.state->root->open(); })
      .def_property_readonly("disciplines", &Disciplines)
      .def("discipline", &DisciplineOf, py::arg("id"))
      .def("classification",
           [](const Root& r) {
             return ToPython(r.state->Document(r.state->Live().Classification()));
           })
      .def("close", &Close)
      .def("__enter__", [](py::object self) { return self; })
      .def("__exit__", [](const Root& r, const py::args&) { Close(r); })
      .def("__repr__", [](const Root& r) {
        return "<lumora.Root " + r.state->root->root() + (r.state->root->open() ? "" : " closed") +
               ">";
      });
  module.def("open", &Open, py::arg("root"), py::arg("discipline") = 0,
             py::arg("databases") = false,
             "Opens a content root; one root is open in a process at a time.");
}

}  // namespace lumora::python
