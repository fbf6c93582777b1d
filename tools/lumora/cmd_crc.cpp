// `lumora crc FILE...`: the library's CRC-32 of each file, as hex and as the signed decimal
// form the checksum list stores, so a recorded value can be checked by hand.
#include "commands.h"
#include "printable_text.h"

#include <lumora/maintenance.h>

#include <cinttypes>
#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

namespace lumora::cli {
namespace {

std::string Hex(uint32_t value) {
  char text[9];
  std::snprintf(text, sizeof text, "%08" PRIx32, value);
  return text;
}

void RunCrc(const std::vector<std::string>& paths, bool json) {
  auto list = nlohmann::ordered_json::array();
  bool all_read = true;
  for (const auto& path : paths) {
    std::optional<uint32_t> crc = FileCrc32(path);
    if (!crc) {
      std::fprintf(stderr, "lumora crc: cannot read %s\n", path.c_str());
      all_read = false;
      continue;
    }
    int32_t as_signed = static_cast<int32_t>(*crc);
    if (json) {
      list.push_back({{"path", PrintableText(path)}, {"crc", Hex(*crc)}, {"signed", as_signed}});
    } else {
      std::printf("%s %" PRId32 " %s\n", Hex(*crc).c_str(), as_signed, PrintableText(path).c_str());
    }
  }
  if (json) PrintJson(list);
  if (!all_read) throw CommandFailure("some files could not be read");
}

void AddCrcCommand(CLI::App& app) {
  auto* cmd = app.add_subcommand("crc", "Print the CRC-32 of files (hex, signed decimal, path)");
  auto paths = std::make_shared<std::vector<std::string>>();
  auto json = std::make_shared<bool>(false);
  cmd->add_option("files", *paths, "Files to checksum")->required();
  cmd->add_flag("--json", *json, "Print a JSON array of {path, crc, signed}");
  cmd->callback([paths, json] { RunCrc(*paths, *json); });
}

const CommandRegistration reg{"crc", &AddCrcCommand};

}  // namespace
}  // namespace lumora::cli
