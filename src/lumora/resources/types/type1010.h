// The resource class of type 1010: four texts, each with its translations, a picture and a
// list of further texts, filed under a group key.
//
// Stored form after the head and the type tag: u8 group key; texts 1 to 3, each a MarkedText
// followed by its LanguageTexts; the picture (MediaRef); text 4 the same way; then the text
// list.
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/language_texts.h>
#include <lumora/resources/marked_text.h>
#include <lumora/resources/media_ref.h>
#include <lumora/resources/object_list.h>

#include <array>
#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

struct TranslatedText {
  MarkedText text;
  LanguageTexts translations;
};

class Type1010Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 1010;
  static constexpr size_t kTextCount = 4;

  const char* ClassName() const override { return "Type1010Resource"; }
  void Serialize(Archive& ar) override;

  void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                    const std::string& chosen_root) override;
  uint32_t GetType() const override { return kType; }
  // Copies the picture; false when there is none (its resource field is 0), or when a folder
  // or a copy fails.
  bool CopyMedia(const std::string& destination_root, uint32_t destination_id,
                 const ByteArray& quality_folders, const std::string& source_root) override;
  // Without a picture: "No picture found". Otherwise two independent checks: no lookup for
  // the quality folders finds it ("\t\tFile not found", naming the file the first lookup
  // tried), and its copy in sub-folder Q3, "C%04d/r%07d/Q3/p%07d.swf" after its course,
  // folder and number, is missing ("File not found" without the tabs).
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  uint8_t groupKey = 0;
  std::array<TranslatedText, kTextCount> texts;
  MediaRef picture;
  TextList moreTexts;
};

}  // namespace lumora

#pragma GCC visibility pop
