#include "resources/stored_files.h"

#include <lumora/resources/index_forms.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/resources/type21_index.h>
#include <lumora/resources/types/type1003_index.h>
#include <lumora/resources/types/type1005_index.h>
#include <lumora/resources/types/type1010_index.h>
#include <lumora/resources/types/type40.h>

#include <memory>
#include <string>

#include "resources/index_bytes.h"
#include "resources/resource_builders.h"
#include "resources/types/small_type_samples.h"
#include "resources/types/text_type_samples.h"
#include "resources/types/video_type_builders.h"

namespace lumora::testing {
namespace {

std::unique_ptr<ContentElement> RichElement(const std::u16string& text) {
  auto element = FullElement(text, 0x00100044, u"Salut", 3);
  element->translations.Add(12, CodePageText(1250, WideText(u"Ahoj")));
  element->text.records16.Add(Record16{{1, 0, 0, 0, 0, 0, 0, 0, 0xED, 0x03, 1, 0, 7}});
  element->text.records24.Add(Record24{{4, 5, 6}});
  element->note = "note";
  element->secondAttributes.Add(8);
  element->secondAttributes.Add(9);
  return element;
}

Bytes Type40File() {
  Type40Resource resource;
  resource.resourceId = kStoredResourceId;
  resource.groupKey = 7;
  resource.records.Add(Record16{{3, 0, 0, 0, 0, 0, 0, 0, 0xEB, 0x03, 0, 0, 9}});
  ExerciseItem& item = AddItem(resource, {0x00100001, 0x00100002}, {0x00100003});
  item.content = *RichElement(u"Question");
  item.media.Add(std::make_unique<MediaRef>(kMediaVideo, 40, kStoredResourceId));
  item.media.Add(std::make_unique<MediaRef>(kMediaSound, 40, 0x00100124));
  item.records.Add(Record16{{1, 2, 3}});
  ItemPart& first = item.firstParts[0];
  first.value = 0x1234;
  first.flag = true;
  first.content = *RichElement(u"Part");
  first.elements.Add(RichElement(u"Inline"));
  item.secondParts[0].content.reference = 0x00100005;
  AddItem(resource, {});
  return StoreObject(resource);
}

Bytes Type1005File() {
  auto element = RichElement(u"Element");
  element->resourceId = kStoredResourceId;
  element->reference = 0x00100009;
  element->records.Add(Record16{{2}});
  return StoreObject(*element);
}

Bytes NumberListFile() {
  Type1005Index index;
  auto medium = std::make_unique<Type1005Entry>();
  medium->flagA = true;
  medium->values.Add(4);
  auto translated = std::make_unique<Type1005Entry>();
  translated->flagB = true;
  index.table.Add(3, std::move(medium));
  index.table.Add(8, std::move(translated));
  Bytes bytes = StoreObject(index);
  bytes[4] = 1;  // the keys are ascending: store them as a sorted table
  return bytes;
}

Bytes DescriptionFile() {
  Type2000Index index;
  auto titled = std::make_unique<Type2000Entry>();
  titled->attribute = 3;
  titled->titles.Add(9, CodePageText(1252, WideText(u"Deutsch")));
  titled->titles.Add(12, CodePageText(1250, WideText(u"Cesky")));
  titled->media = MediaRef(kMediaPicture, 2000, 5);
  auto bare = std::make_unique<Type2000Entry>();
  bare->attribute = 1;
  index.table.Add(11, std::move(titled));
  index.table.Add(10, std::move(bare));
  return StoreObject(index);
}

template <typename Resource>
StoredFile SampleFile() {
  auto resource = Sample<Resource>();
  resource->resourceId = kStoredResourceId;
  return {"type-" + std::to_string(Resource::kType) + " resource", Resource::kType, true,
          StoreObject(*resource)};
}

Bytes ByteListFile() {
  Type21Index index;
  index.Add(291, 9);
  index.Add(5, 4);
  return StoreObject(index);
}

// Stored under kStoredResourceId, as the damaged-file tests read it.
template <typename Resource>
Bytes ResourceFile(Resource resource) {
  resource.resourceId = kStoredResourceId;
  return StoreObject(resource);
}

Bytes VideoListFile() {
  Type1003Index index;
  auto entry = std::make_unique<Type1003Entry>();
  entry->paragraphCount = 3;
  index.table.Add(12, std::move(entry));
  return StoreObject(index);
}

Bytes SixTablesFile() {
  Type1010Index index;
  index.groupKeys.Add(2);
  index.groupKeys.Add(6);
  index.groups.FindOrInsert(6).Add(1);
  index.groups.FindOrInsert(2).Add(4);
  index.translated[0].Add(1);
  index.translated[3].Add(4);
  return StoreObject(index);
}

}  // namespace

std::vector<StoredFile> EveryStoredForm() {
  const Bytes sorted = Groups(1, {{2, {7, 8}}, {5, {9}}, {9, {10, 11}}});
  const Bytes unsorted = Groups(0, {{9, {1}}, {2, {3, 4}}});
  std::vector<StoredFile> files = {
      {"type-40 resource", 40, true, Type40File()},
      {"type-1005 resource", 1005, true, Type1005File()},
      {"no groups", 1, false, Groups(0, {})},
      {"sorted groups", 4, false, sorted},
      {"unsorted groups", 10, false, unsorted},
      {"type-40 usage", 40, false,
       Concat({sorted, UsageTable({7, 8, 9}, 4, {0x01000000, 7, 0x00010001})})},
      {"two-byte usage", 5, false, Concat({unsorted, UsageTable({1, 3}, 2, {0x0100, 2})})},
      {"one-byte usage", 12, false, Concat({sorted, UsageTable({7}, 1, {1})})},
      {"usage without groups", 3, false, Concat({Groups(0, {}), UsageTable({}, 1, {})})},
      {"type-1005 number list", 1005, false, NumberListFile()},
      {"plain numbers", 1006, false, Numbers({4, 9, 2})},
      {"descriptions", 2000, false, DescriptionFile()},
      SampleFile<Type1Resource>(),
      SampleFile<Type2Resource>(),
      SampleFile<Type3Resource>(),
      SampleFile<Type4Resource>(),
      SampleFile<Type7Resource>(),
      SampleFile<Type12Resource>(),
      SampleFile<Type13Resource>(),
      SampleFile<Type15Resource>(),
      SampleFile<Type16Resource>(),
      SampleFile<Type17Resource>(),
      SampleFile<Type18Resource>(),
      {"byte list", 21, false, ByteListFile()},
      {"type-8 resource", 8, true, ResourceFile(RichType8())},
      {"type-1003 resource", 1003, true, ResourceFile(RichType1003())},
      {"type-1006 resource", 1006, true, ResourceFile(RichType1006())},
      {"type-1010 resource", 1010, true, ResourceFile(RichType1010())},
      {"type-2000 resource", 2000, true, ResourceFile(RichType2000())},
      {"type-1003 number list", 1003, false, VideoListFile()},
      {"type-1010 six tables", 1010, false, SixTablesFile()},
  };
  static_assert(kSampleId == kStoredResourceId);
  for (auto& sample : SmallTypeSamples()) {
    files.push_back({"type-" + std::to_string(sample->GetType()) + " resource", sample->GetType(),
                     true, StoreObject(*sample)});
  }
  return files;
}

}  // namespace lumora::testing
