#include "resources/types/video_type_builders.h"

#include <lumora/platform/archive.h>

#include <memory>

namespace lumora::testing {

Record16 LinkRecord16(uint16_t kind, uint16_t type, uint16_t paragraph, uint32_t number) {
  Record16 record;
  EncodeU16(&record.bytes[0], kind);
  record.bytes[2] = 0x5A;  // the authoring tool's own bytes must survive untouched
  EncodeU16(&record.bytes[8], type);
  EncodeU16(&record.bytes[10], paragraph);
  EncodeU32(&record.bytes[12], number);
  return record;
}

ByteArray QualityFolderList(std::initializer_list<uint8_t> folders) {
  ByteArray array;
  for (uint8_t q : folders) array.Add(q);
  return array;
}

MarkedText PlainMarkedText(const std::u16string& text) { return MarkedText(1252, WideText(text)); }

Type8Resource RichType8() {
  Type8Resource resource;
  resource.resourceId = 0x00100123;
  resource.groupKey = 4;
  resource.records.Add(LinkRecord16(3, 1003, 0, 12));
  VideoQuestion& first = resource.items.AddNew();
  first.question = PlainMarkedText(u"Why?");
  first.question.records16.Add(LinkRecord16(0, 1003, 2, 12));
  first.question.records24.Add(Record24{{9, 8, 7}});
  first.firstTexts.Add(std::make_unique<MarkedText>(PlainMarkedText(u"Because")));
  first.secondTexts.Add(std::make_unique<MarkedText>(PlainMarkedText(u"Never")));
  first.secondTexts.Add(std::make_unique<MarkedText>(PlainMarkedText(u"Always")));
  resource.items.AddNew().question = PlainMarkedText(u"Who?");
  return resource;
}

Type1003Resource RichType1003() {
  Type1003Resource resource;
  resource.resourceId = 0x0010000C;
  resource.records.Add(LinkRecord16(1, 1005, 0, 7));
  for (const char16_t* text : {u"One", u"", u"Three"}) {
    resource.script.paragraphs.Add(std::make_unique<MarkedText>(PlainMarkedText(text)));
  }
  resource.video = MediaRef(kMediaVideo, 1003, 0x0010000C);
  resource.title = CodePageText(1250, WideText(u"Title"));
  resource.picture = MediaRef(kMediaPicture, 1003, 0x0010000C);
  return resource;
}

Type1006Resource RichType1006() {
  Type1006Resource resource;
  resource.resourceId = 0x00100006;
  resource.media = MediaRef(kMediaSound, 1006, 0x00100006);
  auto first = std::make_unique<CaptionedMedia>();
  first->caption = CodePageText(1252, WideText(u"Nine"));
  first->media = MediaRef(kMediaPicture, 1006, 0x00100009);
  auto second = std::make_unique<CaptionedMedia>();
  second->caption = CodePageText(1251, WideText(u"Three"));
  resource.entries.Add(9, std::move(first));
  resource.entries.Add(3, std::move(second));
  resource.title = CodePageText(1252, WideText(u"Pictures"));
  resource.strings.items = {"alpha", "beta"};
  return resource;
}

Type1010Resource RichType1010() {
  Type1010Resource resource;
  resource.resourceId = 0x0010000A;
  resource.groupKey = 6;
  const char16_t* texts[] = {u"First", u"Second", u"Third", u"Fourth"};
  for (size_t i = 0; i < Type1010Resource::kTextCount; ++i) {
    resource.texts[i].text = PlainMarkedText(texts[i]);
    resource.texts[i].translations.Add(static_cast<uint8_t>(9 + i),
                                       CodePageText(1252, WideText(texts[i])));
  }
  resource.picture = MediaRef(kMediaPicture, 1010, 0x0010000A);
  resource.moreTexts.Add(std::make_unique<MarkedText>(PlainMarkedText(u"More")));
  resource.moreTexts.Add(std::make_unique<MarkedText>(PlainMarkedText(u"")));
  return resource;
}

Type2000Resource RichType2000() {
  Type2000Resource resource;
  resource.resourceId = 0x00000005;
  resource.description.attribute = 2;
  resource.description.titles.Add(9, CodePageText(1252, WideText(u"Deutsch")));
  resource.description.titles.Add(12, CodePageText(1250, WideText(u"Cesky")));
  resource.description.media = MediaRef(kMediaPicture, 2000, 0x00000005);
  return resource;
}

}  // namespace lumora::testing
