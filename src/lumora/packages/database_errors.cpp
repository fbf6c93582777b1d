// How a caught database error is recorded: its texts in errorText, the code number of an OLE DB
// HRESULT in errorCode, and an internal-log entry.
#include <lumora/packages/database_connection.h>
#include <lumora/support/internal_log.h>

#include <cstdio>

namespace lumora {
namespace {

constexpr ado::HRESULT kFirstDispatchCode = 0x80040200;
constexpr ado::HRESULT kLastDispatchCode = 0x8004FFFF;

bool IsDispatchCode(ado::HRESULT hr) { return hr >= kFirstDispatchCode && hr <= kLastDispatchCode; }

uint16_t DispatchCode(ado::HRESULT hr) {
  return IsDispatchCode(hr) ? static_cast<uint16_t>((hr - 0x200) & 0xFFFF) : 0;
}

// The platform's text, or a text made from the HRESULT when it has none.
std::string SystemMessage(const ado::Error& error) {
  if (auto message = error.SystemMessage()) return *message;
  char text[48];
  if (IsDispatchCode(error.hr())) {
    std::snprintf(text, sizeof text, "IDispatch error #%d", int{DispatchCode(error.hr())});
  } else {
    std::snprintf(text, sizeof text, "Unknown error 0x%0X", unsigned{error.hr()});
  }
  return text;
}

}  // namespace

void DatabaseConnection::ReportError(const ado::Error& error, int32_t code) {
  errorText =
      "[" + error.source() + "] [" + error.description() + "] {" + SystemMessage(error) + "}";
  errorCode = DispatchCode(error.hr());
  errorReason_ = error.description();
  errorHresult_ = error.hr();
  ReportCodeText(code, errorText);
}

}  // namespace lumora
