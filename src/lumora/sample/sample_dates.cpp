#include <lumora/sample/sample_dates.h>

#include <lumora/platform/profile.h>
#include <lumora/support/xcrc_file2.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <system_error>
#include <vector>

namespace lumora::sample {
namespace {

namespace fs = std::filesystem;

// The date as the checksummed file writes it: day/month/year and local time.
constexpr char kPinnedDate[] = "01/01/2024 00:00:00";

fs::file_time_type PinnedTime() {
  std::tm local{};
  local.tm_year = 2024 - 1900;
  local.tm_mday = 1;
  local.tm_isdst = -1;
  return std::chrono::file_clock::from_sys(
      std::chrono::system_clock::from_time_t(std::mktime(&local)));
}

}  // namespace

bool PinListedDates(const std::string& folder, std::string* error) {
  const std::string list = folder + xCRCFile2::kListName;
  // Listed first: rewriting the list adds and renames a file in the same folder.
  std::error_code ec;
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder, ec)) {
    names.push_back(entry.path().filename().string());
  }
  if (ec) {
    *error = "cannot list " + folder;
    return false;
  }
  for (const std::string& name : names) {
    const std::string key = "DATE_" + name;
    if (profile::GetString(list, xCRCFile2::kListSection, key).empty()) continue;
    fs::last_write_time(folder + name, PinnedTime(), ec);
    if (ec || !profile::WriteString(list, xCRCFile2::kListSection, key, kPinnedDate)) {
      *error = "cannot pin the date of " + folder + name;
      return false;
    }
  }
  return true;
}

}  // namespace lumora::sample
