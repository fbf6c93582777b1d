#include "content_documents.h"

#include <utility>

namespace lumora::cli {
namespace {

int HttpStatus(StatusCode code) {
  switch (code) {
    case StatusCode::kOk:
      return 200;
    case StatusCode::kNotFound:
      return 404;
    case StatusCode::kInvalidArgument:
      return 400;
    case StatusCode::kBusy:
      return 503;
    case StatusCode::kUnreadable:
    case StatusCode::kUnwritable:
    case StatusCode::kStopped:
      break;
  }
  return 500;
}

// A failure answers {"error": what the tool prints for it}; a resource that cannot be read
// answers so too, not with the tool's document for it, so that every error has one shape.
serve::Answer ToAnswer(Answer answer) {
  if (answer.ok()) return serve::Answer::Of(std::move(answer.document));
  return serve::Answer::Failure(HttpStatus(answer.status.code), answer.status.ToString());
}

}  // namespace

serve::Answer ContentDocuments::Open() const { return serve::Answer::Of(root_.DescribeOpen()); }

serve::Answer ContentDocuments::Index(uint32_t discipline, std::optional<uint32_t> type) const {
  return ToAnswer(root_.Index(discipline, type));
}

serve::Answer ContentDocuments::Resource(uint32_t discipline, uint32_t type, uint32_t id) const {
  Answer answer = root_.Resource(discipline, type, id, {kPathUrl, 1, true});
  if (answer.ok()) links_.Add(discipline, answer.document);
  return ToAnswer(std::move(answer));
}

serve::Answer ContentDocuments::GlossaryFind(uint32_t discipline,
                                             const serve::GlossaryQuery& query) const {
  return ToAnswer(root_.FindWords(discipline, query.text, query.prefix, false, query.limit));
}

// The sound's path as a URL: a local path would tell remote readers where the server's files
// lie, and means nothing to them.
serve::Answer ContentDocuments::GlossaryWord(uint32_t discipline, uint32_t word) const {
  return ToAnswer(root_.GlossaryWord(discipline, word, kPathUrl));
}

serve::Answer ContentDocuments::GlossaryLetters(uint32_t discipline) const {
  return ToAnswer(root_.GlossaryLetters(discipline));
}

serve::Answer ContentDocuments::GrammarPoint(uint32_t discipline, uint32_t point) const {
  return ToAnswer(root_.GrammarPoint(discipline, point));
}

serve::Answer ContentDocuments::GrammarLevels(uint32_t discipline) const {
  return ToAnswer(root_.GrammarLevels(discipline));
}

serve::Answer ContentDocuments::GrammarCategories(uint32_t discipline) const {
  return ToAnswer(root_.GrammarCategories(discipline));
}

serve::Answer ContentDocuments::Classification() const { return ToAnswer(root_.Classification()); }

serve::Answer ContentDocuments::Packages(uint32_t discipline) const {
  return ToAnswer(root_.Packages(discipline));
}

serve::Answer ContentDocuments::Check(std::optional<uint32_t> discipline) const {
  if (discipline && !root_.Discipline(*discipline)) {
    return serve::Answer::Failure(
        404, "no open discipline with identifier " + std::to_string(*discipline));
  }
  return ToAnswer(root_.Check(discipline.value_or(0)));
}

}  // namespace lumora::cli
