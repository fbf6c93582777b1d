// `lumora grammar ROOT -d ID (point P | find TEXT --language L | levels | categories)
// [--first ID --second ID] [--json]`: a discipline's grammar as the host sees it.
#include <lumora/lumora.h>
#include <lumora/maintenance.h>

#include <memory>

#include "commands.h"
#include "content_args.h"
#include "grammar_print.h"

namespace lumora::cli {
namespace {

using Printer = void (*)(const CGramV6&, const GrammarOptions&);

void Run(const GrammarOptions& options, Printer print) {
  OpenedContent content(options.root, options.discipline);
  const ContentRequest request = RequestFor(options.discipline);
  const CGramV6* grammar = lmGetGrammar(&request);
  if (grammar == nullptr) throw CommandFailure("discipline has no grammar");
  // A grammar that stopped loading at a table would answer as if those points did not exist.
  if (const auto failure = GrammarLoadFailure(options.discipline)) {
    throw CommandFailure(FailureText(options.root, *failure));
  }
  print(*grammar, options);
}

CLI::App* AddView(CLI::App& grammar, const std::shared_ptr<GrammarOptions>& options,
                  const char* name, const char* description, Printer print) {
  auto* view = grammar.add_subcommand(name, description);
  view->callback([options, print] { Run(*options, print); });
  return view;
}

void AddLinkFilters(CLI::App& view, GrammarOptions& options) {
  view.add_option("--first", options.first, "Only subpoints linked from this identifier");
  view.add_option("--second", options.second, "Also subpoints linked from this identifier");
}

void AddGrammarCommand(CLI::App& app) {
  auto options = std::make_shared<GrammarOptions>();
  auto* command = app.add_subcommand("grammar", "Show a discipline's grammar");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("-d,--discipline", options->discipline, "Discipline identifier")->required();
  command->add_flag("--json", options->json, "Print JSON instead of text");
  command->require_subcommand(1);
  // Options of the grammar command may also follow the view.
  command->fallthrough();

  auto* point =
      AddView(*command, options, "point", "One point with everything it holds", &PrintGrammarPoint);
  point->add_option("P", options->point, "Point number")->required();
  auto* find =
      AddView(*command, options, "find", "Points whose texts contain TEXT", &PrintFoundPoints);
  find->add_option("TEXT", options->query, "Text to look for (case-sensitive)")->required();
  find->add_option("--language", options->language,
                   "Language number of titles and bubbles, 0 to 255")
      ->required()
      ->check(CLI::Range(0u, 255u));
  AddLinkFilters(
      *AddView(*command, options, "levels", "Levels of the first subpoints", &PrintGrammarLevels),
      *options);
  AddLinkFilters(*AddView(*command, options, "categories",
                          "Categories, subcategories and their points", &PrintGrammarCategories),
                 *options);
}

const CommandRegistration reg{"grammar", &AddGrammarCommand};

}  // namespace
}  // namespace lumora::cli
