#include <lumora/support/internal_log.h>

#include "commands.h"

#include <cstdio>
#include <exception>

namespace lumora::cli {

std::map<std::string, CommandAdder>& RegisteredCommands() {
  static std::map<std::string, CommandAdder> commands;
  return commands;
}

}  // namespace lumora::cli

namespace {

constexpr int kExitFailure = 1;
constexpr int kExitUsage = 2;
// --log-folder keeps a week of dated log files.
constexpr uint8_t kLogFilesKept = 7;

// The library writes its internal log only when the host installs it; the tool does so for
// the length of one command when asked, so that configuration and database reports can be read.
struct LogInstallation {
  ~LogInstallation() { lumora::RemoveLog(); }
};

void AddLogFolderOption(CLI::App& app) {
  app.add_option_function<std::string>(
         "--log-folder",
         [](const std::string& folder) { lumora::InstallLog(folder, kLogFilesKept); },
         "Write the library's internal log into DIR (the files of the last " +
             std::to_string(kLogFilesKept) + " days are kept)")
      ->type_name("DIR");
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app{"lumora: inspect and write the content of a multimedia language course"};
  app.set_version_flag("--version", std::string("lumora ") + LUMORA_VERSION);
  app.require_subcommand(0, 1);
  AddLogFolderOption(app);
  const LogInstallation log;
  for (const auto& [name, add] : lumora::cli::RegisteredCommands()) add(app);
  try {
    app.parse(argc, argv);
    if (app.get_subcommands().empty()) std::fputs(app.help().c_str(), stdout);
    return 0;
  } catch (const CLI::Success& e) {
    return app.exit(e);
  } catch (const CLI::ParseError& e) {
    app.exit(e);
    return kExitUsage;
  } catch (const std::exception& e) {
    std::fprintf(stderr, "lumora: %s\n", e.what());
    return kExitFailure;
  }
}
