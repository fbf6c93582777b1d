// Everything the library holds for one open discipline: its roots and data folder, its
// description record, glossary and grammar, a copy of its description entries, its resource
// index and its package database. The host shares the layout, so the members keep this order;
// reverse declaration order is also the order in which the destructor releases them.
#pragma once

#include <lumora/frame/discipline_info.h>
#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/grammar.h>
#include <lumora/packages/database_connection.h>
#include <lumora/platform/keyed_table.h>
#include <lumora/platform/load_result.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/support/profile_file.h>

#include <diagnosis/diagnosis.h>

#include <memory>
#include <string>

namespace lumora {

class Classification;

// What loading a discipline's glossary and grammar came to: each fails at its first table that
// does not load.
struct LexiconLoadResult {
  LoadResult glossary;
  LoadResult grammar;
};

class Discipline : public Object {
 public:
  Discipline() = default;
  // Hands the diagnosis objects back to the diagnosis library first, keeping what it gives in
  // their place; the members then go in reverse declaration order.
  ~Discipline() override;
  const char* ClassName() const override { return "Discipline"; }

  // The part of opening that every configured section gets, with `ini` in the discipline's
  // section: Type and Param, the three roots (each falling back to content_root + folder),
  // the data folder below common_local, the resource index and the description entries.
  void Open(ProfileFile& ini, const std::string& content_root, const std::string& common_local,
            const std::string& folder);
  // The rest, for a discipline that stays open: glossary and grammar from course 0 below the
  // local root, the glossary pointed at `classification` and given the language of Param.
  LexiconLoadResult LoadLexicon(Classification& classification);
  // The empty lessons and testable objects of the diagnosis library, loaded on the host's
  // request.
  void MakeDiagnosisData();

  // Made by the open with databases; closed and released by the close before the discipline
  // itself goes.
  std::unique_ptr<DatabaseConnection> database;
  DisciplineInfo info;
  std::string localRoot;
  std::string uncRoot;
  std::string urlRoot;
  std::string dataFolder;
  CGloV6 glossary;
  CGramV6 grammar;
  KeyedTable<Type2000Entry> type2000Table;
  // Released by the close (or the drop of a discipline that is not opened) before the
  // discipline itself goes.
  std::unique_ptr<ResourceIndex> resourceIndex;
  ::CLessonsData* lessons = nullptr;
  ::CTestableData* testable = nullptr;
};

}  // namespace lumora
