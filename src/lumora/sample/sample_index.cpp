#include <lumora/sample/sample_index.h>

#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type2000.h>
#include <lumora/resources/types/type40.h>

#include <memory>
#include <string_view>

#include <lumora/sample/sample_files.h>
#include <lumora/sample/sample_layout.h>
#include <lumora/sample/sample_phrases.h>

namespace lumora::sample {
namespace {

constexpr uint32_t kDescriptionType = 2000;

struct Description {
  uint32_t number;
  uint8_t attribute;  // its group key; repeated keys list once among a discipline's values
  std::u16string_view english;
  std::u16string_view french;
};

constexpr Description kDescriptions[] = {
    {10, 3, u"Greetings", u"Salutations"},
    {20, 1, u"At the café", u"Au café"},
    {30, 3, u"Travelling", u"En voyage"},
    {40, 2, u"Numbers", u"Les nombres"},
};

void Describe(const Description& description, Type2000Entry& entry) {
  entry.attribute = description.attribute;
  entry.titles.Add(kEnglish, CodePageText(kWesternCodePage, WideText(description.english)));
  entry.titles.Add(kFrench, CodePageText(kWesternCodePage, WideText(description.french)));
}

bool RebuildIndex(uint32_t type, const std::string& root, const std::string& data_folder,
                  std::string* error) {
  if (BuildTypeIndex(type, root, data_folder)) return true;
  *error = "cannot build " + IndexFilePath(data_folder, type);
  return false;
}

}  // namespace

bool WriteDescriptions(const std::string& root, std::string* error) {
  for (const Description& description : kDescriptions) {
    Type2000Resource resource;
    Describe(description, resource.description);
    resource.description.media =
        MediaRef(kMediaPicture, kDescriptionFolder, MakeResourceId(0, kDescriptionPicture));
    if (!StoreResourceFile(root, MakeResourceId(0, description.number), resource, error)) {
      return false;
    }
  }
  return true;
}

bool RebuildDescriptionIndex(const std::string& root, const std::string& data_folder,
                             std::string* error) {
  return RebuildIndex(kDescriptionType, root, data_folder, error);
}

bool RebuildResourceIndexes(const std::string& root, const std::string& data_folder,
                            std::string* error) {
  // The exercises' rebuild renews the elements' index too but passes over an unreadable
  // element file; rebuilding the elements' index on its own first reports it.
  return RebuildIndex(kContentElementType, root, data_folder, error) &&
         RebuildIndex(Type40Resource::kType, root, data_folder, error);
}

bool RebuildPackageIndexes(const std::string& root, const std::string& data_folder,
                           std::string* error) {
  if (!RebuildResourceIndexes(root, data_folder, error)) return false;
  for (uint32_t type : {5u, 8u, 10u, 28u, 1003u, kDescriptionType}) {
    if (!RebuildIndex(type, root, data_folder, error)) return false;
  }
  return true;
}

bool RebuildEveryTypeIndex(const std::string& root, const std::string& data_folder,
                           std::string* error) {
  if (!RebuildResourceIndexes(root, data_folder, error)) return false;
  for (uint32_t type : kExerciseTypes) {
    if (type == Type40Resource::kType || type == kContentElementType) {
      continue;
    }
    if (!RebuildIndex(type, root, data_folder, error)) return false;
  }
  return true;
}

}  // namespace lumora::sample
