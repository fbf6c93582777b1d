// A statement prepared once and run many times with bound values, as a command with parameters
// is: a value never becomes part of the statement's text, so a text holding an apostrophe is
// stored as it is and no value can change what the statement does. Parameters are the "?"
// placeholders of the statement, in order.
#pragma once

#include <lumora/platform/ado/engine.h>
#include <lumora/platform/ado/variant.h>

#include <memory>
#include <string_view>
#include <vector>

namespace lumora::ado {

class Connection;

class Command {
 public:
  // Prepares `sql` (UTF-8) on the open connection; raises the engine's error. The command must
  // go before the connection is closed.
  Command(const Connection& connection, std::string_view sql);

  // Runs the statement once with `parameters` bound in order (NULL, numbers, texts; a date as
  // its "YYYY/MM/DD HH:MM:SS" text); raises the engine's error, after which the command can
  // run again.
  void Execute(const std::vector<Variant>& parameters);

 private:
  void Bind(int position, const Variant& value);

  sqlite3* db_;
  std::unique_ptr<Statement> statement_;
};

}  // namespace lumora::ado
