// `lumora codepage decode CP` and `lumora codepage encode CP`: convert standard input between
// the narrow bytes of a Windows code page and UTF-8, through the library's own text class so
// that the tool shows exactly what the library would store or hand out.
#include <lumora/platform/codepage.h>
#include <lumora/support/utf8.h>
#include <lumora/support/wide_text.h>

#include <cstdio>
#include <exception>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>

#include "commands.h"

namespace lumora::cli {
namespace {

std::string ReadStdin() {
  return std::string(std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>());
}

void WriteStdout(const std::string& bytes) { std::fwrite(bytes.data(), 1, bytes.size(), stdout); }

void Decode(uint32_t codePage) {
  WideText text;
  text.FromNarrow(ReadStdin(), codePage);
  WriteStdout(Utf16ToUtf8(text.view()));
}

void Encode(uint32_t codePage) {
  WideText text(Utf8ToUtf16(ReadStdin()));
  WriteStdout(text.ToNarrow(codePage));
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
                  void (*run)(uint32_t)) {
  auto* command = parent.add_subcommand(name, description);
  auto codePage = std::make_shared<uint32_t>(0);
  command->add_option("CP", *codePage, "Windows code page, e.g. 1251")
      ->required()
      ->check(kKnownCodePage);
  command->callback([run, codePage] { run(*codePage); });
}

void AddCodePageCommand(CLI::App& app) {
  auto* command = app.add_subcommand("codepage", "Convert between a Windows code page and UTF-8");
  command->require_subcommand(1);
  AddDirection(*command, "decode", "Code-page bytes on stdin to UTF-8 on stdout", &Decode);
  AddDirection(*command, "encode", "UTF-8 on stdin to code-page bytes on stdout", &Encode);
}

const CommandRegistration reg{"codepage", &AddCodePageCommand};

}  // namespace
}  // namespace lumora::cli
