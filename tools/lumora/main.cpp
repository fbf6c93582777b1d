#include <CLI/CLI.hpp>

int main(int argc, char** argv) {
  CLI::App app{"lumora: inspect and write the content of a multimedia language course"};
  app.set_version_flag("--version", std::string("lumora ") + LUMORA_VERSION);
  CLI11_PARSE(app, argc, argv);
  return 0;
}
