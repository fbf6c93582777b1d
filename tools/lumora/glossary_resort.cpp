// `lumora glossary ROOT -d ID resort [--write] [--json]`: rebuilds a discipline's alphabetical
// order and letter index from its written forms and shows the letters; --write saves the
// headwords, the order and the letters back into the glossary folder.
#include <lumora/lumora.h>
#include <lumora/maintenance.h>

#include <nlohmann/json.hpp>

#include <cstdio>
#include <memory>
#include <string>

#include "commands.h"
#include "content_args.h"
#include "glossary_resort.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

void PrintLetters(const CGloV6& g, bool written, bool json) {
  if (json) {
    nlohmann::ordered_json letters = nlohmann::ordered_json::array();
    for (const GloFNLetterRecord& r : g.letters) {
      letters.push_back({{"letterId", r.letterId},
                         {"letter", Utf16ToUtf8(r.letter)},
                         {"first", r.attrA},
                         {"last", r.attrB}});
    }
    const nlohmann::ordered_json out = {
        {"words", g.sorted.size()}, {"letters", letters}, {"written", written}};
    PrintJson(out);
    return;
  }
  std::printf("%u words in %u letters%s\n", g.sorted.size(), g.letters.size(),
              written ? ", saved" : "");
  for (const GloFNLetterRecord& r : g.letters) {
    std::printf("%3u  %s  positions %u-%u\n", r.letterId, Utf16ToUtf8(r.letter).c_str(), r.attrA,
                r.attrB);
  }
}

void Resort(const GlossaryTarget& target, bool write) {
  OpenedContent content(target.root, target.discipline);
  const ContentRequest request = RequestFor(target.discipline);
  CGloV6* glossary = lmGetGlossary(&request);
  if (glossary == nullptr) throw CommandFailure("discipline has no glossary");
  const Status resorted = ResortGlossary(*glossary, write);
  if (!resorted.ok()) throw CommandFailure(resorted.reason);
  PrintLetters(*glossary, write, target.json);
}

}  // namespace

void AddGlossaryResort(CLI::App& glossary, std::function<GlossaryTarget()> target) {
  auto write = std::make_shared<bool>(false);
  auto* view = glossary.add_subcommand(
      "resort", "Rebuild the alphabetical order and the letters from the written forms");
  view->add_flag("--write", *write, "Save the headwords, the order and the letters");
  view->callback([target, write] { Resort(target(), *write); });
}

}  // namespace lumora::cli
