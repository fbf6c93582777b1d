// One grammar point with everything it holds, as text or JSON.
#include <lumora/descriptions.h>

#include <iostream>

#include "commands.h"
#include "grammar_print.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

void PrintText(const Description& point) {
  std::cout << "point " << point["point"] << "  " << point["name"].get<std::string>() << "  (attrA "
            << point["attrA"] << ", flag " << point["flag"] << ")\n";
  for (const Description& t : point["titles"]) {
    std::cout << "  title [" << t["language"] << "] " << t["title"].get<std::string>() << '\n';
  }
  for (const Description& p : point["pictures"]) {
    std::cout << "  picture " << p["number"] << " -> " << p["attrB"] << '\n';
  }
  for (const Description& s : point["subpoints"]) {
    std::cout << "  subpoint " << s["id"] << "  level " << s["level"] << "  category "
              << s["category"] << '\n';
    for (const Description& t : s["titles"]) {
      std::cout << "    title [" << t["language"] << "] " << t["title"].get<std::string>() << '\n';
    }
    for (const Description& k : s["keywords"]) {
      std::cout << "    keyword " << k["id"] << "  " << k["keyword"].get<std::string>() << '\n';
    }
  }
  for (const Description& b : point["bubbles"]) {
    std::cout << "  bubble [" << b["language"] << "] " << b["attrB"] << '.' << b["attrC"] << "  "
              << b["text"].get<std::string>() << '\n';
  }
}

}  // namespace

void PrintGrammarPoint(const CGramV6& grammar, const GrammarOptions& options) {
  const Description json = DescribeGrammarPoint(grammar, options.point);
  if (json.is_null()) throw CommandFailure("no grammar point " + std::to_string(options.point));
  if (options.json) {
    PrintJson(json);
  } else {
    PrintText(json);
  }
}

}  // namespace lumora::cli
