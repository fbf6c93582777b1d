// `lumora rebuild-index ROOT -d ID [--type T] [--out DIR | --in-place] [--json]`: rescans a
// discipline's resource files and writes its index files anew. Overwriting the discipline's own
// index files takes --in-place, so that a trial run never replaces them by accident.
#include <lumora/resources/index_rebuild.h>
#include <lumora/resources/indexed_numbers.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type_catalog.h>

#include <nlohmann/json.hpp>

#include <cstdio>
#include <filesystem>
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

std::string IndexFolder(const Options& options, const OpenedDiscipline& discipline) {
  if (options.out.empty()) return discipline.dataFolder;
  std::string folder = options.out;
  if (folder.back() != '/') folder.push_back('/');
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) throw CommandFailure("cannot create " + folder + ": " + error.message());
  return folder;
}

nlohmann::ordered_json Described(uint32_t type, bool built, const std::string& folder) {
  nlohmann::ordered_json out{{"type", type}, {"ok", built}};
  std::unique_ptr<TypeIndex> index = NewTypeIndex(type);
  const auto indexed = index->Load(IndexFilePath(folder, type)) ? NumbersOf(*index) : std::nullopt;
  out["groups"] = indexed ? indexed->groups : 0;
  out["entries"] = indexed ? indexed->numbers.size() : 0;
  return out;
}

// In place, every index file is replaced in one commit; elsewhere each is written on its own.
std::vector<TypeRebuild> RebuildAll(const Options& options, const OpenedDiscipline& discipline,
                                    const std::string& folder) {
  std::vector<uint32_t> types;
  for (uint32_t type : kExerciseTypes) {
    if (!options.type || *options.type == type) types.push_back(type);
  }
  std::vector<TypeRebuild> results;
  if (options.inPlace) {
    const WriteStatus saved = RebuildIndexesInPlace(discipline.localRoot, folder, types, results);
    if (!saved.ok()) throw CommandFailure("nothing was replaced: " + saved.ToString());
    return results;
  }
  for (uint32_t type : types) {
    results.push_back({type, BuildTypeIndex(type, discipline.localRoot, folder)});
  }
  return results;
}

void Run(const Options& options) {
  if (options.type && !IsExerciseType(*options.type)) {
    throw CommandFailure("not an exercise type: " + std::to_string(*options.type));
  }
  OpenedContent content(options.root, 0);
  const OpenedDiscipline discipline = DisciplineFor(options.discipline);
  const std::string folder = IndexFolder(options, discipline);

  nlohmann::ordered_json results = nlohmann::ordered_json::array();
  bool all_ok = true;
  for (const TypeRebuild& rebuilt : RebuildAll(options, discipline, folder)) {
    results.push_back(Described(rebuilt.type, rebuilt.built, folder));
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
