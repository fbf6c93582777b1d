#include "progress.h"

namespace py = pybind11;

namespace lumora::python {

PythonProgress::PythonProgress(py::object callback) : callback_(std::move(callback)) {
  if (!callback_.is_none() && !PyCallable_Check(callback_.ptr())) {
    throw py::type_error("progress must be a callable progress(done, total) or None");
  }
}

ProgressFunction PythonProgress::function() {
  if (callback_.is_none()) return {};
  return [this](uint64_t done, uint64_t total) { return Report(done, total); };
}

bool PythonProgress::Report(uint64_t done, uint64_t total) {
  const py::gil_scoped_acquire gil;
  if (failure_) return false;
  try {
    callback_(done, total);
    return true;
  } catch (...) {
    failure_ = std::current_exception();
    return false;
  }
}

void PythonProgress::RaiseIfFailed() {
  if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
}

}  // namespace lumora::python
