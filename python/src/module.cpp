// lumora._lumora: the library's content face for Python scripts.
#include <lumora/lumora.h>

#include "bindings.h"
#include "errors.h"

PYBIND11_MODULE(_lumora, module) {
  module.doc() = "Read, check and export the content of a language course.";
  module.attr("__version__") = lumora_version();
  lumora::python::RegisterErrors(module);
  lumora::python::RegisterResources(module);
  lumora::python::RegisterLexicon(module);
  lumora::python::RegisterDiscipline(module);
  lumora::python::RegisterRoot(module);
  lumora::python::RegisterTasks(module);
}
