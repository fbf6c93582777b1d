#include <lumora/platform/archive.h>
#include <lumora/platform/keyed_table.h>
#include <lumora/resources/language_texts.h>

namespace lumora {

LanguageTexts::LanguageTexts(const LanguageTexts& other) : Object(other) { *this = other; }

LanguageTexts& LanguageTexts::operator=(const LanguageTexts& other) {
  if (this == &other) return *this;
  keys_ = other.keys_;
  sorted_ = other.sorted_;
  texts_.clear();
  for (const auto& text : other.texts_) {
    texts_.push_back(text ? std::make_unique<CodePageText>(*text) : nullptr);
  }
  return *this;
}

void LanguageTexts::Serialize(Archive& ar) {
  if (ar.IsStoring()) {
    ar.WriteU32(size());
    ar.WriteU8(sorted_ ? 1 : 0);
    if (size() == 0) return;
    keys_.Serialize(ar);
    for (auto& text : texts_) {
      if (text) {
        text->Serialize(ar);
      } else {
        CodePageText().Serialize(ar);
      }
    }
    return;
  }
  keys_.RemoveAll();
  texts_.clear();
  const uint32_t count = ar.ReadU32();
  sorted_ = ar.ReadU8() != 0;
  if (count == 0) return;
  keys_.Serialize(ar);
  if (keys_.size() != count) {
    throw ArchiveError(ArchiveError::Kind::kBadFormat, "language keys differ from text count");
  }
  ar.Require(uint64_t{count} * 6);  // code page and length of every text
  for (uint32_t i = 0; i < count; ++i) {
    auto text = std::make_unique<CodePageText>();
    text->Serialize(ar);
    texts_.push_back(std::move(text));
  }
}

void LanguageTexts::Add(uint8_t language, CodePageText text) {
  keys_.Add(language);
  texts_.push_back(std::make_unique<CodePageText>(std::move(text)));
  sorted_ = false;
}

std::optional<uint32_t> LanguageTexts::IndexOf(uint8_t language) const {
  return FindKeyIndex(keys_, size(), language, sorted_);
}

CodePageText LanguageTexts::Lookup(uint8_t language) const {
  auto i = IndexOf(language);
  if (i && texts_[*i]) return *texts_[*i];
  if (!texts_.empty() && texts_[0]) return *texts_[0];
  return CodePageText();
}

}  // namespace lumora
