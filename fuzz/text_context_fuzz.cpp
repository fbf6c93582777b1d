// Feeds arbitrary bytes to the text context loader and labels whatever it reads, so that every
// code, however malformed, goes through both labels and the description.
#include <lumora/platform/archive.h>
#include <lumora/platform/stream.h>
#include <lumora/resources/context_description.h>
#include <lumora/resources/context_labels.h>
#include <lumora/resources/text_context.h>

#include <cstddef>
#include <cstdint>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  lumora::MemoryStream stream(std::vector<uint8_t>(data, data + size));
  lumora::Archive ar(stream, lumora::Archive::Mode::kLoad);
  lumora::TextContext context;
  try {
    context.Serialize(ar);
  } catch (const lumora::ArchiveError&) {
    return 0;
  }
  lumora::TechnicalLabel(context.code);
  lumora::ReadableLabel(context);
  lumora::DescribeContext(&context);
  return 0;
}
