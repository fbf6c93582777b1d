// Translations of the words into the learners' languages.
#include <lumora/lexicon/glossary.h>

#include <algorithm>

namespace lumora {
namespace {

// The separator that stands out from any punctuation inside the parts it joins.
std::u16string_view SeparatorFor(const std::vector<std::u16string>& parts) {
  auto any_holds = [&parts](char16_t unit) {
    return std::any_of(parts.begin(), parts.end(), [unit](const std::u16string& part) {
      return part.find(unit) != std::u16string::npos;
    });
  };
  if (any_holds(u';')) return u" ; ";
  if (any_holds(u',')) return u"; ";
  return u", ";
}

}  // namespace

std::u16string CGloV6::getTranslation(uint16_t fnId, uint8_t language) const {
  const GloFNTranslationRecord* found = translations.Find({language, fnId});
  return found == nullptr ? std::u16string() : found->translation.str();
}

std::u16string CGloV6::getTranslations(const std::vector<uint16_t>& fnIds, uint8_t language) const {
  std::vector<std::u16string> parts;
  for (uint16_t fnId : fnIds) {
    std::u16string part = getTranslation(fnId, language);
    if (!part.empty() && std::find(parts.begin(), parts.end(), part) == parts.end()) {
      parts.push_back(std::move(part));
    }
  }
  const std::u16string_view separator = SeparatorFor(parts);
  std::u16string joined;
  for (const std::u16string& part : parts) {
    if (!joined.empty()) joined += separator;
    joined += part;
  }
  return joined;
}

bool CGloV6::getTranslationLanguages(std::vector<uint8_t>& languages) const {
  languages.clear();
  for (const GloFNTranslationRecord& record : translations) {
    if (languages.empty() || languages.back() != record.language) {
      languages.push_back(record.language);
    }
  }
  return !languages.empty();
}

bool CGloV6::hasTranslationLanguage(uint8_t language) const {
  const auto it = translations.Range({language, 0}, {language, 0}).first;
  return it != translations.end() && it->language == language;
}

}  // namespace lumora
