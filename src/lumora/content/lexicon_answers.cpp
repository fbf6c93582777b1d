// A discipline's glossary and grammar, and the classification, through the content face.
#include <lumora/content.h>
#include <lumora/content/content_answers.h>
#include <lumora/content/glossary_search_cache.h>
#include <lumora/describe/classification_description.h>
#include <lumora/describe/glossary_description.h>
#include <lumora/describe/grammar_description.h>
#include <lumora/frame/library_lock.h>
#include <lumora/frame/load_failures.h>
#include <lumora/frame/opened_lexicon.h>
#include <lumora/platform/utf8.h>

#include <mutex>

namespace lumora {
namespace {

// A glossary or grammar that stopped loading at a table would answer as if the words or points
// of the tables after it did not exist: its reason is the answer instead.
template <typename Lexicon, typename Describe>
Answer FromLexicon(const std::string& root, uint32_t discipline, const Lexicon* lexicon,
                   const std::optional<LoadFailure>& failure, const char* what, Describe describe) {
  if (lexicon == nullptr) return Failed(NoDiscipline(discipline));
  if (failure) return Failed(Unreadable(root, *failure));
  Description document = describe(*lexicon);
  if (document.is_null()) return Failed(NotFound(what));
  return Found(std::move(document));
}

}  // namespace

Answer ContentRoot::FindWords(uint32_t discipline, const std::string& text, bool prefix,
                              bool needCode, std::optional<uint32_t> limit) const {
  std::shared_lock lock(LibraryMutex());
  return FromLexicon(root_, discipline, open_ ? OpenedGlossary(discipline) : nullptr,
                     GlossaryLoadFailure(discipline), "", [&](const CGloV6& glossary) {
                       // Only the words answered are described, so that a short answer out
                       // of a large glossary costs little.
                       const WordBuckets buckets = SearchIndexOf(glossary)->Find(
                           Utf8ToUtf16(text), needCode, prefix, limit);
                       return DescribeWordBuckets(glossary, buckets);
                     });
}

Answer ContentRoot::GlossaryWord(uint32_t discipline, uint32_t fnId, uint32_t pathKind,
                                 uint8_t quality) const {
  // The word's sound path follows the glossary's media pattern, which the request sets: the
  // answer holds the lock alone.
  std::unique_lock lock(LibraryMutex());
  const std::optional<ContentRequest> request = RequestFor(discipline, pathKind);
  const CGloV6* glossary = open_ && request ? lmGetGlossary(&*request) : nullptr;
  const std::string missing = "no word " + std::to_string(fnId) + " in the glossary";
  return FromLexicon(root_, discipline, glossary, GlossaryLoadFailure(discipline), missing.c_str(),
                     [&](const CGloV6& g) { return DescribeGlossaryWord(g, fnId, quality); });
}

Answer ContentRoot::GlossaryLetters(uint32_t discipline) const {
  std::shared_lock lock(LibraryMutex());
  return FromLexicon(root_, discipline, open_ ? OpenedGlossary(discipline) : nullptr,
                     GlossaryLoadFailure(discipline), "",
                     [](const CGloV6& glossary) { return DescribeLetters(glossary); });
}

Answer ContentRoot::GrammarPoint(uint32_t discipline, uint32_t point) const {
  std::shared_lock lock(LibraryMutex());
  const std::string missing = "no grammar point " + std::to_string(point);
  return FromLexicon(root_, discipline, open_ ? OpenedGrammar(discipline) : nullptr,
                     GrammarLoadFailure(discipline), missing.c_str(),
                     [&](const CGramV6& grammar) { return DescribeGrammarPoint(grammar, point); });
}

Answer ContentRoot::FindGrammarPoints(uint32_t discipline, const std::string& text,
                                      uint8_t language) const {
  std::shared_lock lock(LibraryMutex());
  return FromLexicon(root_, discipline, open_ ? OpenedGrammar(discipline) : nullptr,
                     GrammarLoadFailure(discipline), "", [&](const CGramV6& grammar) {
                       std::vector<uint32_t> points;
                       grammar.findPoints(points, 0, Utf8ToUtf16(text), 0, language);
                       return DescribeFoundPoints(grammar, points, language);
                     });
}

Answer ContentRoot::GrammarLevels(uint32_t discipline, uint32_t first, uint32_t second) const {
  std::shared_lock lock(LibraryMutex());
  return FromLexicon(root_, discipline, open_ ? OpenedGrammar(discipline) : nullptr,
                     GrammarLoadFailure(discipline), "", [&](const CGramV6& grammar) {
                       return DescribeGrammarLevels(grammar, first, second);
                     });
}

Answer ContentRoot::GrammarCategories(uint32_t discipline, uint32_t first, uint32_t second) const {
  std::shared_lock lock(LibraryMutex());
  return FromLexicon(root_, discipline, open_ ? OpenedGrammar(discipline) : nullptr,
                     GrammarLoadFailure(discipline), "", [&](const CGramV6& grammar) {
                       return DescribeGrammarCategories(grammar, first, second);
                     });
}

Answer ContentRoot::Classification() const {
  std::shared_lock lock(LibraryMutex());
  const lumora::Classification* classification = open_ ? lmGetClassification() : nullptr;
  if (classification == nullptr || classification->folder.empty()) {
    return Failed(NotFound("cannot read the configuration of " + root_));
  }
  if (const auto failure = ClassificationLoadFailure()) {
    return Failed(Unreadable(root_, *failure));
  }
  return Found(DescribeClassification(*classification));
}

}  // namespace lumora
