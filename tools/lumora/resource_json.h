// JSON forms of the decoded resource classes, for `lumora resource`. Every medium met while a
// resource is written out is also collected, in the order met, for the answer's "media" list.
#pragma once

#include <lumora/platform/archive_string.h>
#include <lumora/platform/typed_array.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/language_texts.h>
#include <lumora/resources/marked_text.h>
#include <lumora/resources/media_ref.h>
#include <lumora/resources/object_list.h>
#include <lumora/resources/text_list.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/support/wide_text.h>

#include <nlohmann/json.hpp>

#include <array>
#include <cstdint>
#include <string>

namespace lumora::cli {

class ResourceJsonWriter {
 public:
  // textCodePage: the code page of the resources' narrow texts (see printable_text.h).
  explicit ResourceJsonWriter(uint32_t textCodePage) : textCodePage_(textCodePage) {}

  // The type's own fields (no head): false for an object of no known exercise type.
  bool Fields(const ExerciseResource& resource, nlohmann::ordered_json& out);
  const nlohmann::ordered_json& media() const { return media_; }

  nlohmann::ordered_json Element(const ContentElement& element);
  nlohmann::ordered_json Media(const MediaRef& media);
  nlohmann::ordered_json Text(const MarkedText& text) const;
  nlohmann::ordered_json Texts(const LanguageTexts& texts) const;
  nlohmann::ordered_json Texts(const TextList& texts) const;
  nlohmann::ordered_json Text(const CodePageText& text) const;
  std::string Narrow(const std::string& text) const;
  nlohmann::ordered_json Strings(const StringArray& strings) const;

 private:
  uint32_t textCodePage_;
  nlohmann::ordered_json media_ = nlohmann::ordered_json::array();
};

// Fixed-size records as lowercase hex strings, one per record.
template <size_t N>
nlohmann::ordered_json RecordsJson(const TypedArray<RawRecord<N>>& records) {
  static constexpr char kHex[] = "0123456789abcdef";
  nlohmann::ordered_json out = nlohmann::ordered_json::array();
  for (const RawRecord<N>& record : records) {
    std::string hex;
    for (uint8_t byte : record.bytes) {
      hex.push_back(kHex[byte >> 4]);
      hex.push_back(kHex[byte & 15]);
    }
    out.push_back(hex);
  }
  return out;
}

nlohmann::ordered_json BytesJson(const ByteArray& bytes);
nlohmann::ordered_json NumbersJson(const DWordArray& numbers);

// One JSON value per object of `list`, made by `each`.
template <typename T, typename Each>
nlohmann::ordered_json ListJson(const ObjectList<T>& list, Each each) {
  nlohmann::ordered_json out = nlohmann::ordered_json::array();
  for (uint32_t i = 0; i < list.size(); ++i) out.push_back(each(list[i]));
  return out;
}

// The form for people of a JSON answer built here: texts, translations and media on one line
// each, media without a kind and empty or default values left out.
nlohmann::ordered_json HumanForm(const nlohmann::ordered_json& value);

}  // namespace lumora::cli
