// One word of the glossary with its record, texts, sound, recognition data and links.
#include <lumora/descriptions.h>

#include <iostream>

#include "commands.h"
#include "glossary_print.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

void PrintText(const Description& word) {
  std::cout << "word " << word["fnId"] << "  " << word["writing"].get<std::string>() << "  kind "
            << word["kind"] << "  level " << word["level"] << "  letter " << word["letterId"]
            << '\n';
  std::cout << "  codes " << word["codes"].dump() << "  classes " << word["classIds"].dump()
            << '\n';
  for (const char* text : {"comments", "type7", "soundPath"}) {
    const std::string value = word[text].get<std::string>();
    if (!value.empty()) std::cout << "  " << text << "  " << value << '\n';
  }
  for (const Description& t : word["translations"]) {
    std::cout << "  translation " << t["language"] << "  " << t["translation"].get<std::string>()
              << '\n';
  }
  if (!word["sound"].is_null()) std::cout << "  sound  status " << word["sound"]["status"] << '\n';
  if (!word["reco"].is_null()) std::cout << "  reco  status " << word["reco"]["status"] << '\n';
  for (const Description& link : word["links"]) {
    std::cout << "  link to " << link["toId"] << "  word " << link["attrB"] << '\n';
  }
}

}  // namespace

void PrintGlossaryWord(const CGloV6& glossary, const GlossaryOptions& options) {
  const Description word =
      DescribeGlossaryWord(glossary, options.fnId, static_cast<uint8_t>(options.quality));
  if (word.is_null()) {
    throw CommandFailure("no word " + std::to_string(options.fnId) + " in the glossary");
  }
  if (options.json) {
    PrintJson(word);
  } else {
    PrintText(word);
  }
}

}  // namespace lumora::cli
