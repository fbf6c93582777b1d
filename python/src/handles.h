// The objects a script gets from an open root. Each keeps the root's state alive and asks it
// whether the root is still open before it answers.
#pragma once

#include <lumora/content.h>
#include <pybind11/pybind11.h>

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "root_state.h"

namespace lumora::python {

struct Discipline {
  SharedRoot state;
  DisciplineSummary summary;

  const DisciplineSummary& Live() const {
    state->Live();
    return summary;
  }
};

// One resource of a discipline. It is read once, the first time it is asked for anything that
// needs its file (or in a batch before iteration hands it out).
struct ResourceHandle {
  SharedRoot state;
  uint32_t discipline = 0;
  uint32_t type = 0;
  uint32_t id = 0;
  ResourceOptions options;
  std::optional<Answer> read;

  // The resource's document, read (without the interpreter) if it was not yet.
  const Description& Document();
};

// Reads the resources of `handles` that are not yet read, without the interpreter.
void ReadAll(std::vector<ResourceHandle>& handles);

// An iterator of ResourceHandle over the resources of `types`, in that order and each type's
// index order.
pybind11::object MakeIterator(const Discipline& discipline, std::vector<uint32_t> types,
                              ResourceOptions options);

struct LexiconView {
  SharedRoot state;
  uint32_t discipline = 0;
};
struct Glossary : LexiconView {};
struct Grammar : LexiconView {};

}  // namespace lumora::python
