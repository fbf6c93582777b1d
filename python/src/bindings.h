// The classes and functions of the module, one group per file.
#pragma once

#include <pybind11/pybind11.h>

namespace lumora::python {

void RegisterRoot(pybind11::module_& module);
void RegisterDiscipline(pybind11::module_& module);
void RegisterResources(pybind11::module_& module);
void RegisterLexicon(pybind11::module_& module);
void RegisterTasks(pybind11::module_& module);

}  // namespace lumora::python
