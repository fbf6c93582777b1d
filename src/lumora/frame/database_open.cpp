#include <lumora/frame/boundary.h>
#include <lumora/frame/library_state.h>
#include <lumora/lumora.h>

#include <memory>

namespace lumora {
namespace {

std::string ConnectionStringFor(const Discipline& discipline) {
  return "DRIVER={Microsoft Access Driver (*.mdb)};DBQ=" + discipline.dataFolder + "Content.mdb";
}

// Connects the registered disciplines in registry order and stops at the first database that
// does not open: that discipline is left without one, later ones are not tried, earlier ones
// keep theirs, and the registry stays open.
bool ConnectDatabases() {
  KeyedTable<Discipline>& registry = Library().registry;
  for (uint32_t i = 0; i < registry.size(); ++i) {
    Discipline* discipline = registry.ObjectAt(i);
    if (discipline == nullptr) continue;
    if (discipline->database != nullptr) discipline->database->Close();
    discipline->database = std::make_unique<DatabaseConnection>();
    if (!discipline->database->Open(ConnectionStringFor(*discipline), "", "", 0)) {
      discipline->database.reset();
      return false;
    }
  }
  return true;
}

}  // namespace
}  // namespace lumora

bool lmOpen_Database(const char* contentRoot, uint32_t disciplineFilter) {
  return lumora::Guarded(
      false, [&] { return lmOpen(contentRoot, disciplineFilter) && lumora::ConnectDatabases(); });
}
