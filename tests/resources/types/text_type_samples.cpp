#include "resources/types/text_type_samples.h"

#include <memory>

namespace lumora::testing {

MarkedText SampleText(const std::u16string& text) {
  MarkedText marked(1252, WideText(text));
  marked.records16.Add(Record16{{1, 0, 0, 0, 0, 0, 0, 0, 0xEB, 0x03, 2, 0, 5}});
  marked.records24.Add(Record24{{4, 5, 6}});
  return marked;
}

void AddTexts(TextList& list, const std::vector<std::u16string>& texts) {
  for (const auto& text : texts) list.Add(std::make_unique<MarkedText>(SampleText(text)));
}

void FillSample(Type1Resource& resource) {
  resource.value = 0x0A0B0C0D;
  resource.groupKey = 3;
  AddTexts(resource.firstTexts, {u"cat", u"dog"});
  AddTexts(resource.secondTexts, {u"Katze"});
}

void FillSample(Type2Resource& resource) {
  resource.groupKey = 4;
  resource.sentence = SampleText(u"the cat sleeps");
  resource.words.items = {"the", "cat", "sleeps"};
}

void FillSample(Type3Resource& resource) {
  resource.groupKey = 5;
  AddTexts(resource.texts, {u"a ___ b", u"c"});
}

void FillSample(Type4Resource& resource) {
  resource.groupKey = 6;
  resource.plainText = CodePageText(1250, WideText(u"H\u00e1danka"));
  resource.firstText = SampleText(u"first");
  resource.secondText = SampleText(u"second half");
}

void FillSample(Type7Resource& resource) {
  resource.groupKey = 7;
  resource.text = SampleText(u"pick one");
  AddTexts(resource.choices, {u"right", u"wrong"});
  resource.words.items = {"r", "w", ""};
  resource.transientText = "kept in memory";
}

void FillSample(SentencePracticeResource& resource) {
  resource.value = 0x00012345;
  resource.groupKey = 8;
  resource.leadingRecord.text = SampleText(u"model");
  AddTexts(resource.leadingRecord.texts, {u"m1"});
  for (const char16_t* text : {u"one", u"two"}) {
    PracticeRecord& record = resource.records.AddNew();
    record.text = SampleText(text);
    AddTexts(record.texts, {u"x", u"yy"});
  }
  resource.plainText = CodePageText(1251, WideText(u"\u0442\u0435\u043a\u0441\u0442"));
}

void FillSample(Type15Resource& resource) {
  resource.value = 15;
  resource.groupKey = 9;
  resource.plainText = CodePageText(1252, WideText(u"title"));
  for (uint32_t value : {0x11u, 0x22u}) {
    Type15Item& item = resource.items.AddNew();
    item.value = value;
    item.text = SampleText(u"item");
    AddTexts(item.answers.texts, {u"answer"});
  }
}

void FillSample(Type16Resource& resource) {
  resource.value = 0xFFFFFFFE;
  resource.groupKey = 10;
  resource.text = SampleText(u"noun");
}

void FillSample(Type17Resource& resource) {
  resource.groupKey = 11;
  Type17Item& first = resource.firstItems.AddNew();
  first.value = 1;
  first.numbers.Add(0x00100001);
  first.numbers.Add(0x00100002);
  resource.firstItems.AddNew().value = 2;
  Type17Item& second = resource.secondItems.AddNew();
  second.value = 3;
  second.numbers.Add(0x00200003);
}

void FillSample(Type18Resource& resource) {
  resource.groupKey = 12;
  resource.value = 0x01020304;
}

}  // namespace lumora::testing
