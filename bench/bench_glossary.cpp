#include "bench_glossary.h"

#include <lumora/lexicon/glossary.h>
#include <lumora/platform/utf8.h>
#include <lumora/support/accent_table.h>

#include <stdlib.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <utility>

namespace lumora::bench {
namespace {

constexpr uint32_t kWords = 65534;

// A pronounceable written form for word `n`, with accented vowels here and there.
std::u16string WrittenForm(uint32_t n) {
  static const std::u16string_view kSyllables[] = {u"ba", u"tra", u"é",  u"lo", u"mi", u"zu",
                                                   u"ne", u"ça",  u"ri", u"po", u"sè", u"ka",
                                                   u"dô", u"fu",  u"gi", u"va"};
  std::u16string form;
  for (uint32_t rest = n + 17; rest != 0; rest /= 16) form += kSyllables[rest % 16];
  return form + u"le";
}

std::u16string Plain(std::u16string text) {
  for (char16_t& unit : text) unit = AccentTable::LowerPlain(unit);
  return text;
}

void Fill(CGloV6& glossary) {
  std::vector<std::pair<std::u16string, uint16_t>> order;
  for (uint32_t n = 1; n <= kWords; ++n) {
    const auto fnId = static_cast<uint16_t>(n);
    const std::u16string form = WrittenForm(n);
    const auto letterId = static_cast<uint16_t>(Plain(form)[0] - u'a' + 1);
    glossary.fns.Insert({fnId,
                         fnId,
                         0,
                         1,
                         {50000 + n % 20000},
                         {1010000 + n % 7 * 100},
                         static_cast<uint8_t>(n % 5),
                         2,
                         letterId});
    glossary.writings.Insert({fnId, form});
    glossary.translations.Insert({14, fnId, u"meaning " + form});
    if (n % 4 == 0) glossary.comments.Insert({fnId, 1, u"note"});
    if (n % 10 == 0) glossary.links.Insert({n, n + 1, 1, 0, static_cast<uint16_t>(n + 1), 0});
    GloSoundRecord sound;
    sound.fnId = fnId;
    sound.status = GloSoundRecord::kPresentStatus;
    sound.text1 = form;
    glossary.sounds.Insert(std::move(sound));
    order.emplace_back(Plain(form), fnId);
  }
  std::sort(order.begin(), order.end());
  uint16_t position = 0;
  for (const auto& [form, fnId] : order) glossary.sorted.Insert({position++, fnId});
  for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
    glossary.letters.Insert(
        {std::u16string(1, letter), static_cast<uint16_t>(letter - 'A' + 1), 0, 0});
  }
}

bool WritePlainForms(const CGloV6& glossary, const std::string& path) {
  std::ofstream out(path);
  for (const GloFNSortedRecord& entry : glossary.sorted) {
    out << Utf16ToUtf8(Plain(glossary.getWritingText(entry.fnId))) << '\n';
  }
  return static_cast<bool>(out);
}

}  // namespace

BenchGlossary::BenchGlossary() {
  char pattern[] = "/tmp/lumora-glossary-bench-XXXXXX";
  if (mkdtemp(pattern) == nullptr) return;
  folder_ = std::string(pattern) + "/";
  CGloV6 glossary;
  Fill(glossary);
  glossary.setFolder(folder_);
  if (!glossary.save(false, {}) || !WritePlainForms(glossary, plainForms())) {
    std::fprintf(stderr, "could not write the glossary in %s\n", folder_.c_str());
    return;
  }
  for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
    if (entry.path().extension() == ".set") setFiles_.push_back(entry.path().string());
  }
  std::sort(setFiles_.begin(), setFiles_.end());
  for (const std::string& file : setFiles_) setBytes_ += std::filesystem::file_size(file);
  ready_ = true;
}

BenchGlossary::~BenchGlossary() {
  std::error_code ignored;
  if (!folder_.empty()) std::filesystem::remove_all(folder_, ignored);
}

const BenchGlossary& Glossary() {
  static const BenchGlossary glossary;
  return glossary;
}

}  // namespace lumora::bench
