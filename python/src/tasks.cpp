// The work on a whole content root that needs no open root: the check and the sample writer.
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>

#include "arguments.h"
#include "bindings.h"
#include "errors.h"
#include "progress.h"
#include "to_python.h"

namespace py = pybind11;

namespace lumora::python {
namespace {

py::object Check(const std::string& root, int64_t discipline, const py::object& checks,
                 const py::iterable& quality, const py::object& progress, bool fixCase) {
  CheckRequest request;
  request.discipline = Unsigned32(discipline, "discipline");
  if (!checks.is_none()) {
    if (py::isinstance<py::str>(checks)) throw py::type_error("checks is a list of names");
    request.checks = checks.cast<std::vector<std::string>>();
  }
  request.quality = QualityFolders(quality);
  request.fixCase = fixCase;
  PythonProgress reports(progress);
  Answer answer;
  {
    const py::gil_scoped_release release;
    answer = CheckContent(root, request, reports.function());
  }
  reports.RaiseIfFailed();
  if (answer.status.code == StatusCode::kNotFound) {
    PyErr_SetObject(PyExc_FileNotFoundError,
                    py::make_tuple(ENOENT, answer.status.reason, root + "/Content.ini").ptr());
    throw py::error_already_set();
  }
  if (!answer.ok()) Raise(answer.status);
  return ToPython(answer.document);
}

void Sample(const std::string& dir, int64_t scale) {
  Status status;
  {
    const py::gil_scoped_release release;
    status = WriteSample(dir, static_cast<int>(std::clamp<int64_t>(scale, INT32_MIN, INT32_MAX)));
  }
  if (!status.ok()) Raise(status);
}

}  // namespace

void RegisterTasks(py::module_& module) {
  module.def("check", &Check, py::arg("root"), py::arg("discipline") = 0,
             py::arg("checks") = py::none(), py::arg("quality") = py::make_tuple(1, 2, 3),
             py::arg("progress") = py::none(), py::arg("fix_case") = false,
             "The integrity check of a content root, as `lumora check --json` answers it.");
  module.def("sample", &Sample, py::arg("dir"), py::arg("scale") = 1,
             "Writes the sample content root into dir.");
}

}  // namespace lumora::python
