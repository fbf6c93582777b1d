#include <lumora/platform/ado/command.h>
#include <lumora/platform/ado/connection.h>
#include <lumora/platform/ado/error.h>

#include <sqlite3.h>

#include <string>

namespace lumora::ado {
namespace {

constexpr const char* kCommandSource = "ADODB.Command";

}  // namespace

Command::Command(const Connection& connection, std::string_view sql)
    : db_(connection.handle()), statement_(std::make_unique<Statement>(db_, sql, kCommandSource)) {}

void Command::Bind(int position, const Variant& value) {
  sqlite3_stmt* stmt = statement_->get();
  int rc = SQLITE_OK;
  switch (value.type()) {
    case VarType::kNull:
      rc = sqlite3_bind_null(stmt, position);
      break;
    case VarType::kI4:
    case VarType::kUI1:
      rc = sqlite3_bind_int(stmt, position, value.ToI4());
      break;
    case VarType::kDate:
    case VarType::kBstr: {
      const std::u16string text = value.ToBstr();
      rc = sqlite3_bind_text16(stmt, position, text.data(),
                               static_cast<int>(text.size() * sizeof(char16_t)), SQLITE_TRANSIENT);
      break;
    }
  }
  if (rc != SQLITE_OK) throw EngineError(db_, rc, kCommandSource);
}

void Command::Execute(const std::vector<Variant>& parameters) {
  sqlite3_stmt* stmt = statement_->get();
  sqlite3_reset(stmt);
  sqlite3_clear_bindings(stmt);
  for (size_t i = 0; i < parameters.size(); ++i) Bind(static_cast<int>(i + 1), parameters[i]);
  while (statement_->Step()) {
  }
}

}  // namespace lumora::ado
