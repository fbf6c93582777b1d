// The glossary and grammar of a discipline, each answer the tool's document.
#include <pybind11/pybind11.h>

#include "arguments.h"
#include "bindings.h"
#include "handles.h"
#include "to_python.h"

namespace py = pybind11;

namespace lumora::python {
namespace {

// The document of `ask(root)`, asked without the interpreter when `slow`.
template <typename Ask>
py::object Answered(const LexiconView& view, Ask ask, bool slow = false) {
  const ContentRoot& root = view.state->Live();
  if (!slow) return ToPython(view.state->Document(ask(root)));
  Answer answer;
  {
    const py::gil_scoped_release release;
    answer = ask(root);
  }
  return ToPython(view.state->Document(answer));
}

void RegisterGlossary(py::module_& module) {
  py::class_<Glossary>(module, "Glossary", "The glossary of a discipline.")
      .def(
          "find",
          [](const Glossary& g, const std::string& text, bool prefix, bool needCode) {
            return Answered(
                g,
                [&](const ContentRoot& root) {
                  return root.FindWords(g.discipline, text, prefix, needCode);
                },
                true);
          },
          py::arg("text"), py::arg("prefix") = false, py::arg("need_code") = false)
      .def(
          "word",
          [](const Glossary& g, int64_t fnId, const std::string& pathKind, int64_t quality) {
            const uint32_t id = Unsigned32(fnId, "fn_id");
            const uint32_t kind = PathKindNamed(pathKind, true);
            const uint8_t folder = InRange(quality, 0, 255, "quality");
            return Answered(g, [&](const ContentRoot& root) {
              return root.GlossaryWord(g.discipline, id, kind, folder);
            });
          },
          py::arg("fn_id"), py::arg("path_kind") = "local", py::arg("quality") = 1)
      .def("letters", [](const Glossary& g) {
        return Answered(
            g, [&](const ContentRoot& root) { return root.GlossaryLetters(g.discipline); });
      });
}

void RegisterGrammar(py::module_& module) {
  py::class_<Grammar>(module, "Grammar", "The grammar of a discipline.")
      .def(
          "point",
          [](const Grammar& g, int64_t point) {
            const uint32_t number = Unsigned32(point, "point");
            return Answered(g, [&](const ContentRoot& root) {
              return root.GrammarPoint(g.discipline, number);
            });
          },
          py::arg("point"))
      .def(
          "find",
          [](const Grammar& g, const std::string& text, int64_t language) {
            const uint8_t code = InRange(language, 0, 255, "language");
            return Answered(
                g,
                [&](const ContentRoot& root) {
                  return root.FindGrammarPoints(g.discipline, text, code);
                },
                true);
          },
          py::arg("text"), py::arg("language"))
      .def(
          "levels",
          [](const Grammar& g, int64_t first, int64_t second) {
            const uint32_t a = Unsigned32(first, "first");
            const uint32_t b = Unsigned32(second, "second");
            return Answered(
                g, [&](const ContentRoot& root) { return root.GrammarLevels(g.discipline, a, b); });
          },
          py::arg("first") = 0, py::arg("second") = 0)
      .def(
          "categories",
          [](const Grammar& g, int64_t first, int64_t second) {
            const uint32_t a = Unsigned32(first, "first");
            const uint32_t b = Unsigned32(second, "second");
            return Answered(g, [&](const ContentRoot& root) {
              return root.GrammarCategories(g.discipline, a, b);
            });
          },
          py::arg("first") = 0, py::arg("second") = 0);
}

}  // namespace

void RegisterLexicon(py::module_& module) {
  RegisterGlossary(module);
  RegisterGrammar(module);
}

}  // namespace lumora::python
