// What the library keeps between calls: the registry of open disciplines, the common roots of
// the last open (kept across closes) and the classification shared by every discipline. One
// instance for the process; the host calls in from one thread at a time, so nothing locks.
#pragma once

#include <lumora/frame/discipline.h>
#include <lumora/lexicon/classification.h>
#include <lumora/platform/keyed_table.h>
#include <lumora/platform/load_result.h>

#include <cstdint>
#include <map>
#include <string>

namespace lumora {

struct LibraryState {
  KeyedTable<Discipline> registry;
  std::string commonLocal;
  std::string commonUNC;
  std::string commonURL;
  Classification classification;
  // Why the last open's loads failed, kept for tools to tell; emptied by the close. By
  // discipline identifier, for the discipline that lookups by that identifier find.
  std::map<uint32_t, LexiconLoadResult> lexiconLoads;
  LoadResult classificationLoad;
};

LibraryState& Library();

// The first registered discipline with identifier `id`, or null.
Discipline* FindDiscipline(uint32_t id);

// The root a request's path kind selects: URL root for 1, UNC root for 2, the Local root for
// 0 and any other value.
const std::string& ChosenRoot(const Discipline& discipline, uint32_t path_kind);

}  // namespace lumora
