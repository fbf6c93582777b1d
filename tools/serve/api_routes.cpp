#include "serve/api_routes.h"

#include <functional>
#include <stdexcept>

#include "serve/url_text.h"

namespace lumora::serve {
namespace {

// A parameter that cannot be read; the route answers 400 with its text.
class BadParameter : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

uint32_t Number(const std::string& text, const char* what) {
  const std::optional<uint32_t> value = ParseNumber(text);
  if (!value) throw BadParameter(std::string("not a valid ") + what + ": " + text);
  return *value;
}

std::optional<uint32_t> OptionalNumber(const Request& request, const char* name, const char* what) {
  const std::string* text = request.Query(name);
  if (!text) return std::nullopt;
  return Number(*text, what);
}

bool Flag(const Request& request, const char* name) {
  const std::string* text = request.Query(name);
  if (!text || *text == "0" || *text == "false") return false;
  if (*text == "1" || *text == "true" || text->empty()) return true;
  throw BadParameter(std::string(name) + " must be 0 or 1: " + *text);
}

GlossaryQuery FindQuery(const Request& request) {
  const std::string* text = request.Query("q");
  if (!text || text->empty()) throw BadParameter("the text to find (q) is missing");
  return {*text, Flag(request, "prefix"), OptionalNumber(request, "limit", "limit")};
}

Response ToResponse(const Answer& answer) {
  return answer.status == 200 ? JsonResponse(200, answer.document)
                              : ErrorResponse(answer.status, answer.error);
}

using Question = std::function<Answer(const Request&, const RouteMatch&)>;

Handler Asking(Question question) {
  return [question = std::move(question)](const Request& request, const RouteMatch& match) {
    try {
      return ToResponse(question(request, match));
    } catch (const BadParameter& bad) {
      return ErrorResponse(400, bad.what());
    }
  };
}

uint32_t Discipline(const RouteMatch& match) { return Number(match["id"], "discipline"); }

}  // namespace

void AddApiRoutes(Router& router, const DocumentSource& source) {
  const DocumentSource* s = &source;
  router.Get("/api/open", Asking([s](auto&, auto&) { return s->Open(); }));
  router.Get("/api/classification", Asking([s](auto&, auto&) { return s->Classification(); }));
  router.Get("/api/check", Asking([s](const Request& request, auto&) {
               return s->Check(OptionalNumber(request, "d", "discipline"));
             }));
  router.Get("/api/d/{id}/index", Asking([s](auto&, const RouteMatch& m) {
               return s->Index(Discipline(m), std::nullopt);
             }));
  router.Get("/api/d/{id}/index/{type}", Asking([s](auto&, const RouteMatch& m) {
               return s->Index(Discipline(m), Number(m["type"], "type"));
             }));
  router.Get("/api/d/{id}/resource/{type}/{rid}", Asking([s](auto&, const RouteMatch& m) {
               return s->Resource(Discipline(m), Number(m["type"], "type"),
                                  Number(m["rid"], "resource identifier"));
             }));
  router.Get("/api/d/{id}/glossary/find", Asking([s](const Request& request, const RouteMatch& m) {
               return s->GlossaryFind(Discipline(m), FindQuery(request));
             }));
  router.Get("/api/d/{id}/glossary/word/{fnid}", Asking([s](auto&, const RouteMatch& m) {
               return s->GlossaryWord(Discipline(m), Number(m["fnid"], "word number"));
             }));
  router.Get("/api/d/{id}/glossary/letters",
             Asking([s](auto&, const RouteMatch& m) { return s->GlossaryLetters(Discipline(m)); }));
  router.Get("/api/d/{id}/grammar/point/{p}", Asking([s](auto&, const RouteMatch& m) {
               return s->GrammarPoint(Discipline(m), Number(m["p"], "grammar point"));
             }));
  router.Get("/api/d/{id}/grammar/levels",
             Asking([s](auto&, const RouteMatch& m) { return s->GrammarLevels(Discipline(m)); }));
  router.Get("/api/d/{id}/grammar/categories", Asking([s](auto&, const RouteMatch& m) {
               return s->GrammarCategories(Discipline(m));
             }));
  router.Get("/api/d/{id}/packages",
             Asking([s](auto&, const RouteMatch& m) { return s->Packages(Discipline(m)); }));
}

}  // namespace lumora::serve
