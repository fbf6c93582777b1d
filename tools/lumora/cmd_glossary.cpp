// `lumora glossary ROOT -d ID (find TEXT | word FNID | letters | by-letter) [--json]`: a
// discipline's glossary as the host sees it.
#include <lumora/lumora.h>
#include <lumora/maintenance.h>

#include <cstdint>
#include <memory>
#include <string>

#include "commands.h"
#include "content_args.h"
#include "glossary_print.h"
#include "glossary_resort.h"

namespace lumora::cli {
namespace {

using Printer = void (*)(const CGloV6&, const GlossaryOptions&);

void Run(const GlossaryOptions& options, Printer print) {
  OpenedContent content(options.root, options.discipline);
  const ContentRequest request = RequestFor(options.discipline, ParsePathKind(options.pathKind));
  const CGloV6* glossary = lmGetGlossary(&request);
  if (glossary == nullptr) throw CommandFailure("discipline has no glossary");
  // A glossary that stopped loading at a table would answer as if those words did not exist.
  if (const auto failure = GlossaryLoadFailure(options.discipline)) {
    throw CommandFailure(FailureText(options.root, *failure));
  }
  print(*glossary, options);
}

CLI::App* AddView(CLI::App& glossary, const std::shared_ptr<GlossaryOptions>& options,
                  const char* name, const char* description, Printer print) {
  auto* view = glossary.add_subcommand(name, description);
  view->callback([options, print] { Run(*options, print); });
  return view;
}

void AddFind(CLI::App& command, const std::shared_ptr<GlossaryOptions>& options) {
  auto* find = AddView(command, options, "find", "Entries whose written form contains TEXT",
                       &PrintFoundWords);
  find->add_option("TEXT", options->query, "Text to look for (accents and case ignored)")
      ->required();
  find->add_flag("--prefix", options->prefix, "Only written forms that start with TEXT");
  find->add_flag("--need-code", options->needCode, "Only entries with a code in 50000..59999");
}

void AddWord(CLI::App& command, const std::shared_ptr<GlossaryOptions>& options) {
  auto* word = AddView(command, options, "word", "One word with everything the glossary holds",
                       &PrintGlossaryWord);
  word->add_option("FNID", options->fnId, "Word number")->required();
  word->add_option("--path-kind", options->pathKind, "Sound path for local, url or unc");
  word->add_option("--quality", options->quality, "Quality folder of the sound path, 0 to 255")
      ->check(CLI::Range(0u, 255u));
}

void AddByLetter(CLI::App& command, const std::shared_ptr<GlossaryOptions>& options) {
  auto* by_letter =
      AddView(command, options, "by-letter", "Entries by letter section", &PrintWordsByLetter);
  by_letter->add_option("--letter", options->letter, "Only this letter section (its number)");
  by_letter
      ->add_option("--level", options->levels,
                   "MIN (that level and above) or MIN:MAX, 0 to 255; a MAX below MIN means MIN")
      ->check(ParsedBy([](const std::string& text) {
        uint8_t min = 0;
        uint8_t max = 0;
        ParseLevels(text, min, max);
      }));
  by_letter->add_option("--class", options->classId, "Only entries of this class or below it");
  by_letter->add_flag("--need-code", options->needCode, "Only entries with a code in 50000..59999");
  by_letter
      ->add_option("--linked", options->linked,
                   "FIRST[,SECOND]: only the words linked from these words")
      ->check(ParsedBy([](const std::string& text) {
        uint32_t first = 0;
        uint32_t second = 0;
        ParseLinked(text, first, second);
      }));
}

void AddGlossaryCommand(CLI::App& app) {
  auto options = std::make_shared<GlossaryOptions>();
  auto* command = app.add_subcommand("glossary", "Show a discipline's glossary");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("-d,--discipline", options->discipline, "Discipline identifier")->required();
  command->add_flag("--json", options->json, "Print JSON instead of text");
  command->require_subcommand(1);
  // Options of the glossary command may also follow the view.
  command->fallthrough();

  AddFind(*command, options);
  AddWord(*command, options);
  AddView(*command, options, "letters", "The letter sections", &PrintLetters);
  AddByLetter(*command, options);
  AddGlossaryResort(*command, [options] {
    return GlossaryTarget{options->root, options->discipline, options->json};
  });
}

const CommandRegistration reg{"glossary", &AddGlossaryCommand};

}  // namespace
}  // namespace lumora::cli
