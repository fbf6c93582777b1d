#include <lumora/platform/ado/error.h>
#include <lumora/platform/ado/variant.h>
#include <lumora/platform/utf8.h>

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

namespace lumora::ado {
namespace {

constexpr const char* kVariantSource = "Variant";

[[noreturn]] void Mismatch(const char* target) {
  throw Error(kTypeMismatch, kVariantSource, std::string("value cannot be converted to ") + target);
}

[[noreturn]] void Overflow(const char* target) {
  throw Error(kOverflow, kVariantSource, std::string("value out of the range of ") + target);
}

int32_t RoundToI4(double value) {
  const double rounded = std::nearbyint(value);  // the default mode rounds half to even
  if (!(rounded >= std::numeric_limits<int32_t>::min() &&
        rounded <= std::numeric_limits<int32_t>::max())) {
    Overflow("VT_I4");
  }
  return static_cast<int32_t>(rounded);
}

// Blanks around the number are allowed; anything else after it is not.
int32_t TextToI4(const std::u16string& text) {
  const std::string narrow = Utf16ToUtf8(text);
  const char* begin = narrow.c_str();
  char* end = nullptr;
  errno = 0;
  const double value = std::strtod(begin, &end);
  if (end == begin) Mismatch("VT_I4");
  while (*end == ' ' || *end == '\t') ++end;
  if (*end != '\0' || std::isnan(value)) Mismatch("VT_I4");
  if (errno == ERANGE || std::isinf(value)) Overflow("VT_I4");
  return RoundToI4(value);
}

}  // namespace

Variant Variant::I4(int32_t value) {
  Variant v;
  v.type_ = VarType::kI4;
  v.number_ = value;
  return v;
}

Variant Variant::UI1(uint8_t value) {
  Variant v;
  v.type_ = VarType::kUI1;
  v.number_ = value;
  return v;
}

Variant Variant::Date(double date) {
  Variant v;
  v.type_ = VarType::kDate;
  v.date_ = date;
  return v;
}

Variant Variant::Bstr(std::u16string text) {
  Variant v;
  v.type_ = VarType::kBstr;
  v.text_ = std::move(text);
  return v;
}

int32_t Variant::ToI4() const {
  switch (type_) {
    case VarType::kI4:
    case VarType::kUI1:
      return number_;
    case VarType::kDate:
      return RoundToI4(date_);
    case VarType::kBstr:
      return TextToI4(text_);
    case VarType::kNull:
      break;
  }
  Mismatch("VT_I4");
}

uint8_t Variant::ToUI1() const {
  if (type_ == VarType::kNull) Mismatch("VT_UI1");
  const int32_t value = ToI4();
  if (value < 0 || value > 255) Overflow("VT_UI1");
  return static_cast<uint8_t>(value);
}

std::u16string Variant::ToBstr() const {
  switch (type_) {
    case VarType::kI4:
    case VarType::kUI1:
      return Utf8ToUtf16(std::to_string(number_));
    case VarType::kDate:
      return Utf8ToUtf16(DateText(PartsFromOleDate(date_)));
    case VarType::kBstr:
      return text_;
    case VarType::kNull:
      break;
  }
  Mismatch("VT_BSTR");
}

}  // namespace lumora::ado
