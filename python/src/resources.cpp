// Resource handles and the lazy iteration over a discipline's resources.
#include <pybind11/pybind11.h>

#include "bindings.h"
#include "handles.h"
#include "to_python.h"

namespace py = pybind11;

namespace lumora::python {
namespace {

// How many resources iteration reads at once without the interpreter.
constexpr size_t kBatch = 64;

// Every resource of the chosen types in index order, handed out in batches read ahead. A type's
// ids are listed when iteration reaches it; a broken resource is handed out like any other and
// raises when it is read.
class ResourceIterator {
 public:
  ResourceIterator(const Discipline& discipline, std::vector<uint32_t> types,
                   ResourceOptions options)
      : state_(discipline.state),
        discipline_(discipline.summary.id),
        types_(std::move(types)),
        options_(options) {}

  ResourceHandle Next() {
    state_->Live();
    // Another thread's Next reads the batch without the interpreter: the batch is its alone.
    if (filling_) throw py::value_error("the iterator is already reading in another thread");
    if (next_ == batch_.size()) {
      filling_ = true;
      try {
        Fill();
      } catch (...) {
        filling_ = false;
        throw;
      }
      filling_ = false;
    }
    if (next_ == batch_.size()) throw py::stop_iteration();
    return std::move(batch_[next_++]);
  }

 private:
  void Fill() {
    const ContentRoot& root = state_->Live();
    batch_.clear();
    next_ = 0;
    while (batch_.size() < kBatch) {
      if (position_ == ids_.size()) {
        if (type_ == types_.size()) break;
        current_ = types_[type_++];
        const py::gil_scoped_release release;
        ids_ = root.ResourceIds(discipline_, current_);
        position_ = 0;
        continue;
      }
      batch_.push_back({state_, discipline_, current_, ids_[position_++], options_, {}});
    }
    ReadAll(batch_);
  }

  SharedRoot state_;
  uint32_t discipline_;
  std::vector<uint32_t> types_;
  ResourceOptions options_;
  size_t type_ = 0;
  uint32_t current_ = 0;
  std::vector<uint32_t> ids_;
  size_t position_ = 0;
  std::vector<ResourceHandle> batch_;
  size_t next_ = 0;
  bool filling_ = false;
};

py::object Field(ResourceHandle& handle, const char* key) {
  return ToPython(handle.Document().at(key));
}

}  // namespace

const Description& ResourceHandle::Document() {
  const ContentRoot& root = state->Live();
  if (!read) {
    Answer answer;
    {
      const py::gil_scoped_release release;
      answer = root.Resource(discipline, type, id, options);
    }
    if (!read) read = std::move(answer);
  }
  return state->Document(*read);
}

void ReadAll(std::vector<ResourceHandle>& handles) {
  const py::gil_scoped_release release;
  for (ResourceHandle& handle : handles) {
    if (!handle.read) {
      handle.read =
          handle.state->root->Resource(handle.discipline, handle.type, handle.id, handle.options);
    }
  }
}

py::object MakeIterator(const Discipline& discipline, std::vector<uint32_t> types,
                        ResourceOptions options) {
  return py::cast(ResourceIterator(discipline, std::move(types), options));
}

void RegisterResources(py::module_& module) {
  py::class_<ResourceIterator>(module, "ResourceIterator")
      .def("__iter__", [](py::object self) { return self; })
      .def("__next__", &ResourceIterator::Next);

  py::class_<ResourceHandle>(module, "Resource",
                             "One resource of a discipline; read when first asked.")
      .def_property_readonly("type",
                             [](const ResourceHandle& r) { return r.state->Live(), r.type; })
      .def_property_readonly("id", [](const ResourceHandle& r) { return r.state->Live(), r.id; })
      .def_property_readonly("discipline",
                             [](const ResourceHandle& r) { return r.state->Live(), r.discipline; })
      .def_property_readonly("course", [](ResourceHandle& r) { return Field(r, "course"); })
      .def_property_readonly("number", [](ResourceHandle& r) { return Field(r, "number"); })
      .def(
          "to_dict", [](ResourceHandle& r) { return ToPython(r.Document()); },
          "The resource as `lumora resource ... --json` prints it.")
      .def("__repr__", [](const ResourceHandle& r) {
        return "<lumora.Resource discipline " + std::to_string(r.discipline) + " type " +
               std::to_string(r.type) + " id " + std::to_string(r.id) + ">";
      });
}

}  // namespace lumora::python
