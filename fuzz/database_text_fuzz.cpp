// Feeds arbitrary text to what the database objects parse before SQLite sees anything: the
// connection string, the statement rearrangement and stored date texts.
#include <lumora/platform/ado/connection_string.h>
#include <lumora/platform/ado/jet_sql.h>
#include <lumora/platform/ado/ole_date.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  lumora::ado::DatabaseFileOf(text);
  lumora::ado::TranslateStatement(text);
  if (auto parts = lumora::ado::ParseDateText(text)) {
    const auto back = lumora::ado::PartsFromOleDate(lumora::ado::OleDateFromParts(*parts));
    if (lumora::ado::DateText(back) != lumora::ado::DateText(*parts)) __builtin_trap();
  }
  return 0;
}
