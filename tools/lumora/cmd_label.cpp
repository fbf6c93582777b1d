// `lumora label CODE [--json]`: what a context code names, in the library's two labels and its
// diagnostic description. The code is taken as a context that is not a glossary word.
#include <lumora/maintenance.h>

#include <nlohmann/json.hpp>

#include <iostream>
#include <memory>
#include <string>

#include "commands.h"
#include "content_args.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

void Run(const std::string& code_text, bool json) {
  const ContextLabels labels = LabelContext(ParseNumber(code_text, "context code"));
  const std::string& technical = labels.technical;
  const std::string& readable = labels.readable;
  const std::string& description = labels.description;
  if (json) {
    const nlohmann::ordered_json out = {{"code", labels.code},
                                        {"technical", technical},
                                        {"readable", readable},
                                        {"description", description},
                                        {"valid", labels.valid}};
    PrintJson(out);
  } else {
    std::cout << "technical:   " << technical << '\n'
              << "readable:    " << readable << '\n'
              << "valid:       " << (labels.valid ? "yes" : "no") << '\n'
              << "description:\n"
              << description << '\n';
  }
}

void AddLabelCommand(CLI::App& app) {
  auto code = std::make_shared<std::string>();
  auto json = std::make_shared<bool>(false);
  auto* command = app.add_subcommand("label", "Show the labels of a context code");
  command->add_option("CODE", *code, "Context code, decimal or 0x-hexadecimal")
      ->required()
      ->check(NumberText("context code"));
  command->add_flag("--json", *json, "Print JSON instead of text");
  command->callback([code, json] { Run(*code, *json); });
}

const CommandRegistration reg{"label", &AddLabelCommand};

}  // namespace
}  // namespace lumora::cli
