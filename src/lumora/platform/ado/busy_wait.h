// A database file that another program keeps locked is waited for as a held file is
// (RetryWhileHeld's settings): the engine retries every few milliseconds, the user is told
// through Notify after each attempt period, and after the last one the statement fails with the
// engine's "database is locked".
#pragma once

#include <string>

struct sqlite3;

namespace lumora::ado {

// Installs the wait on `db`; `file` names the database in what the user is told, and must live
// as long as the connection.
void WaitWhileLockedElsewhere(sqlite3* db, const std::string& file);

}  // namespace lumora::ado
