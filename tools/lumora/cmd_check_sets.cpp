// `lumora check-sets FOLDER [--json]`: the header and checksum state of every set file of a
// folder and, for the tables the library reads, whether the file decodes record by record, so
// that a damaged or hand-edited table is found before a load silently skips it. Exits with 1
// when any file is bad, has a version its family refuses or does not decode.
#include <lumora/maintenance.h>

#include <nlohmann/json.hpp>

#include <cstdio>
#include <memory>

#include "commands.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string folder;
  bool json = false;
};

const char* ChecksumName(SetFileChecksum checksum) {
  switch (checksum) {
    case SetFileChecksum::kGood:
      return "good";
    case SetFileChecksum::kUnlisted:
      return "unlisted";
    case SetFileChecksum::kBad:
      break;
  }
  return "bad";
}

// A file too short for its header has neither version nor count: null in JSON.
nlohmann::ordered_json CheckJson(const SetFileReport& check) {
  nlohmann::ordered_json json = {{"table", PrintableText(check.table, kWindowsAnsi)}};
  json["version"] = check.hasHeader ? nlohmann::ordered_json(check.version) : nullptr;
  json["records"] = check.hasHeader ? nlohmann::ordered_json(check.records) : nullptr;
  json["checksum"] = ChecksumName(check.checksum);
  json["versionAccepted"] = check.versionAccepted;
  // Null for a table whose layout the library does not know.
  json["decoded"] = check.decoded ? nlohmann::ordered_json(*check.decoded) : nullptr;
  json["reason"] =
      check.decoded && !*check.decoded ? nlohmann::ordered_json(check.reason) : nullptr;
  return json;
}

void PrintReason(const SetFileReport& check) {
  if (check.decoded && !*check.decoded) {
    std::printf("    does not load: %s\n", check.reason.c_str());
  }
}

void PrintLine(const SetFileReport& check) {
  if (!check.hasHeader) {
    std::printf("%-32s too short for a header  checksum %s\n", check.table.c_str(),
                ChecksumName(check.checksum));
  } else {
    std::printf("%-32s version %u%s  records %u  checksum %s\n", check.table.c_str(), check.version,
                check.versionAccepted ? "" : " (refused)", check.records,
                ChecksumName(check.checksum));
  }
  PrintReason(check);
}

void Run(const Options& options) {
  const auto checks = CheckSetFiles(options.folder);
  if (!checks) throw CommandFailure("cannot list folder " + options.folder);
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  size_t bad = 0;
  for (const SetFileReport& check : *checks) {
    if (check.bad) ++bad;
    if (options.json) {
      list.push_back(CheckJson(check));
    } else {
      PrintLine(check);
    }
  }
  if (options.json) PrintJson(list);
  if (bad > 0) throw CommandFailure(std::to_string(bad) + " of the set files are bad");
}

void AddCheckSetsCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("check-sets",
                                     "Check the version, count, checksum and records of set files");
  command->add_option("FOLDER", options->folder, "Folder holding .set files and CRCFile.ini")
      ->required();
  command->add_flag("--json", options->json, "Print a JSON array instead of text");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"check-sets", &AddCheckSetsCommand};

}  // namespace
}  // namespace lumora::cli
