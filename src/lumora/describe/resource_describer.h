// Writes the fields of decoded resources into descriptions, and collects every medium met while
// it does, in the order met.
#pragma once

#include <lumora/describe/description.h>
#include <lumora/platform/archive.h>
#include <lumora/platform/typed_array.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/language_texts.h>
#include <lumora/resources/marked_text.h>
#include <lumora/resources/media_ref.h>
#include <lumora/resources/object_list.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/support/wide_text.h>

#include <cstdint>
#include <string>

namespace lumora {

class ResourceDescriber {
 public:
  // textCodePage: the code page of the resources' narrow texts.
  explicit ResourceDescriber(uint32_t textCodePage) : textCodePage_(textCodePage) {}

  // The type's own fields (no head): false for an object of no known exercise type.
  bool Fields(const ExerciseResource& resource, Description& out);
  // Every medium of kind other than 0 met so far.
  const Description& media() const { return media_; }

  Description Element(const ContentElement& element);
  Description Media(const MediaRef& media);
  Description Text(const MarkedText& text) const;
  Description Texts(const LanguageTexts& texts) const;
  Description Texts(const TextList& texts) const;
  Description Text(const CodePageText& text) const;
  std::string Narrow(const std::string& text) const;
  Description Strings(const StringArray& strings) const;

 private:
  uint32_t textCodePage_;
  Description media_ = Description::array();
};

// Fixed-size records as lowercase hex strings, one per record.
template <size_t N>
Description RecordsJson(const TypedArray<RawRecord<N>>& records) {
  static constexpr char kHex[] = "0123456789abcdef";
  Description out = Description::array();
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

Description BytesJson(const ByteArray& bytes);
Description NumbersJson(const DWordArray& numbers);

// One value per object of `list`, made by `each`.
template <typename T, typename Each>
Description ListJson(const ObjectList<T>& list, Each each) {
  Description out = Description::array();
  for (uint32_t i = 0; i < list.size(); ++i) out.push_back(each(list[i]));
  return out;
}

}  // namespace lumora
