// A discipline of the open root: what it is, its resources, media, index, packages and export.
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include "arguments.h"
#include "bindings.h"
#include "handles.h"
#include "progress.h"
#include "to_python.h"

namespace py = pybind11;

namespace lumora::python {
namespace {

ResourceOptions ReadingOptions(const std::string& pathKind, int64_t order) {
  ResourceOptions options;
  options.pathKind = PathKindNamed(pathKind);
  options.order = InRange(order, 1, 3, "order");
  return options;
}

py::object Resources(const Discipline& d, const py::object& type, const std::string& pathKind) {
  const ResourceOptions options = ReadingOptions(pathKind, 1);
  std::vector<uint32_t> types = d.Live().types;
  if (const std::optional<uint32_t> only = OptionalUnsigned32(type, "type")) types = {*only};
  return MakeIterator(d, std::move(types), options);
}

ResourceHandle Resource(const Discipline& d, int64_t type, int64_t id, const std::string& pathKind,
                        int64_t order) {
  d.Live();
  return {d.state,
          d.summary.id,
          Unsigned32(type, "type"),
          Unsigned32(id, "id"),
          ReadingOptions(pathKind, order),
          {}};
}

py::object MediaPath(const Discipline& d, int64_t kind, int64_t folder, int64_t resource,
                     const std::string& pathKind, int64_t order) {
  const MediaRef media(InRange(kind, 1, 3, "kind"), Unsigned32(folder, "folder"),
                       Unsigned32(resource, "resource"));
  const uint32_t path_kind = PathKindNamed(pathKind);
  const uint8_t quality = InRange(order, 1, 3, "order");
  const ContentRoot& root = d.state->Live();
  const std::optional<std::string> path = root.MediaPath(d.summary.id, media, path_kind, quality);
  if (!path) return py::none();
  return FromNarrow(*path);
}

py::object Index(const Discipline& d, const py::object& type) {
  const std::optional<uint32_t> only = OptionalUnsigned32(type, "type");
  const ContentRoot& root = d.state->Live();
  return ToPython(d.state->Document(root.Index(d.summary.id, only)));
}

py::object Export(const Discipline& d, const std::vector<int64_t>& packages,
                  const std::string& destination, const py::iterable& quality,
                  const py::object& progress, bool check) {
  ExportRequest request;
  for (int64_t id : packages) request.packages.push_back(Unsigned32(id, "a package"));
  request.quality = QualityFolders(quality);
  request.destination = destination;
  request.check = check;
  PythonProgress reports(progress);
  const ContentRoot& root = d.state->Live();
  Answer answer;
  {
    const py::gil_scoped_release release;
    answer = root.Export(d.summary.id, request, reports.function());
  }
  reports.RaiseIfFailed();
  return ToPython(d.state->Document(answer));
}

}  // namespace

void RegisterDiscipline(py::module_& module) {
  py::class_<Discipline>(module, "Discipline", "A discipline of the open content root.")
      .def_property_readonly("id", [](const Discipline& d) { return d.Live().id; })
      .def_property_readonly("language", [](const Discipline& d) { return d.Live().language; })
      .def_property_readonly("types", [](const Discipline& d) { return d.Live().types; })
      .def_property_readonly("local_root",
                             [](const Discipline& d) { return FromNarrow(d.Live().localRoot); })
      .def_property_readonly("url_root",
                             [](const Discipline& d) { return FromNarrow(d.Live().urlRoot); })
      .def_property_readonly("unc_root",
                             [](const Discipline& d) { return FromNarrow(d.Live().uncRoot); })
      .def_property_readonly("data_folder",
                             [](const Discipline& d) { return FromNarrow(d.Live().dataFolder); })
      .def_property_readonly("glossary",
                             [](const Discipline& d) {
                               d.Live();
                               return Glossary{{d.state, d.summary.id}};
                             })
      .def_property_readonly("grammar",
                             [](const Discipline& d) {
                               d.Live();
                               return Grammar{{d.state, d.summary.id}};
                             })
      .def(
          "resource_ids",
          [](const Discipline& d, int64_t type) {
            return d.state->Live().ResourceIds(d.summary.id, Unsigned32(type, "type"));
          },
          py::arg("type"))
      .def("resources", &Resources, py::arg("type") = py::none(), py::arg("path_kind") = "url")
      .def("resource", &Resource, py::arg("type"), py::arg("id"), py::arg("path_kind") = "url",
           py::arg("order") = 1)
      .def("media_path", &MediaPath, py::arg("kind"), py::arg("folder"), py::arg("resource"),
           py::arg("path_kind") = "url", py::arg("order") = 1)
      .def("index", &Index, py::arg("type") = py::none())
      .def("packages",
           [](const Discipline& d) {
             return ToPython(d.state->Document(d.state->Live().Packages(d.summary.id)));
           })
      .def("export", &Export, py::arg("packages"), py::arg("to"),
           py::arg("quality") = py::make_tuple(1, 2, 3), py::arg("progress") = py::none(),
           py::arg("check") = true)
      .def("__repr__", [](const Discipline& d) {
        return "<lumora.Discipline " + std::to_string(d.summary.id) + ">";
      });
}

}  // namespace lumora::python
