// `lumora codepage decode CP` and `lumora codepage encode CP`: convert standard input between
// the narrow bytes of a Windows code page and UTF-8 with the library's own converters, so that
// the tool shows what the library would store or hand out. Input of any size streams through
// in blocks; zero bytes are data. What cannot be converted is replaced (undecodable bytes by
// U+FFFD, ill-formed UTF-8 and characters the code page lacks by "?"), and the command then
// says how many on stderr and exits with 1.
#include <lumora/maintenance.h>

#include <cstdio>
#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "commands.h"

namespace lumora::cli {
namespace {

constexpr size_t kBlockBytes = 64 * 1024;

using Direction = CodePageConverter::Direction;

void Write(const std::string& bytes) {
  if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size()) {
    throw CommandFailure("cannot write standard output");
  }
}

std::string Counted(uint64_t count, const char* what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

void Run(uint32_t codePage, Direction direction) {
  CodePageConverter stream(codePage, direction);
  std::vector<char> block(kBlockBytes);
  std::string out;
  for (bool last = false; !last;) {
    const size_t got = std::fread(block.data(), 1, block.size(), stdin);
    if (std::ferror(stdin)) throw CommandFailure("cannot read standard input");
    // fread comes back short only at the end of the input.
    last = got < block.size();
    out.clear();
    stream.Convert({block.data(), got}, last, out);
    Write(out);
  }
  if (std::fflush(stdout) != 0) throw CommandFailure("cannot write standard output");
  const uint64_t replaced = stream.substitutions();
  if (replaced == 0) return;
  throw CommandFailure(direction == Direction::kDecode
                           ? Counted(replaced, "undecodable byte sequence") + " replaced by U+FFFD"
                           : Counted(replaced, "ill-formed or unexpressible character") +
                                 " replaced by \"?\"");
}

// Unknown code pages would silently convert as the Western one; on the command line that is
// more likely a typing error, so it is refused.
const CLI::Validator kKnownCodePage(
    [](std::string& value) -> std::string {
      try {
        if (IsKnownCodePage(static_cast<uint32_t>(std::stoul(value)))) return {};
      } catch (const std::exception&) {
      }
      return "unknown code page " + value;
    },
    "CODEPAGE", "known code page");

void AddDirection(CLI::App& parent, const char* name, const char* description,
                  Direction direction) {
  auto* command = parent.add_subcommand(name, description);
  auto codePage = std::make_shared<uint32_t>(0);
  command->add_option("CP", *codePage, "Windows code page, e.g. 1251")
      ->required()
      ->check(kKnownCodePage);
  command->callback([direction, codePage] { Run(*codePage, direction); });
}

void AddCodePageCommand(CLI::App& app) {
  auto* command = app.add_subcommand(
      "codepage",
      "Convert between a Windows code page and UTF-8 (input of any size; replaced input exits "
      "with 1)");
  command->require_subcommand(1);
  AddDirection(*command, "decode",
               "Code-page bytes on stdin to UTF-8 on stdout; undecodable bytes become U+FFFD",
               Direction::kDecode);
  AddDirection(*command, "encode",
               "UTF-8 on stdin to code-page bytes on stdout; ill-formed UTF-8 and characters "
               "the code page lacks become \"?\"",
               Direction::kEncode);
}

const CommandRegistration reg{"codepage", &AddCodePageCommand};

}  // namespace
}  // namespace lumora::cli
