// A document source that answers every question with a document naming the question, so the
// tests see which operation a URL reached and with which numbers. A few numbers stand for the
// failures a real source has.
#pragma once

#include <stdexcept>
#include <string>

#include "serve/document_source.h"

namespace lumora::testing {

// A resource text that a browser would run if the answer were taken for HTML.
inline constexpr char kScriptText[] = "<img src=x onerror=alert(1)>\"</script>";

class FakeDocuments : public serve::DocumentSource {
 public:
  serve::Answer Open() const override { return Asked("open"); }
  serve::Answer Index(uint32_t d, std::optional<uint32_t> type) const override {
    return Asked("index " + N(d) + " " + (type ? N(*type) : "all"));
  }
  serve::Answer Resource(uint32_t d, uint32_t type, uint32_t id) const override {
    if (id == 404) return serve::Answer::Failure(404, "no resource 404 of type " + N(type));
    if (id == 500) throw std::runtime_error("damaged index");
    if (id == 7) return serve::Answer::Of({{"text", kScriptText}});
    return Asked("resource " + N(d) + " " + N(type) + " " + N(id));
  }
  serve::Answer GlossaryFind(uint32_t d, const serve::GlossaryQuery& q) const override {
    return Asked("find " + N(d) + " [" + q.text + "] " + (q.prefix ? "prefix" : "anywhere") + " " +
                 (q.limit ? N(*q.limit) : "unlimited"));
  }
  serve::Answer GlossaryWord(uint32_t d, uint32_t word) const override {
    return Asked("word " + N(d) + " " + N(word));
  }
  serve::Answer GlossaryLetters(uint32_t d) const override { return Asked("letters " + N(d)); }
  serve::Answer GrammarPoint(uint32_t d, uint32_t point) const override {
    return Asked("point " + N(d) + " " + N(point));
  }
  serve::Answer GrammarLevels(uint32_t d) const override { return Asked("levels " + N(d)); }
  serve::Answer GrammarCategories(uint32_t d) const override { return Asked("categories " + N(d)); }
  serve::Answer Classification() const override { return Asked("classification"); }
  serve::Answer Packages(uint32_t d) const override { return Asked("packages " + N(d)); }
  serve::Answer Check(std::optional<uint32_t> d) const override {
    return Asked("check " + (d ? N(*d) : "all"));
  }

 private:
  static std::string N(uint32_t value) { return std::to_string(value); }
  static serve::Answer Asked(const std::string& question) {
    return serve::Answer::Of({{"asked", question}});
  }
};

}  // namespace lumora::testing
