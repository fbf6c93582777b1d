// `lumora languages [--json]`: the language table, one row per language number.
#include <lumora/maintenance.h>

#include <nlohmann/json.hpp>

#include <cstdio>
#include <memory>

#include "commands.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

void PrintRowsJson() {
  nlohmann::ordered_json rows = nlohmann::ordered_json::array();
  for (const LanguageRowInfo& row : LanguageTable()) {
    rows.push_back({{"number", row.number},
                    {"name", row.name},
                    {"code", row.code},
                    {"charset", row.charset},
                    {"leftToRight", row.leftToRight},
                    {"codePage", row.codePage},
                    {"langId", row.langId}});
  }
  PrintJson(rows);
}

void PrintTable() {
  std::printf("%-6s %-16s %-4s %7s %3s %8s %6s\n", "number", "name", "code", "charset", "ltr",
              "codepage", "langid");
  for (const LanguageRowInfo& row : LanguageTable()) {
    std::printf("%6u %-16s %-4s %7u %3u %8u 0x%04X\n", row.number, row.name.c_str(),
                row.code.c_str(), row.charset, row.leftToRight, row.codePage, row.langId);
  }
}

void AddLanguagesCommand(CLI::App& app) {
  auto* command = app.add_subcommand("languages", "List the language table");
  auto json = std::make_shared<bool>(false);
  command->add_flag("--json", *json, "Print JSON instead of a table");
  command->callback([json] { *json ? PrintRowsJson() : PrintTable(); });
}

const CommandRegistration reg{"languages", &AddLanguagesCommand};

}  // namespace
}  // namespace lumora::cli
