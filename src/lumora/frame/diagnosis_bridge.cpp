#include <lumora/frame/boundary.h>
#include <lumora/frame/library_state.h>
#include <lumora/lumora.h>

#include <diagnosis/diagnosis.h>

namespace lumora {
namespace {

// The diagnosis library knows a discipline by the low byte of its Param, the same value the
// glossary takes as its language.
uint8_t DiagnosisParam(const Discipline& discipline) {
  return static_cast<uint8_t>(discipline.info.Param);
}

// Both loads of one discipline; a discipline whose objects were not made has nothing to load
// and counts as two failed loads.
uint32_t LoadDiagnosisData(Discipline& discipline, uint8_t user) {
  uint32_t loaded = 0;
  if (discipline.lessons &&
      discipline.lessons->Load(DiagnosisParam(discipline), discipline.localRoot, user,
                               &discipline.glossary, &discipline.grammar)) {
    ++loaded;
  }
  if (discipline.testable &&
      discipline.testable->Load(discipline.localRoot, &discipline.glossary, &discipline.grammar)) {
    ++loaded;
  }
  return loaded;
}

// Every matching discipline is loaded even after a failure; the answer only tells whether all
// loads succeeded. With checkOnly the first matching discipline answers alone.
bool OpenDiagData(uint32_t discipline_id, uint8_t user, bool check_only) {
  KeyedTable<Discipline>& registry = Library().registry;
  uint32_t loaded = 0;
  for (uint32_t i = 0; i < registry.size(); ++i) {
    Discipline* discipline = registry.ObjectAt(i);
    if (discipline == nullptr) continue;
    if (discipline_id != 0 && registry.KeyAt(i) != discipline_id) continue;
    if (check_only) {
      return CDiagnosisInt::IsValidForUser(discipline->localRoot, discipline->lessons, user, 0, 0);
    }
    loaded += LoadDiagnosisData(*discipline, user);
  }
  const uint32_t expected = discipline_id == 0 ? 2 * registry.size() : 2;
  return loaded == expected;
}

void CloseDiagData() {
  KeyedTable<Discipline>& registry = Library().registry;
  for (uint32_t i = 0; i < registry.size(); ++i) {
    Discipline* discipline = registry.ObjectAt(i);
    if (discipline == nullptr) continue;
    if (discipline->lessons) discipline->lessons->Reset();
    if (discipline->testable) discipline->testable->Reset();
  }
}

Discipline* RequestedDiscipline(const ContentRequest* request) {
  return request ? FindDiscipline(request->disciplineId) : nullptr;
}

}  // namespace
}  // namespace lumora

bool lmOpenDiagData(uint32_t disciplineId, uint8_t user, bool checkOnly) {
  return lumora::Guarded(false,
                         [&] { return lumora::OpenDiagData(disciplineId, user, checkOnly); });
}

bool lmCloseDiagData() {
  lumora::Guarded([] { lumora::CloseDiagData(); });
  return true;
}

CLessonsData* lmGetDiagLessonsData(const lumora::ContentRequest* request) {
  return lumora::Guarded<CLessonsData*>(nullptr, [&]() -> CLessonsData* {
    lumora::Discipline* discipline = lumora::RequestedDiscipline(request);
    return discipline ? discipline->lessons : nullptr;
  });
}

CTestableData* lmGetDiagTestableData(const lumora::ContentRequest* request) {
  return lumora::Guarded<CTestableData*>(nullptr, [&]() -> CTestableData* {
    lumora::Discipline* discipline = lumora::RequestedDiscipline(request);
    return discipline ? discipline->testable : nullptr;
  });
}
