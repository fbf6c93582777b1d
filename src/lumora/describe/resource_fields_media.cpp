#include <lumora/resources/types/type10.h>
#include <lumora/resources/types/type1006.h>
#include <lumora/resources/types/type1010.h>
#include <lumora/resources/types/type14.h>
#include <lumora/resources/types/type20.h>
#include <lumora/resources/types/type2000.h>
#include <lumora/resources/types/type21.h>
#include <lumora/resources/types/type28.h>
#include <lumora/resources/types/type5.h>
#include <lumora/resources/types/type9.h>

#include <lumora/describe/resource_fields.h>

namespace lumora {
namespace {

Description TextWithMediaJson(ResourceDescriber& w, const TextWithMedia& piece) {
  return {{"text", w.Text(piece.text)}, {"media", w.Media(piece.media)}};
}

void Type5Fields(ResourceDescriber& w, const Type5Resource& r, Description& out) {
  out["groupKey"] = r.groupKey;
  out["title"] = w.Text(r.title);
  out["sentences"] = ListJson(r.sentences, [&w](const DictationSentence& sentence) {
    return Description{{"value", sentence.value},
                       {"texts", w.Texts(sentence.texts)},
                       {"media", w.Media(sentence.media)}};
  });
}

void Type9Fields(ResourceDescriber& w, const Type9Resource& r, Description& out) {
  out["groupKey"] = r.groupKey;
  out["words"] = w.Texts(r.words);
  out["strings"] = w.Strings(r.strings);
  out["media"] = w.Media(r.media);
}

void Type10Fields(ResourceDescriber& w, const Type10Resource& r, Description& out) {
  out["groupKey"] = r.groupKey;
  out["instruction"] = w.Text(r.instruction);
  out["words"] =
      ListJson(r.words, [&w](const TextWithMedia& word) { return TextWithMediaJson(w, word); });
}

Description Type14EntriesJson(ResourceDescriber& w, const ObjectList<Type14Entry>& entries) {
  return ListJson(entries, [&w](const Type14Entry& entry) {
    return Description{{"value", entry.value}, {"text", w.Text(entry.text)}};
  });
}

void Type14Fields(ResourceDescriber& w, const Type14Resource& r, Description& out) {
  out["value"] = r.value;
  out["firstWord"] = r.firstWord;
  out["secondWord"] = r.secondWord;
  out["groupKey"] = r.groupKey;
  out["firstTitle"] = w.Text(r.firstTitle);
  out["secondTitle"] = w.Text(r.secondTitle);
  out["numbers"] = NumbersJson(r.numbers);
  out["firstEntries"] = Type14EntriesJson(w, r.firstEntries);
  out["secondEntries"] = Type14EntriesJson(w, r.secondEntries);
  out["thirdEntries"] = Type14EntriesJson(w, r.thirdEntries);
  out["media"] = ListJson(r.media, [&w](const MediaRef& media) { return w.Media(media); });
  out["closingText"] = w.Text(r.closingText);
}

void Type20Fields(ResourceDescriber& w, const Type20Resource& r, Description& out) {
  out["value"] = r.value;
  out["groupKey"] = r.groupKey;
  out["pieces"] = ListJson(r.pieces, [&w](const PatchWorkPiece& piece) {
    return Description{{"media", w.Media(piece.media)}, {"text", w.Text(piece.text)}};
  });
}

void Type21Fields(ResourceDescriber& w, const Type21Resource& r, Description& out) {
  out["firstValue"] = r.firstValue;
  out["secondValue"] = r.secondValue;
  out["title"] = w.Text(r.title);
  out["riddle"] = w.Text(r.riddle);
  out["answer"] = w.Text(r.answer);
  out["clues"] =
      ListJson(r.clues, [&w](const TextWithMedia& clue) { return TextWithMediaJson(w, clue); });
}

void Type28Fields(ResourceDescriber& w, const Type28Resource& r, Description& out) {
  out["groupKey"] = r.groupKey;
  out["sentences"] = ListJson(r.sentences, [&w](const Type28Sentence& sentence) {
    return Description{{"texts", w.Texts(sentence.texts)}, {"media", w.Media(sentence.media)}};
  });
}

void Type1006Fields(ResourceDescriber& w, const Type1006Resource& r, Description& out) {
  out["media"] = w.Media(r.media);
  Description entries = Description::array();
  for (uint32_t i = 0; i < r.entries.size(); ++i) {
    const CaptionedMedia& entry = *r.entries.ObjectAt(i);
    entries.push_back({{"key", r.entries.KeyAt(i)},
                       {"caption", w.Text(entry.caption)},
                       {"media", w.Media(entry.media)}});
  }
  out["entries"] = entries;
  out["title"] = w.Text(r.title);
  out["strings"] = w.Strings(r.strings);
}

void Type1010Fields(ResourceDescriber& w, const Type1010Resource& r, Description& out) {
  out["groupKey"] = r.groupKey;
  Description texts = Description::array();
  for (const TranslatedText& text : r.texts) {
    texts.push_back({{"text", w.Text(text.text)}, {"translations", w.Texts(text.translations)}});
  }
  out["texts"] = texts;
  out["picture"] = w.Media(r.picture);
  out["moreTexts"] = w.Texts(r.moreTexts);
}

void Type2000Fields(ResourceDescriber& w, const Type2000Resource& r, Description& out) {
  out["description"] = {{"attribute", r.description.attribute},
                        {"titles", w.Texts(r.description.titles)},
                        {"media", w.Media(r.description.media)}};
}

}  // namespace

std::span<const TypeFields> MediaTypeFields() {
  static constexpr TypeFields kRows[] = {
      {Type5Resource::kType, &FieldsOf<Type5Resource, &Type5Fields>},
      {Type9Resource::kType, &FieldsOf<Type9Resource, &Type9Fields>},
      {Type10Resource::kType, &FieldsOf<Type10Resource, &Type10Fields>},
      {Type14Resource::kType, &FieldsOf<Type14Resource, &Type14Fields>},
      {Type20Resource::kType, &FieldsOf<Type20Resource, &Type20Fields>},
      {Type21Resource::kType, &FieldsOf<Type21Resource, &Type21Fields>},
      {Type28Resource::kType, &FieldsOf<Type28Resource, &Type28Fields>},
      {Type1006Resource::kType, &FieldsOf<Type1006Resource, &Type1006Fields>},
      {Type1010Resource::kType, &FieldsOf<Type1010Resource, &Type1010Fields>},
      {Type2000Resource::kType, &FieldsOf<Type2000Resource, &Type2000Fields>},
  };
  return kRows;
}

}  // namespace lumora
