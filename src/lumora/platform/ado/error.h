// The COM-style error every operation of the database objects raises: an HRESULT, the name of
// the object that raised it, a description, and the platform's own message for the HRESULT.
//
// Engine failures are told apart by their HRESULT so that callers can react to a kind of
// failure without reading texts: the OLE DB codes for a broken statement, an unknown table
// and a violated key, the ADO codes for a closed object or a missing field, the variant codes
// for impossible conversions.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>

namespace lumora::ado {

using HRESULT = uint32_t;

inline constexpr HRESULT kUnspecifiedError = 0x80004005;    // E_FAIL: cannot open, I/O, busy
inline constexpr HRESULT kOutOfMemory = 0x8007000E;         // E_OUTOFMEMORY
inline constexpr HRESULT kNotInitialized = 0x800401F0;      // CO_E_NOTINITIALIZED
inline constexpr HRESULT kTypeMismatch = 0x80020005;        // DISP_E_TYPEMISMATCH
inline constexpr HRESULT kOverflow = 0x8002000A;            // DISP_E_OVERFLOW
inline constexpr HRESULT kPermissionDenied = 0x80040E09;    // DB_SEC_E_PERMISSIONDENIED: read-only
inline constexpr HRESULT kSyntaxError = 0x80040E14;         // DB_E_ERRORSINCOMMAND
inline constexpr HRESULT kIntegrityViolation = 0x80040E2F;  // DB_E_INTEGRITYVIOLATION
inline constexpr HRESULT kNoTable = 0x80040E37;             // DB_E_NOTABLE
inline constexpr HRESULT kNoCurrentRecord = 0x800A0BCD;     // at BOF or EOF
inline constexpr HRESULT kItemNotFound = 0x800A0CC1;        // no field of that name
inline constexpr HRESULT kObjectClosed = 0x800A0E78;
inline constexpr HRESULT kObjectOpen = 0x800A0E79;

class Error : public std::runtime_error {
 public:
  Error(HRESULT hr, std::string source, std::string description);

  HRESULT hr() const { return hr_; }
  const std::string& source() const { return source_; }
  const std::string& description() const { return description_; }
  // The platform's text for the HRESULT, or nothing for codes it has no text for (the OLE DB
  // and ADO codes among them). The texts carry no line end.
  std::optional<std::string> SystemMessage() const;

 private:
  HRESULT hr_;
  std::string source_;
  std::string description_;
};

}  // namespace lumora::ado
