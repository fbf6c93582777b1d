// Where the JSON API gets its documents: one operation per route, each giving the document the
// tool prints with --json for the same question, or a status and a reason.
#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <optional>
#include <string>

namespace lumora::serve {

struct Answer {
  int status = 200;
  nlohmann::ordered_json document;
  std::string error;

  static Answer Of(nlohmann::ordered_json document) { return {200, std::move(document), {}}; }
  // 400 for a malformed question, 404 for something absent, 500 for damaged content.
  static Answer Failure(int status, std::string error) { return {status, {}, std::move(error)}; }
};

struct GlossaryQuery {
  std::string text;
  bool prefix = false;
  std::optional<uint32_t> limit;
};

// Called from several serving threads at once.
class DocumentSource {
 public:
  virtual ~DocumentSource() = default;

  virtual Answer Open() const = 0;
  // Every index of the discipline, or the one of `type`.
  virtual Answer Index(uint32_t discipline, std::optional<uint32_t> type) const = 0;
  virtual Answer Resource(uint32_t discipline, uint32_t type, uint32_t id) const = 0;
  virtual Answer GlossaryFind(uint32_t discipline, const GlossaryQuery& query) const = 0;
  virtual Answer GlossaryWord(uint32_t discipline, uint32_t word) const = 0;
  virtual Answer GlossaryLetters(uint32_t discipline) const = 0;
  virtual Answer GrammarPoint(uint32_t discipline, uint32_t point) const = 0;
  virtual Answer GrammarLevels(uint32_t discipline) const = 0;
  virtual Answer GrammarCategories(uint32_t discipline) const = 0;
  virtual Answer Classification() const = 0;
  virtual Answer Packages(uint32_t discipline) const = 0;
  // Every open discipline, or only `discipline`.
  virtual Answer Check(std::optional<uint32_t> discipline) const = 0;
};

}  // namespace lumora::serve
