// The small tools of the maintenance face: checksums, code pages, context labels, the language
// table, the internal log and the sample content.
#include <lumora/maintenance.h>
#include <lumora/platform/codepage_stream.h>
#include <lumora/resources/context_description.h>
#include <lumora/resources/context_labels.h>
#include <lumora/resources/text_context.h>
#include <lumora/sample/sample_content.h>
#include <lumora/support/crc32.h>
#include <lumora/support/internal_log.h>
#include <lumora/support/language_table.h>

#include <cstdio>
#include <vector>

namespace lumora {
namespace {

constexpr size_t kReadBlock = 1 << 20;
constexpr uint32_t kWesternCodePage = 1252;

CodePageStream::Direction StreamDirection(CodePageConverter::Direction direction) {
  return direction == CodePageConverter::Direction::kDecode ? CodePageStream::Direction::kDecode
                                                            : CodePageStream::Direction::kEncode;
}

}  // namespace

static_assert(kMaxSampleScale == sample::kMaxScale);

bool WriteSampleContent(const std::string& folder, const SampleOptions& options,
                        std::string* error) {
  sample::SampleOptions written;
  written.scale = options.scale;
  written.durable = options.durable;
  return sample::WriteSampleContent(folder, written, error);
}

std::optional<uint32_t> FileCrc32(const std::string& path) {
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                       &std::fclose);
  if (!file) return std::nullopt;
  std::vector<char> block(kReadBlock);
  CrcAccumulator crc;
  size_t got;
  while ((got = std::fread(block.data(), 1, block.size(), file.get())) > 0) {
    crc.Update(block.data(), got);
  }
  if (std::ferror(file.get())) return std::nullopt;
  return crc.value();
}

struct CodePageConverter::State {
  CodePageStream stream;
};

CodePageConverter::CodePageConverter(uint32_t codePage, Direction direction)
    : state_(new State{CodePageStream(codePage, StreamDirection(direction))}) {}

CodePageConverter::~CodePageConverter() = default;

void CodePageConverter::Convert(std::string_view block, bool last, std::string& out) {
  state_->stream.Convert(block, last, out);
}

uint64_t CodePageConverter::substitutions() const { return state_->stream.substitutions(); }

ContextLabels LabelContext(uint32_t code) {
  const TextContext context(code, -1);
  ContextLabels labels;
  labels.code = context.code.value;
  labels.technical = PrintableText(TechnicalLabel(context.code), kWesternCodePage);
  labels.readable = PrintableText(ReadableLabel(context), kWesternCodePage);
  labels.description = PrintableText(DescribeContext(&context), kWesternCodePage);
  labels.valid = context.IsValid();
  return labels;
}

std::vector<LanguageRowInfo> LanguageTable() {
  std::vector<LanguageRowInfo> rows;
  for (unsigned number = 0; number < kLanguageCount; ++number) {
    const LanguageInfo& row = LanguageRow(number);
    rows.push_back(
        {number, row.name, row.code, row.charset, row.leftToRight, row.codePage, row.langId});
  }
  return rows;
}

void InstallInternalLog(const std::string& folder, uint8_t keepFiles) {
  InstallLog(folder, keepFiles);
}

void RemoveInternalLog() { RemoveLog(); }

}  // namespace lumora
