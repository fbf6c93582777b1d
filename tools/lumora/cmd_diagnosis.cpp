// `lumora diagnosis ROOT [-d ID] --user U [--check]`: loads (or, with --check, only asks about)
// the diagnosis data of every open discipline or of one, and prints the answer with what each
// discipline's lessons and testable objects hold, as JSON.
#include <lumora/lumora.h>

#include <nlohmann/json.hpp>

#include <memory>

#include "commands.h"
#include "content_args.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string root;
  uint32_t discipline = 0;
  unsigned user = 0;
  bool check = false;
};

nlohmann::ordered_json LessonsJson(const CLessonsData& lessons) {
  return {{"loaded", lessons.loaded()},
          {"discipline", lessons.disciplineParam()},
          {"user", lessons.user()},
          {"folder", PrintableText(lessons.contentFolder(), kWindowsAnsi)},
          {"lessons", lessons.lessons()}};
}

nlohmann::ordered_json TestableJson(const CTestableData& testable) {
  return {{"loaded", testable.loaded()},
          {"folder", PrintableText(testable.contentFolder(), kWindowsAnsi)},
          {"resources", testable.resources()}};
}

// The open disciplines, in Content.ini order, with their two objects.
nlohmann::ordered_json DisciplinesJson(const Options& options) {
  KeyedTable<DisciplineInfo> configured;
  lmGetDisciplines(options.root.c_str(), &configured);
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (uint32_t i = 0; i < configured.size(); ++i) {
    ContentRequest request;
    request.disciplineId = configured.KeyAt(i);
    const CLessonsData* lessons = lmGetDiagLessonsData(&request);
    const CTestableData* testable = lmGetDiagTestableData(&request);
    if (lessons == nullptr || testable == nullptr) continue;
    list.push_back({{"id", request.disciplineId},
                    {"lessons", LessonsJson(*lessons)},
                    {"testable", TestableJson(*testable)}});
  }
  return list;
}

void Run(const Options& options) {
  OpenedContent content(options.root, options.discipline);
  if (!content.ok()) throw CommandFailure("cannot open " + options.root);
  const bool answer =
      lmOpenDiagData(options.discipline, static_cast<uint8_t>(options.user), options.check);
  nlohmann::ordered_json result{{"check", options.check},
                                {"user", options.user},
                                {"answer", answer},
                                {"disciplines", DisciplinesJson(options)}};
  PrintJson(result);
}

void AddDiagnosisCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("diagnosis", "Load a user's diagnosis data (JSON)");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("-d,--discipline", options->discipline, "Discipline identifier (0: all)");
  command->add_option("--user", options->user, "User number, 0 to 255")
      ->required()
      ->check(CLI::Range(0u, 255u));
  command->add_flag("--check", options->check,
                    "Only ask whether the first discipline's lessons hold this user's data");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"diagnosis", &AddDiagnosisCommand};

}  // namespace
}  // namespace lumora::cli
