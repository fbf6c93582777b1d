#include <diagnosis/diagnosis.h>

CLessonsData* CDiagnosisInt::NewLessonsData() { return new CLessonsData(); }

CTestableData* CDiagnosisInt::NewTestableData() { return new CTestableData(); }

CLessonsData* CDiagnosisInt::DeleteLessonsData(CLessonsData* lessons) {
  delete lessons;
  return nullptr;
}

CTestableData* CDiagnosisInt::DeleteTestableData(CTestableData* testable) {
  delete testable;
  return nullptr;
}

bool CDiagnosisInt::IsValidForUser(std::string contentFolder, const CLessonsData* lessons,
                                   uint8_t user, uint8_t /*reserved1*/, uint8_t /*reserved2*/) {
  return lessons != nullptr && lessons->loaded() && lessons->user() == user &&
         lessons->contentFolder() == contentFolder;
}
