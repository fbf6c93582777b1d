// `lumora rebuild-index ROOT -d ID [--type T] [--out DIR | --in-place] [--json]`: rescans a
// discipline's resource files and writes its index files anew. Overwriting the discipline's own
// index files takes --in-place, so that a trial run never replaces them by accident.
#include <lumora/maintenance.h>

#include <nlohmann/json.hpp>

#include <cstdio>
#include <memory>
#include <optional>
#include <vector>

#include "commands.h"
#include "content_args.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string root;
  uint32_t discipline = 0;
  std::optional<uint32_t> type;
  std::string out;
  bool inPlace = false;
  bool json = false;
};

std::string IndexFolder(const Options& options, const DisciplineSummary& discipline) {
  if (options.out.empty()) return discipline.dataFolder;
  // The rebuild creates the folder.
  return options.out.back() == '/' ? options.out : options.out + '/';
}

nlohmann::ordered_json Described(const RebuiltIndex& rebuilt) {
  return {{"type", rebuilt.type},
          {"ok", rebuilt.built},
          {"groups", rebuilt.groups},
          {"entries", rebuilt.entries}};
}

// In place, every index file is replaced in one commit; elsewhere each is written on its own.
std::vector<RebuiltIndex> RebuildAll(const Options& options, const DisciplineSummary& discipline,
                                     const std::string& folder) {
  std::vector<uint32_t> types;
  for (uint32_t type : ExerciseTypeNumbers()) {
    if (!options.type || *options.type == type) types.push_back(type);
  }
  std::vector<RebuiltIndex> results;
  const Status rebuilt =
      RebuildIndexes(discipline.localRoot, folder, types, options.inPlace, &results);
  if (!rebuilt.ok()) throw CommandFailure(rebuilt.reason);
  return results;
}

void Run(const Options& options) {
  if (options.type && !IsExerciseType(*options.type)) {
    throw CommandFailure("not an exercise type: " + std::to_string(*options.type));
  }
  OpenedContent content(options.root, 0);
  const DisciplineSummary discipline = DisciplineFor(options.discipline);
  const std::string folder = IndexFolder(options, discipline);

  nlohmann::ordered_json results = nlohmann::ordered_json::array();
  bool all_ok = true;
  for (const RebuiltIndex& rebuilt : RebuildAll(options, discipline, folder)) {
    results.push_back(Described(rebuilt));
    all_ok = all_ok && rebuilt.built;
  }
  if (options.json) {
    PrintJson(results);
  } else {
    for (const auto& r : results) {
      std::printf("type %u: %s, %u groups, %zu entries\n", r["type"].get<uint32_t>(),
                  r["ok"] == true ? "rebuilt" : "failed", r["groups"].get<uint32_t>(),
                  r["entries"].get<size_t>());
    }
  }
  if (!all_ok) throw CommandFailure("some index files could not be rebuilt in " + folder);
}

void AddRebuildIndexCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command =
      app.add_subcommand("rebuild-index", "Rescan a discipline's resources and rewrite its index");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("-d,--discipline", options->discipline, "Discipline identifier")->required();
  command->add_option("--type", options->type, "Rebuild only this exercise type");
  auto* out = command->add_option("--out", options->out, "Write the index files into DIR");
  command->add_flag("--in-place", options->inPlace, "Overwrite the discipline's own index files")
      ->excludes(out);
  command->add_flag("--json", options->json, "Print JSON instead of text");
  command->callback([options] {
    if (options->out.empty() && !options->inPlace) {
      throw CLI::ValidationError("rebuild-index", "give --out DIR, or --in-place to overwrite");
    }
    Run(*options);
  });
}

const CommandRegistration reg{"rebuild-index", &AddRebuildIndexCommand};

}  // namespace
}  // namespace lumora::cli
