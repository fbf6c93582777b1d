#include <lumora/lumora.h>
#include <lumora/maintenance.h>

#include "commands.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <system_error>

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
  ~LogInstallation() { lumora::RemoveInternalLog(); }
};

// The library drops log lines it cannot write, so a folder that cannot take them is refused
// here, while the user can still be told which folder and why.
void InstallLogIn(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (!error && !std::filesystem::is_directory(folder, error)) {
    error = std::make_error_code(std::errc::not_a_directory);
  }
  if (!error && ::access(folder.c_str(), W_OK | X_OK) != 0) {
    error = std::error_code(errno, std::generic_category());
  }
  if (error) {
    throw lumora::cli::CommandFailure("cannot use log folder " + folder + ": " + error.message());
  }
  lumora::InstallInternalLog(folder, kLogFilesKept);
}

void AddLogFolderOption(CLI::App& app) {
  app.add_option_function<std::string>(
         "--log-folder", &InstallLogIn,
         "Write the library's internal log into DIR, created if missing (the files of the last " +
             std::to_string(kLogFilesKept) +
             " days are kept); a DIR that cannot be written is "
             "an error")
      ->type_name("DIR");
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app{"lumora: inspect and write the content of a multimedia language course"};
  app.set_version_flag("--version", std::string("lumora ") + lumora_version());
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
    // What the command printed comes before the reason it failed, also when both go to a pipe.
    std::fflush(stdout);
    std::fprintf(stderr, "lumora: %s\n", e.what());
    return kExitFailure;
  }
}
