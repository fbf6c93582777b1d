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

#include "resource_json_types.h"

namespace lumora::cli {
namespace {

using Json = nlohmann::ordered_json;

Json TextWithMediaJson(ResourceJsonWriter& w, const TextWithMedia& piece) {
  return {{"text", w.Text(piece.text)}, {"media", w.Media(piece.media)}};
}

void Type5Fields(ResourceJsonWriter& w, const Type5Resource& r, Json& out) {
  out["groupKey"] = r.groupKey;
  out["title"] = w.Text(r.title);
  out["sentences"] = ListJson(r.sentences, [&w](const DictationSentence& sentence) {
    return Json{{"value", sentence.value},
                {"texts", w.Texts(sentence.texts)},
                {"media", w.Media(sentence.media)}};
  });
}

void Type9Fields(ResourceJsonWriter& w, const Type9Resource& r, Json& out) {
  out["groupKey"] = r.groupKey;
  out["words"] = w.Texts(r.words);
  out["strings"] = w.Strings(r.strings);
  out["media"] = w.Media(r.media);
}

void Type10Fields(ResourceJsonWriter& w, const Type10Resource& r, Json& out) {
  out["groupKey"] = r.groupKey;
  out["instruction"] = w.Text(r.instruction);
  out["words"] =
      ListJson(r.words, [&w](const TextWithMedia& word) { return TextWithMediaJson(w, word); });
}

Json Type14EntriesJson(ResourceJsonWriter& w, const ObjectList<Type14Entry>& entries) {
  return ListJson(entries, [&w](const Type14Entry& entry) {
    return Json{{"value", entry.value}, {"text", w.Text(entry.text)}};
  });
}

void Type14Fields(ResourceJsonWriter& w, const Type14Resource& r, Json& out) {
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

void Type20Fields(ResourceJsonWriter& w, const Type20Resource& r, Json& out) {
  out["value"] = r.value;
  out["groupKey"] = r.groupKey;
  out["pieces"] = ListJson(r.pieces, [&w](const PatchWorkPiece& piece) {
    return Json{{"media", w.Media(piece.media)}, {"text", w.Text(piece.text)}};
  });
}

void Type21Fields(ResourceJsonWriter& w, const Type21Resource& r, Json& out) {
  out["firstValue"] = r.firstValue;
  out["secondValue"] = r.secondValue;
  out["title"] = w.Text(r.title);
  out["riddle"] = w.Text(r.riddle);
  out["answer"] = w.Text(r.answer);
  out["clues"] =
      ListJson(r.clues, [&w](const TextWithMedia& clue) { return TextWithMediaJson(w, clue); });
}

void Type28Fields(ResourceJsonWriter& w, const Type28Resource& r, Json& out) {
  out["groupKey"] = r.groupKey;
  out["sentences"] = ListJson(r.sentences, [&w](const Type28Sentence& sentence) {
    return Json{{"texts", w.Texts(sentence.texts)}, {"media", w.Media(sentence.media)}};
  });
}

void Type1006Fields(ResourceJsonWriter& w, const Type1006Resource& r, Json& out) {
  out["media"] = w.Media(r.media);
  Json entries = Json::array();
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

void Type1010Fields(ResourceJsonWriter& w, const Type1010Resource& r, Json& out) {
  out["groupKey"] = r.groupKey;
  Json texts = Json::array();
  for (const TranslatedText& text : r.texts) {
    texts.push_back({{"text", w.Text(text.text)}, {"translations", w.Texts(text.translations)}});
  }
  out["texts"] = texts;
  out["picture"] = w.Media(r.picture);
  out["moreTexts"] = w.Texts(r.moreTexts);
}

void Type2000Fields(ResourceJsonWriter& w, const Type2000Resource& r, Json& out) {
  out["description"] = {{"attribute", r.description.attribute},
                        {"titles", w.Texts(r.description.titles)},
                        {"media", w.Media(r.description.media)}};
}

}  // namespace

bool MediaTypeFields(ResourceJsonWriter& w, const ExerciseResource& resource, Json& out) {
  switch (resource.GetType()) {
    case Type5Resource::kType:
      Type5Fields(w, static_cast<const Type5Resource&>(resource), out);
      return true;
    case Type9Resource::kType:
      Type9Fields(w, static_cast<const Type9Resource&>(resource), out);
      return true;
    case Type10Resource::kType:
      Type10Fields(w, static_cast<const Type10Resource&>(resource), out);
      return true;
    case Type14Resource::kType:
      Type14Fields(w, static_cast<const Type14Resource&>(resource), out);
      return true;
    case Type20Resource::kType:
      Type20Fields(w, static_cast<const Type20Resource&>(resource), out);
      return true;
    case Type21Resource::kType:
      Type21Fields(w, static_cast<const Type21Resource&>(resource), out);
      return true;
    case Type28Resource::kType:
      Type28Fields(w, static_cast<const Type28Resource&>(resource), out);
      return true;
    case Type1006Resource::kType:
      Type1006Fields(w, static_cast<const Type1006Resource&>(resource), out);
      return true;
    case Type1010Resource::kType:
      Type1010Fields(w, static_cast<const Type1010Resource&>(resource), out);
      return true;
    case Type2000Resource::kType:
      Type2000Fields(w, static_cast<const Type2000Resource&>(resource), out);
      return true;
    default:
      return false;
  }
}

}  // namespace lumora::cli
