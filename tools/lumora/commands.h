// Each subcommand of the tool lives in its own file and registers itself here through a
// static CommandRegistration; main() adds them in name order. A command's callback runs after
// parsing; it prints its result and reports failure by throwing CommandFailure.
#pragma once

#include <CLI/CLI.hpp>

#include <map>
#include <stdexcept>
#include <string>

namespace lumora::cli {

// A failure the user should read on one line (exit code 1).
class CommandFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

using CommandAdder = void (*)(CLI::App& app);

std::map<std::string, CommandAdder>& RegisteredCommands();

struct CommandRegistration {
  CommandRegistration(const char* name, CommandAdder adder) {
    RegisteredCommands().emplace(name, adder);
  }
};

}  // namespace lumora::cli
