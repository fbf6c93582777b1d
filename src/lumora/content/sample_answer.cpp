// The sample content root through the content face.
#include <lumora/content.h>
#include <lumora/content/content_answers.h>
#include <lumora/sample/sample_content.h>
#include <lumora/sample/sample_layout.h>

namespace lumora {

Status WriteSample(const std::string& dir, int scale) {
  if (scale < 1 || scale > sample::kMaxScale) {
    return Failure(StatusCode::kInvalidArgument, "the scale is 1 to " +
                                                     std::to_string(sample::kMaxScale) + ", not " +
                                                     std::to_string(scale));
  }
  sample::SampleOptions options;
  options.scale = scale;
  std::string error;
  if (!sample::WriteSampleContent(dir, options, &error)) {
    return Failure(StatusCode::kUnwritable, error);
  }
  return Status();
}

}  // namespace lumora
