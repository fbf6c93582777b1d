// The module's exceptions, and the one place where a Status of the library becomes one.
#pragma once

#include <lumora/content.h>
#include <pybind11/pybind11.h>

#include <string>

namespace lumora::python {

// Defines Error, ContentError and NotFoundError in the module.
void RegisterErrors(pybind11::module_& module);

// Raises the exception that says what `status` says: ContentError for a file that cannot be
// read, NotFoundError (a KeyError) for what is not there, ValueError for a bad value, Error for
// the rest. `closed` turns every failure into the Error of a closed root: the face answers "not
// found" once its root is closed.
[[noreturn]] void Raise(const Status& status, bool closed = false);
[[noreturn]] void RaiseError(const std::string& reason);
[[noreturn]] void RaiseNotFound(const std::string& reason);
[[noreturn]] void RaiseClosed();

}  // namespace lumora::python
