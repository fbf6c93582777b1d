#include "content_args.h"

#include <lumora/maintenance.h>

#include <cerrno>
#include <cstdlib>
#include <sstream>

#include "commands.h"
#include "printable_text.h"

namespace lumora::cli {

uint32_t ParseNumber(const std::string& text, const char* what) {
  const bool hex = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
  const char* digits = text.c_str() + (hex ? 2 : 0);
  char* end = nullptr;
  errno = 0;
  const unsigned long long value = std::strtoull(digits, &end, hex ? 16 : 10);
  if (text.empty() || *digits == '-' || *end != '\0' || end == digits || errno != 0 ||
      value > UINT32_MAX) {
    throw CommandFailure(std::string("not a valid ") + what + ": " + text);
  }
  return static_cast<uint32_t>(value);
}

ByteArray ParseQualityFolders(const std::string& text) {
  ByteArray folders;
  std::stringstream list(text);
  std::string item;
  while (std::getline(list, item, ',')) {
    const uint32_t folder = ParseNumber(item, "quality folder");
    if (folder < 1 || folder > 3) throw CommandFailure("quality folders are 1, 2 or 3: " + item);
    folders.Add(static_cast<uint8_t>(folder));
  }
  if (folders.size() == 0) throw CommandFailure("no quality folder given");
  return folders;
}

CLI::Validator ParsedBy(std::function<void(const std::string&)> parse) {
  return CLI::Validator(
      [parse](std::string& text) -> std::string {
        try {
          parse(text);
          return {};
        } catch (const CommandFailure& failure) {
          return failure.what();
        }
      },
      "");
}

CLI::Validator NumberText(const char* what) {
  return ParsedBy([what](const std::string& text) { ParseNumber(text, what); });
}

uint32_t ParsePathKind(const std::string& text) {
  if (text == "local") return kPathLocal;
  if (text == "url") return kPathUrl;
  if (text == "unc") return kPathUnc;
  throw CommandFailure("path kind must be local, url or unc: " + text);
}

CLI::Validator AnsweredPathKind() {
  return ParsedBy([](const std::string& text) {
    if (ParsePathKind(text) == kPathLocal) {
      throw CommandFailure("local paths are never answered: use url or unc");
    }
  });
}

const char* PathKindName(uint32_t path_kind) {
  return path_kind == kPathUrl ? "url" : path_kind == kPathUnc ? "unc" : "local";
}

OpenedContent::OpenedContent(const std::string& root, uint32_t filter, bool databases)
    : ok_(databases ? lmOpen_Database(root.c_str(), filter) : lmOpen(root.c_str(), filter)) {}

DisciplineSummary DisciplineFor(uint32_t id) {
  std::optional<DisciplineSummary> discipline = OpenedDisciplineById(id);
  if (!discipline) {
    throw CommandFailure("no open discipline with identifier " + std::to_string(id));
  }
  return *discipline;
}

ContentRequest RequestFor(uint32_t id, uint32_t path_kind, uint32_t order) {
  DisciplineFor(id);
  ContentRequest request;
  request.disciplineId = id;
  request.pathKind = path_kind;
  request.mediaOrder = order;
  return request;
}

std::string FailureText(const std::string& root, const LoadFailure& failure) {
  LoadFailure shown = failure;
  const std::string folder = root.empty() || root.back() == '/' ? root : root + "/";
  if (!folder.empty() && shown.file.compare(0, folder.size(), folder) == 0) {
    shown.file.erase(0, folder.size());
  }
  return shown.file.empty() ? shown.Details() : shown.ToString();
}

}  // namespace lumora::cli
