// A field value of a record set: one of the five variant types the library meets, with the
// conversions its field readers ask for. A conversion that cannot be made raises an Error
// with the variant HRESULTs: type mismatch for NULL (or a text that is no number), overflow
// for a number out of the target's range.
#pragma once

#include <lumora/platform/ado/ole_date.h>

#include <cstdint>
#include <string>

namespace lumora::ado {

enum class VarType : uint16_t {
  kNull = 1,
  kI4 = 3,
  kDate = 7,
  kBstr = 8,
  kUI1 = 17,
};

class Variant {
 public:
  Variant() = default;  // NULL
  static Variant I4(int32_t value);
  static Variant UI1(uint8_t value);
  static Variant Date(double date);
  static Variant Bstr(std::u16string text);

  VarType type() const { return type_; }
  double date() const { return date_; }

  // Dates give their day count rounded half to even; texts are read as numbers the same way.
  int32_t ToI4() const;
  uint8_t ToUI1() const;
  // Numbers in decimal, dates as "YYYY/MM/DD HH:MM:SS".
  std::u16string ToBstr() const;

 private:
  VarType type_ = VarType::kNull;
  int32_t number_ = 0;
  double date_ = 0;
  std::u16string text_;
};

}  // namespace lumora::ado
