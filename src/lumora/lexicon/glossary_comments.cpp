// A word's comments as the learner sees them: each wrapped in the brackets of its type.
#include <lumora/lexicon/glossary.h>

namespace lumora {
namespace {

// The opening and closing bracket of a comment type; none for a type that is left out.
using Brackets = std::pair<char16_t, char16_t>;

std::u16string Trimmed(std::u16string_view text) {
  const size_t first = text.find_first_not_of(u' ');
  if (first == std::u16string_view::npos) return {};
  return std::u16string(text.substr(first, text.find_last_not_of(u' ') - first + 1));
}

template <typename BracketsOf>
std::u16string JoinComments(const SetTable<GloCommentRecord>& comments, uint16_t fnId,
                            BracketsOf brackets_of) {
  std::u16string text;
  for (auto it = comments.Range({fnId, 0}, {fnId, 0}).first;
       it != comments.end() && it->fnId == fnId; ++it) {
    const Brackets brackets = brackets_of(it->commentType);
    if (brackets.first == 0) continue;
    text.append(1, brackets.first).append(it->comment).append(1, brackets.second).push_back(u' ');
  }
  return text.erase(text.find_last_not_of(u' ') + 1);
}

}  // namespace

std::u16string CGloV6::getCommentsText(uint16_t fnId) const {
  return JoinComments(comments, fnId, [](uint8_t type) {
    if (type == 1) return Brackets{u'(', u')'};
    if (type == 3) return Brackets{u'<', u'>'};
    return Brackets{u'[', u']'};
  });
}

std::u16string CGloV6::getSelectedComments(uint16_t fnId) const {
  return JoinComments(comments, fnId, [](uint8_t type) {
    if (type == 1 || type == 7) return Brackets{u'(', u')'};
    if (type == 3) return Brackets{u'<', u'>'};
    if (type == 2) return Brackets{u'[', u']'};
    return Brackets{0, 0};
  });
}

std::u16string CGloV6::getCommentOfType7(uint16_t fnId) const {
  const GloCommentRecord* comment = comments.Find({fnId, 7});
  if (comment == nullptr) return {};
  std::u16string text = comment->comment.str();
  const size_t plus = text.find(u'+');
  if (plus != std::u16string::npos) text = Trimmed(std::u16string_view(text).substr(plus + 1));
  return text.empty() ? text : u"{" + text + u"}";
}

}  // namespace lumora
