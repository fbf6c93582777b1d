#include <lumora/frame/content_config.h>
#include <lumora/frame/discipline.h>
#include <lumora/resources/type2000_index.h>

namespace lumora {

Discipline::~Discipline() {
  if (lessons) lessons = CDiagnosisInt::DeleteLessonsData(lessons);
  if (testable) testable = CDiagnosisInt::DeleteTestableData(testable);
}

void Discipline::Open(ProfileFile& ini, const std::string& content_root,
                      const std::string& common_local, const std::string& folder) {
  ReadTypeAndParam(ini, info);
  const std::string fallback = content_root + folder;
  localRoot = ValueOr(ReadFolder(ini, "Local"), fallback);
  uncRoot = ValueOr(ReadUncFolder(ini), fallback);
  urlRoot = ValueOr(ini.GetString("URL"), fallback);
  dataFolder = common_local + folder;
  resourceIndex = std::make_unique<ResourceIndex>(dataFolder);
  if (auto* descriptions = dynamic_cast<Type2000Index*>(resourceIndex->FindType(2000))) {
    descriptions->CollectGroupKeys(info.values);
    descriptions->CopyEntries(0, type2000Table);
  }
}

LexiconLoadResult Discipline::LoadLexicon(Classification& classification) {
  // A missing glossary or grammar leaves it empty; queries then find nothing in it.
  LexiconLoadResult loaded;
  loaded.glossary = glossary.LoadWithReason(LexiconFolder(localRoot, 1001));
  if (glossary.classification == nullptr) glossary.classification = &classification;
  glossary.language = static_cast<uint8_t>(info.Param);
  loaded.grammar = grammar.LoadWithReason(LexiconFolder(localRoot, 1002));
  return loaded;
}

void Discipline::MakeDiagnosisData() {
  lessons = CDiagnosisInt::NewLessonsData();
  testable = CDiagnosisInt::NewTestableData();
}

}  // namespace lumora
