// `lumora disciplines ROOT [--json]`: every section of Content.ini, opened or not.
#include <lumora/lumora.h>

#include <nlohmann/json.hpp>

#include <cstdio>
#include <memory>

#include "commands.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string root;
  bool json = false;
};

nlohmann::ordered_json ValuesJson(const ByteArray& values) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (uint8_t v : values) list.push_back(v);
  return list;
}

void Run(const Options& options) {
  KeyedTable<DisciplineInfo> list;
  const bool ok = lmGetDisciplines(options.root.c_str(), &list);
  if (options.json) {
    nlohmann::ordered_json rows = nlohmann::ordered_json::array();
    for (uint32_t i = 0; i < list.size(); ++i) {
      const DisciplineInfo& info = *list.ObjectAt(i);
      rows.push_back({{"id", list.KeyAt(i)},
                      {"type", info.Type},
                      {"param", info.Param},
                      {"values", ValuesJson(info.values)}});
    }
    PrintJson(rows);
  } else {
    std::printf("%6s %4s %6s  %s\n", "id", "type", "param", "group keys");
    for (uint32_t i = 0; i < list.size(); ++i) {
      const DisciplineInfo& info = *list.ObjectAt(i);
      std::printf("%6u %4u %6d  %s\n", list.KeyAt(i), unsigned{info.Type}, info.Param,
                  ValuesJson(info.values).dump().c_str());
    }
  }
  if (!ok) throw CommandFailure("cannot read every discipline of " + options.root);
}

void AddDisciplinesCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("disciplines", "List the disciplines Content.ini configures");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_flag("--json", options->json, "Print JSON instead of a table");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"disciplines", &AddDisciplinesCommand};

}  // namespace
}  // namespace lumora::cli
