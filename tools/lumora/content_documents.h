// The documents of `lumora serve`'s JSON API, answered by an open content root: the same
// documents the tool prints with --json, their failures as HTTP statuses.
#pragma once

#include <lumora/content.h>

#include <cstdint>
#include <optional>

#include "serve/document_source.h"
#include "serve/media_links.h"

namespace lumora::cli {

class ContentDocuments : public serve::DocumentSource {
 public:
  // `root` and `links` must outlive this source.
  ContentDocuments(const ContentRoot& root, const serve::MediaLinks& links)
      : root_(root), links_(links) {}

  serve::Answer Open() const override;
  serve::Answer Index(uint32_t discipline, std::optional<uint32_t> type) const override;
  serve::Answer Resource(uint32_t discipline, uint32_t type, uint32_t id) const override;
  serve::Answer GlossaryFind(uint32_t discipline, const serve::GlossaryQuery& query) const override;
  serve::Answer GlossaryWord(uint32_t discipline, uint32_t word) const override;
  serve::Answer GlossaryLetters(uint32_t discipline) const override;
  serve::Answer GrammarPoint(uint32_t discipline, uint32_t point) const override;
  serve::Answer GrammarLevels(uint32_t discipline) const override;
  serve::Answer GrammarCategories(uint32_t discipline) const override;
  serve::Answer Classification() const override;
  serve::Answer Packages(uint32_t discipline) const override;
  serve::Answer Check(std::optional<uint32_t> discipline) const override;

 private:
  const ContentRoot& root_;
  const serve::MediaLinks& links_;
};

}  // namespace lumora::cli
