#include <lumora/describe/printable_text.h>
#include <lumora/describe/resource_describer.h>
#include <lumora/describe/resource_fields.h>
#include <lumora/platform/utf8.h>

#include <string>

namespace lumora {

Description DescribeMedia(const MediaRef& media) {
  return {{"kind", media.kind},
          {"folder", media.folder},
          {"resource", media.resource},
          {"path", PrintableText(media.path, kWindowsAnsi)}};
}

Description BytesJson(const ByteArray& bytes) {
  Description out = Description::array();
  for (uint8_t byte : bytes) out.push_back(byte);
  return out;
}

const TypeFields* FieldsOfType(uint32_t type) {
  for (auto family : {TextTypeFields, MediaTypeFields, VideoTypeFields, ElementTypeFields}) {
    for (const TypeFields& row : family()) {
      if (row.type == type) return &row;
    }
  }
  return nullptr;
}

bool ResourceDescriber::Fields(const ExerciseResource& resource, Description& out) {
  const TypeFields* row = FieldsOfType(resource.GetType());
  if (row == nullptr) return false;
  out["records"] = RecordsJson(resource.records);
  row->fields(*this, resource, out);
  return true;
}

Description ResourceDescriber::Element(const ContentElement& element) {
  Description out{{"isReference", element.isReference}, {"reference", element.reference}};
  // Resolving media expands a reference into the element it names; one left unexpanded (media
  // not resolved, or its file missing) holds nothing but the reference.
  if (element.isReference) return out;
  out["text"] = Text(element.text);
  out["translations"] = Texts(element.translations);
  out["note"] = Narrow(element.note);
  out["media"] = Media(element.media);
  out["firstAttributes"] = BytesJson(element.firstAttributes);
  out["secondAttributes"] = BytesJson(element.secondAttributes);
  return out;
}

Description NumbersJson(const DWordArray& numbers) {
  Description out = Description::array();
  for (uint32_t n : numbers) out.push_back(n);
  return out;
}

std::string ResourceDescriber::Narrow(const std::string& text) const {
  return PrintableText(text, textCodePage_);
}

Description ResourceDescriber::Strings(const StringArray& strings) const {
  Description out = Description::array();
  for (const std::string& text : strings.items) out.push_back(Narrow(text));
  return out;
}

Description ResourceDescriber::Media(const MediaRef& media) {
  Description out = DescribeMedia(media);
  if (media.kind != 0) media_.push_back(out);
  return out;
}

Description ResourceDescriber::Text(const MarkedText& text) const {
  return {{"codePage", text.codePage},
          {"text", Utf8(text.text)},
          {"records16", RecordsJson(text.records16)},
          {"records24", RecordsJson(text.records24)}};
}

Description ResourceDescriber::Texts(const LanguageTexts& texts) const {
  Description out = Description::array();
  for (uint32_t i = 0; i < texts.size(); ++i) {
    const CodePageText& text = *texts.TextAt(i);
    out.push_back(
        {{"language", texts.KeyAt(i)}, {"codePage", text.codePage}, {"text", Utf8(text.text)}});
  }
  return out;
}

Description ResourceDescriber::Text(const CodePageText& text) const {
  return {{"codePage", text.codePage}, {"text", Utf8(text.text)}};
}

Description ResourceDescriber::Texts(const TextList& texts) const {
  return ListJson(texts, [this](const MarkedText& text) { return Text(text); });
}

}  // namespace lumora
