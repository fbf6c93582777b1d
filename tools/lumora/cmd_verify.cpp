// `lumora verify ROOT -d ID [--type T] [--quality 1,2,3] [--json]`: checks that every resource a
// discipline's index lists finds its media and the resource files it refers to.
#include <lumora/lumora.h>
#include <lumora/maintenance.h>

#include <nlohmann/json.hpp>

#include <cstdio>
#include <memory>
#include <optional>
#include <sstream>

#include "commands.h"
#include "content_args.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string root;
  uint32_t discipline = 0;
  std::optional<uint32_t> type;
  std::string quality = "1,2,3";
  bool json = false;
};

nlohmann::ordered_json Described(const VerifiedResource& v) {
  return {{"type", v.type},
          {"resourceId", v.resourceId},
          {"ok", v.ok()},
          {"report",
           PrintableText(v.read ? v.report : "resource file could not be read", kWindowsAnsi)}};
}

void PrintFailure(const nlohmann::ordered_json& result) {
  std::printf("type %u resource 0x%08x:\n", result["type"].get<uint32_t>(),
              result["resourceId"].get<uint32_t>());
  std::stringstream lines(result["report"].get<std::string>());
  std::string line;
  while (std::getline(lines, line)) std::printf("  %s\n", line.c_str());
}

void Run(const Options& options) {
  const ByteArray quality = ParseQualityFolders(options.quality);
  OpenedContent content(options.root, 0);
  const ContentRequest request = RequestFor(options.discipline);
  const DisciplineSummary discipline = DisciplineFor(options.discipline);
  const ResourceIndex* index = lmGetResourceInfos(&request);
  if (index == nullptr) throw CommandFailure("discipline has no resource index");

  nlohmann::ordered_json results = nlohmann::ordered_json::array();
  uint32_t failures = 0;
  for (const VerifiedResource& v :
       VerifyMedia(discipline.localRoot, *index, quality, options.type)) {
    results.push_back(Described(v));
    if (!v.ok()) ++failures;
  }
  if (options.json) {
    PrintJson(results);
  } else {
    for (const auto& result : results) {
      if (result["ok"] == false) PrintFailure(result);
    }
    std::printf("%zu resources checked, %u with problems\n", results.size(), failures);
  }
  if (failures != 0) throw CommandFailure(std::to_string(failures) + " resources with problems");
}

void AddVerifyCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("verify", "Check the media of a discipline's resources");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("-d,--discipline", options->discipline, "Discipline identifier")->required();
  command->add_option("--type", options->type, "Check only this exercise type");
  command
      ->add_option("--quality", options->quality,
                   "Quality folders to check, each 1, 2 or 3 (default 1,2,3)")
      ->check(ParsedBy([](const std::string& text) { ParseQualityFolders(text); }));
  command->add_flag("--json", options->json, "Print JSON instead of text");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"verify", &AddVerifyCommand};

}  // namespace
}  // namespace lumora::cli
