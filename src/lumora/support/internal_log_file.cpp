#include <lumora/support/internal_log_file.h>

#include <lumora/platform/ascii_text.h>
#include <lumora/support/paths.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <thread>
#include <vector>

namespace lumora {
namespace {

constexpr int kOpenAttempts = 10;
constexpr int kDateDigits = 6;
constexpr std::string_view kLogExtension = ".log";

std::tm LocalTime(std::time_t seconds) {
  std::tm local{};
  ::localtime_r(&seconds, &local);
  return local;
}

// prefix + two digits each of year (from 2000), month and day + ".log".
std::string DatedName(const std::string& prefix, const std::tm& date) {
  char digits[48];
  std::snprintf(digits, sizeof digits, "%02d%02d%02d", date.tm_year + 1900 - 2000, date.tm_mon + 1,
                date.tm_mday);
  return prefix + digits + std::string(kLogExtension);
}

// The files were always written in text mode, where a line ends in CR LF.
std::string TextLine(std::string_view text) { return std::string(text) + "\r\n"; }

bool AppendToFile(const std::string& path, const std::string& bytes) {
  std::FILE* file = std::fopen(path.c_str(), "ab");
  if (!file) return false;
  std::fwrite(bytes.data(), 1, bytes.size(), file);
  std::fclose(file);
  return true;
}

// A file name the pruning counts: prefix + 6 characters + ".log", letter case ignored as the
// folder listing of the original platform does.
bool IsDatedLog(const std::string& name, const std::string& prefix) {
  if (name.size() != prefix.size() + kDateDigits + kLogExtension.size()) return false;
  return StartsWithIgnoringCase(name, prefix) &&
         EqualsIgnoringCase(std::string_view(name).substr(prefix.size() + kDateDigits),
                            kLogExtension);
}

// Keeps the `keep` dated files whose paths sort last, which are the newest for one prefix.
void Prune(const std::string& folder, const std::string& prefix, uint8_t keep) {
  namespace fs = std::filesystem;
  std::vector<std::string> paths;
  std::error_code ec;
  for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
    std::error_code type_ec;
    if (it->is_directory(type_ec)) continue;
    std::string name = it->path().filename().string();
    if (IsDatedLog(name, prefix)) paths.push_back(folder + name);
  }
  std::sort(paths.begin(), paths.end(), std::greater<>());
  for (size_t i = keep; i < paths.size(); ++i) fs::remove(paths[i], ec);
}

}  // namespace

InternalLogSettings& LogSettings() {
  static InternalLogSettings settings;
  return settings;
}

std::time_t LogNow() { return LogSettings().clock ? LogSettings().clock() : std::time(nullptr); }

std::string DefaultLogFolder() {
  if (!LogSettings().defaultFolder.empty()) return WithBackslash(LogSettings().defaultFolder);
  return ModuleFolder(reinterpret_cast<const void*>(&DefaultLogFolder));
}

void WriteLogLine(const ThreadLogContext& context, const std::string& line) {
  if (context.keepCount == 0) return;
  const std::time_t now = LogNow();
  const std::string name = DatedName(context.prefix, LocalTime(now));
  const std::string text = TextLine(std::to_string(static_cast<int32_t>(now)) + ' ' + line);

  std::string path = context.folder + name;
  bool created = !FileExists(path);
  bool written = false;
  for (int attempt = 0; attempt < kOpenAttempts && !written; ++attempt) {
    written = AppendToFile(path, text);
    if (!written) std::this_thread::sleep_for(LogSettings().retryDelay);
  }
  const std::string fallback = DefaultLogFolder();
  if (!written) {
    path = fallback + name;
    created = !FileExists(path);
    written = AppendToFile(path, text);
  }
  if (!written || !created) return;
  Prune(context.folder, context.prefix, context.keepCount);
  if (!EqualsIgnoringCase(context.folder, fallback)) {
    Prune(fallback, context.prefix, context.keepCount);
  }
}

void WriteTooManyThreadsLine() {
  char when[32];
  const std::tm local = LocalTime(LogNow());
  std::strftime(when, sizeof when, "%d/%m/%Y %H:%M:%S", &local);
  AppendToFile("VendrelInternalErrors.Txt",
               TextLine(std::string(when) + " : Too much threads in CxThreadObjects !"));
}

}  // namespace lumora
