#include <lumora/platform/codepage_converter.h>
#include <lumora/platform/codepage_stream.h>

#include <unicode/ucnv_cb.h>

#include <array>
#include <stdexcept>
#include <string>

namespace lumora {
namespace {

constexpr size_t kPivotUnits = 4096;
constexpr size_t kOutputBytes = 16384;

ConverterPtr OpenUtf8Converter() {
  UErrorCode status = U_ZERO_ERROR;
  ConverterPtr converter(ucnv_open("UTF-8", &status));
  if (U_FAILURE(status)) throw std::runtime_error("no UTF-8 converter");
  return converter;
}

// The replacement callbacks count into the stream's counter, their context. Resets, closes and
// clones also reach a callback; they replace nothing.
template <char16_t kReplacement>
void ReplaceToUnicode(const void* context, UConverterToUnicodeArgs* args, const char*, int32_t,
                      UConverterCallbackReason reason, UErrorCode* status) {
  if (reason > UCNV_IRREGULAR) return;
  ++*static_cast<uint64_t*>(const_cast<void*>(context));
  *status = U_ZERO_ERROR;
  const char16_t replacement = kReplacement;
  ucnv_cbToUWriteUChars(args, &replacement, 1, 0, status);
}

void ReplaceFromUnicode(const void* context, UConverterFromUnicodeArgs* args, const UChar*, int32_t,
                        UChar32, UConverterCallbackReason reason, UErrorCode* status) {
  if (reason > UCNV_IRREGULAR) return;
  ++*static_cast<uint64_t*>(const_cast<void*>(context));
  *status = U_ZERO_ERROR;
  ucnv_cbFromUWriteSub(args, 0, status);
}

void SetCallback(UConverter* converter, UConverterToUCallback callback, uint64_t* counter) {
  UErrorCode status = U_ZERO_ERROR;
  ucnv_setToUCallBack(converter, callback, counter, nullptr, nullptr, &status);
}

void SetCallback(UConverter* converter, UConverterFromUCallback callback, uint64_t* counter) {
  UErrorCode status = U_ZERO_ERROR;
  ucnv_setFromUCallBack(converter, callback, counter, nullptr, nullptr, &status);
}

}  // namespace

// Bytes go from the source converter through a UTF-16 pivot into the target converter; the
// pivot keeps what the target has not taken yet from one block to the next.
struct CodePageStream::State {
  ConverterPtr source;
  ConverterPtr target;
  std::array<UChar, kPivotUnits> pivot{};
  UChar* pivotSource = pivot.data();
  UChar* pivotTarget = pivot.data();
  bool started = false;
  uint64_t substitutions = 0;
};

CodePageStream::CodePageStream(uint32_t codePage, Direction direction)
    : state_(std::make_unique<State>()) {
  State& s = *state_;
  if (direction == Direction::kDecode) {
    s.source = OpenCodePageConverter(codePage);
    s.target = OpenUtf8Converter();
    SetCallback(s.source.get(), &ReplaceToUnicode<u'\uFFFD'>, &s.substitutions);
  } else {
    s.source = OpenUtf8Converter();
    s.target = OpenCodePageConverter(codePage);
    // Ill-formed UTF-8 becomes "?" at once: a U+FFFD would be replaced a second time by the
    // code page, and counted twice.
    SetCallback(s.source.get(), &ReplaceToUnicode<u'?'>, &s.substitutions);
    SetCallback(s.target.get(), &ReplaceFromUnicode, &s.substitutions);
  }
}

CodePageStream::~CodePageStream() = default;

void CodePageStream::Convert(std::string_view block, bool last, std::string& out) {
  State& s = *state_;
  static const char kNothing = 0;
  const char* source = block.empty() ? &kNothing : block.data();
  const char* const sourceLimit = source + block.size();
  std::array<char, kOutputBytes> buffer;
  for (;;) {
    char* target = buffer.data();
    UErrorCode status = U_ZERO_ERROR;
    ucnv_convertEx(s.target.get(), s.source.get(), &target, buffer.data() + buffer.size(), &source,
                   sourceLimit, s.pivot.data(), &s.pivotSource, &s.pivotTarget,
                   s.pivot.data() + s.pivot.size(), !s.started, last, &status);
    s.started = true;
    out.append(buffer.data(), static_cast<size_t>(target - buffer.data()));
    if (status == U_BUFFER_OVERFLOW_ERROR) continue;
    if (U_FAILURE(status))
      throw std::runtime_error(std::string("conversion: ") + u_errorName(status));
    return;
  }
}

uint64_t CodePageStream::substitutions() const { return state_->substitutions; }

}  // namespace lumora
