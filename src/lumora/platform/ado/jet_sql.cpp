#include <lumora/platform/ado/jet_sql.h>

#include <lumora/platform/ascii_text.h>

#include <vector>

namespace lumora::ado {
namespace {

// The items of a parenthesised list split at the commas of its own level; quoted texts and
// nested parentheses are kept whole.
std::vector<std::string_view> TopLevelItems(std::string_view list) {
  std::vector<std::string_view> items;
  int depth = 0;
  char quote = 0;
  size_t start = 0;
  for (size_t i = 0; i < list.size(); ++i) {
    const char c = list[i];
    if (quote != 0) {
      if (c == quote) quote = 0;
    } else if (c == '\'' || c == '"' || c == '[') {
      quote = c == '[' ? ']' : c;
    } else if (c == '(') {
      ++depth;
    } else if (c == ')') {
      --depth;
    } else if (c == ',' && depth == 0) {
      items.push_back(list.substr(start, i - start));
      start = i + 1;
    }
  }
  items.push_back(list.substr(start));
  return items;
}

bool IsTableConstraint(std::string_view item) {
  const std::string_view text = TrimAny(item, " \t\r\n");
  for (std::string_view keyword : {"CONSTRAINT", "PRIMARY", "UNIQUE", "CHECK", "FOREIGN"}) {
    if (StartsWithIgnoringCase(text, keyword) &&
        (text.size() == keyword.size() || text[keyword.size()] == ' ' ||
         text[keyword.size()] == '(')) {
      return true;
    }
  }
  return false;
}

}  // namespace

std::string TranslateStatement(std::string_view sql) {
  const std::string_view head = TrimAny(sql, " \t\r\n");
  if (!StartsWithIgnoringCase(head, "CREATE") || head.find('(') == std::string_view::npos) {
    return std::string(sql);
  }
  const size_t open = sql.find('(');
  const size_t close = sql.rfind(')');
  if (close == std::string_view::npos || close < open) return std::string(sql);

  std::vector<std::string_view> columns;
  std::vector<std::string_view> constraints;
  bool misplaced = false;
  for (std::string_view item : TopLevelItems(sql.substr(open + 1, close - open - 1))) {
    if (IsTableConstraint(item)) {
      constraints.push_back(item);
    } else {
      misplaced = misplaced || !constraints.empty();
      columns.push_back(item);
    }
  }
  if (!misplaced) return std::string(sql);

  std::string out(sql.substr(0, open + 1));
  for (const auto* group : {&columns, &constraints}) {
    for (std::string_view item : *group) {
      if (out.size() > open + 1) out += ',';
      out += item;
    }
  }
  out += sql.substr(close);
  return out;
}

}  // namespace lumora::ado
