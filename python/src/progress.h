// A Python callable `progress(done, total)` as the library's progress function. The call that
// runs the work releases the interpreter; each report takes it back for the callable. An
// exception the callable raises stops the work and is raised again from the call.
#pragma once

#include <lumora/content.h>
#include <pybind11/pybind11.h>

#include <exception>

namespace lumora::python {

class PythonProgress {
 public:
  // `callback` is None or a callable; anything else is a TypeError.
  explicit PythonProgress(pybind11::object callback);
  PythonProgress(const PythonProgress&) = delete;
  PythonProgress& operator=(const PythonProgress&) = delete;

  // Empty for None. Valid while this object lives.
  ProgressFunction function();
  // Raises what the callable raised, if it did. With the interpreter held.
  void RaiseIfFailed();

 private:
  bool Report(uint64_t done, uint64_t total);

  pybind11::object callback_;
  std::exception_ptr failure_;
};

}  // namespace lumora::python
