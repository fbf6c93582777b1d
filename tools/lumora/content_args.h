// Pieces shared by the commands that open a content root: argument parsing and the open/close
// pair.
#pragma once

#include <lumora/lumora.h>
#include <lumora/maintenance.h>

#include <CLI/CLI.hpp>

#include <cstdint>
#include <functional>
#include <string>

namespace lumora::cli {

// Decimal or 0x-prefixed hexadecimal; anything else is a CommandFailure naming `what`.
uint32_t ParseNumber(const std::string& text, const char* what);

// Quality folders "1,2,3": each 1, 2 or 3, at least one.
ByteArray ParseQualityFolders(const std::string& text);

// Makes a text option a usage error, reported while the arguments are parsed, when parse (one
// of the parsers here) refuses its text with a CommandFailure.
CLI::Validator ParsedBy(std::function<void(const std::string&)> parse);
// Refuses a text that ParseNumber refuses.
CLI::Validator NumberText(const char* what);

// "local", "url" or "unc".
uint32_t ParsePathKind(const std::string& text);
const char* PathKindName(uint32_t path_kind);
// Accepts "url" and "unc" only: media paths are never answered as local paths.
CLI::Validator AnsweredPathKind();

// Opens a content root for the life of a command (with the package databases when asked) and
// closes it again.
class OpenedContent {
 public:
  OpenedContent(const std::string& root, uint32_t filter, bool databases = false);
  ~OpenedContent() { lmClose(); }
  OpenedContent(const OpenedContent&) = delete;
  OpenedContent& operator=(const OpenedContent&) = delete;

  bool ok() const { return ok_; }

 private:
  bool ok_;
};

// Open discipline `id`; throws a CommandFailure when none is open.
DisciplineSummary DisciplineFor(uint32_t id);
// A request for discipline `id`; throws when no open discipline has that identifier.
ContentRequest RequestFor(uint32_t id, uint32_t path_kind = kPathLocal, uint32_t order = 1);

// A load failure as the tool prints it: the file relative to the content root when it lies below
// it, the byte and what was wrong.
std::string FailureText(const std::string& root, const LoadFailure& failure);

}  // namespace lumora::cli
