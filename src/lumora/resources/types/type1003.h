// The resource class of type 1003: a video with numbered paragraphs of text, which the
// questions of type 8 link to paragraph by paragraph.
//
// Stored form after the head and the type tag: the script (its paragraphs as a text list:
// u32 count, then every MarkedText), the video (MediaRef), a title (CodePageText) and a
// picture (MediaRef).
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/media_ref.h>
#include <lumora/resources/object_list.h>
#include <lumora/support/wide_text.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class VideoScript : public Object {
 public:
  const char* ClassName() const override { return "VideoScript"; }
  void Serialize(Archive& ar) override { paragraphs.Serialize(ar); }

  // Paragraph n of the video is paragraphs[n - 1].
  TextList paragraphs;
};

class Type1003Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 1003;

  const char* ClassName() const override { return "Type1003Resource"; }
  void Serialize(Archive& ar) override;

  void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                    const std::string& chosen_root) override;
  uint32_t GetType() const override { return kType; }
  // Reports a video or a picture that no lookup for the quality folders finds, and every
  // resource file that a link record of the head names (target type other than 0, course
  // of `resource_id`) that does not exist.
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  VideoScript script;
  MediaRef video;
  CodePageText title;
  MediaRef picture;
};

}  // namespace lumora

#pragma GCC visibility pop
