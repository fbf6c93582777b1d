// `lumora classification ROOT [--json]`: the five classification tables that opening ROOT
// loads, the grammatical categories with the label each interface language gets.
#include <lumora/frame/load_failures.h>
#include <lumora/lumora.h>
#include <lumora/platform/utf8.h>
#include <lumora/support/language_table.h>

#include <nlohmann/json.hpp>

#include <cstdio>
#include <memory>

#include "commands.h"
#include "content_args.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

// The languages that have a category label of their own, in the order the labels are stored.
constexpr const char* kLabelCodes[] = {"ANG", "FRA", "ALL", "ESP", "ITA",
                                       "DUT", "AME", "CHS", "JPN"};

struct Options {
  std::string root;
  bool json = false;
};

template <typename Record>
nlohmann::ordered_json RecordJson(const Record& record) {
  return {{"id", record.id}, {"label", Utf16ToUtf8(record.label)}, {"value", record.value}};
}

template <typename Record>
nlohmann::ordered_json TableJson(const SetTable<Record>& table) {
  nlohmann::ordered_json records = nlohmann::ordered_json::array();
  for (const Record& record : table) records.push_back(RecordJson(record));
  return records;
}

nlohmann::ordered_json CatGramJson(const Classification& classification) {
  nlohmann::ordered_json records = nlohmann::ordered_json::array();
  for (const CatGramRecord& record : classification.catGram) {
    nlohmann::ordered_json labels = nlohmann::ordered_json::object();
    for (const char* code : kLabelCodes) {
      labels[code] = Utf16ToUtf8(classification.getCatGramLabel(NumberOfCode(code), record.id));
    }
    nlohmann::ordered_json json = RecordJson(record);
    json["labels"] = labels;
    records.push_back(json);
  }
  return records;
}

nlohmann::ordered_json ClassificationJson(const Classification& c) {
  return {{"folder", PrintableText(c.folder, kWindowsAnsi)},
          {"t_FamSem", TableJson(c.famSem)},
          {"t_CatGram", CatGramJson(c)},
          {"t_GrammarPoint_Category", TableJson(c.grammarPointCategories)},
          {"t_Verb_Tense", TableJson(c.verbTenses)},
          {"t_Expression_SyntacticFunction", TableJson(c.syntacticFunctions)}};
}

void PrintText(const nlohmann::ordered_json& json) {
  std::printf("folder %s\n", json["folder"].get<std::string>().c_str());
  for (const auto& [table, records] : json.items()) {
    if (!records.is_array()) continue;
    std::printf("%s (%zu)\n", table.c_str(), records.size());
    for (const auto& r : records) {
      std::printf("  %8u  value %5u  %s\n", r["id"].get<uint32_t>(), r["value"].get<uint32_t>(),
                  r["label"].get<std::string>().c_str());
      if (!r.contains("labels")) continue;
      for (const auto& [code, label] : r["labels"].items()) {
        std::printf("            %s %s\n", code.c_str(), label.get<std::string>().c_str());
      }
    }
  }
}

void Run(const Options& options) {
  OpenedContent content(options.root, 0);
  const Classification& classification = *lmGetClassification();
  // Opening sets the folder before it loads anything, even when no discipline opens.
  if (classification.folder.empty()) {
    throw CommandFailure("cannot read the configuration of " + options.root);
  }
  if (const auto failure = ClassificationLoadFailure()) {
    throw CommandFailure(FailureText(options.root, *failure));
  }
  const nlohmann::ordered_json json = ClassificationJson(classification);
  if (options.json) {
    PrintJson(json);
  } else {
    PrintText(json);
  }
}

void AddClassificationCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command =
      app.add_subcommand("classification", "Show the classification tables of a content root");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_flag("--json", options->json, "Print JSON instead of text");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"classification", &AddClassificationCommand};

}  // namespace
}  // namespace lumora::cli
