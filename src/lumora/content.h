// The face of the library for programs that read, check, export or write content (the lumora
// tool, the Python module, the HTTP server, a host's own scripts): open a content root, walk its
// disciplines and resources, and get every answer as the document that `lumora ... --json`
// prints, or the reason it could not be given.
//
// One content root is open in a process at a time, since the library keeps one registry: while
// a ContentRoot is open, a second Open fails. Reads (every const member) may run on any number
// of threads at once; Open and Close wait for the reads under way and keep new ones out until
// they are done.
#pragma once

#include <lumora/check/content_check.h>
#include <lumora/describe/description.h>
#include <lumora/lumora.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

enum class StatusCode {
  kOk,
  kNotFound,         // no such content root, discipline, word, point or type
  kUnreadable,       // a file that is there could not be read: `file`, `byte` and `reason` say why
  kInvalidArgument,  // a value outside its range
  kBusy,             // another content root is open in this process
  kUnwritable,       // a file or folder could not be written: `reason` says which and why
  kStopped,          // the host's progress function asked the work to stop
};

// The one result of the face: what went wrong and where, or nothing.
struct Status {
  StatusCode code = StatusCode::kOk;
  std::string reason;
  std::string file;  // relative to the content root when it lies below it; empty when none
  std::optional<uint64_t> byte;  // where reading stopped, when known

  bool ok() const { return code == StatusCode::kOk; }
  // "file: at byte N: reason", leaving out what is not known.
  std::string ToString() const;
};

// A document, or why there is none (then `document` may still hold what the tool prints for
// that failure, as `lumora resource` does for a resource that cannot be read).
struct Answer {
  Status status;
  Description document;

  bool ok() const { return status.ok(); }
};

struct DisciplineSummary {
  uint32_t id = 0;
  uint32_t language = 0;        // the low byte of the section's Param
  std::vector<uint32_t> types;  // types with an index, in load order
  std::string localRoot;
  std::string urlRoot;
  std::string uncRoot;
  std::string dataFolder;
};

struct OpenOptions {
  uint32_t discipline = 0;  // 0: every discipline of Content.ini
  bool databases = false;   // connect each discipline to its Content.mdb (packages, export)
};

struct ResourceOptions {
  uint32_t pathKind = kPathUrl;  // kPathLocal gives no media paths
  uint8_t order = 1;             // quality folder order 1, 2 or 3
  bool media = true;             // resolve the media paths
};

// Progress of a long operation: `done` of `total` steps. Answering false asks the operation to
// stop at its next step; it then answers StatusCode::kStopped. Called on the working threads.
using ProgressFunction = std::function<bool(uint64_t done, uint64_t total)>;

struct CheckRequest {
  uint32_t discipline = 0;          // 0: every discipline of Content.ini
  std::vector<std::string> checks;  // empty: every check, in the order they run
  std::vector<uint8_t> quality;     // media quality folders 1 to 3; empty: all three
  bool fixCase = false;  // rename names whose only difference from the expected one is case
};

// `lumora check --json`: {"ok", "checks": [{"name", "checked", "errors", "warnings",
// "findings"}]}. A check that finds errors is an answer (ok false in the document, status ok).
// kNotFound without Content.ini, kInvalidArgument for an unknown check or quality folder.
// Needs no open ContentRoot and leaves the open one alone.
Answer CheckContent(const std::string& root, const CheckRequest& request,
                    const ProgressFunction& progress = {});

struct ExportRequest {
  std::vector<uint32_t> packages;  // from the discipline's database
  std::vector<uint8_t> quality;    // media quality folders 1 to 3; empty: all three
  std::string destination;         // a content root of its own once written
  bool check = true;               // check what the export wrote (CheckExport)
};

// Writes the sample content root into `dir` with `scale` units per discipline (1 to
// sample::kMaxScale); kInvalidArgument for a scale out of range, kUnwritable when it cannot be
// written.
Status WriteSample(const std::string& dir, int scale);

class ContentRoot {
 public:
  // Opens the content root `root` (the folder of Content.ini). Null with the reason when it has
  // no Content.ini ("no Content.ini in ..."), when no discipline opens, when a database does
  // not open, or while another ContentRoot is open.
  static std::unique_ptr<ContentRoot> Open(const std::string& root, const OpenOptions& options,
                                           Status* status);
  ~ContentRoot();
  ContentRoot(const ContentRoot&) = delete;
  ContentRoot& operator=(const ContentRoot&) = delete;

  // Closes the root; every later call answers as for a discipline that is not open.
  void Close();
  bool open() const;
  const std::string& root() const { return root_; }

  // The open disciplines, in registration order.
  std::vector<DisciplineSummary> Disciplines() const;
  std::optional<DisciplineSummary> Discipline(uint32_t id) const;
  // `lumora open --json`: {"ok", "disciplines": [{"id", "localRoot", ...}]}.
  Description DescribeOpen() const;

  // The resources a type's index lists, in index order, as resource ids: an index lists numbers
  // only, so each takes the course whose folder holds its file (course 0 when none does, and
  // reading it then says which file is missing). Empty for a type without index.
  std::vector<uint32_t> ResourceIds(uint32_t discipline, uint32_t type) const;
  // `lumora resource --json`: the resource decoded, its media resolved. On failure the document
  // is the one the tool prints then (ok false, the reason) and the status says why.
  Answer Resource(uint32_t discipline, uint32_t type, uint32_t id,
                  const ResourceOptions& options = {}) const;
  // The path of a medium as lmGetMediaPath answers it; none when it is not found.
  std::optional<std::string> MediaPath(uint32_t discipline, const MediaRef& media,
                                       uint32_t pathKind, uint8_t order) const;
  // `lumora index --json`: every type's index, or only `type`'s.
  Answer Index(uint32_t discipline, std::optional<uint32_t> type = std::nullopt) const;

  // `lumora glossary find|word|letters --json`. With `limit`, the find keeps the first `limit`
  // words in the document's order (the letter sections in turn, the words of each in order)
  // and leaves out the sections left without words. The find answers from an index of the
  // glossary made at its first search, and made again after the glossary is loaded again or
  // resorted (ResortGlossary): a host that changes its records by other means resorts it.
  Answer FindWords(uint32_t discipline, const std::string& text, bool prefix, bool needCode,
                   std::optional<uint32_t> limit = std::nullopt) const;
  Answer GlossaryWord(uint32_t discipline, uint32_t fnId, uint32_t pathKind = kPathLocal,
                      uint8_t quality = 1) const;
  Answer GlossaryLetters(uint32_t discipline) const;

  // `lumora grammar point|find|levels|categories --json`.
  Answer GrammarPoint(uint32_t discipline, uint32_t point) const;
  Answer FindGrammarPoints(uint32_t discipline, const std::string& text, uint8_t language) const;
  Answer GrammarLevels(uint32_t discipline, uint32_t first = 0, uint32_t second = 0) const;
  Answer GrammarCategories(uint32_t discipline, uint32_t first = 0, uint32_t second = 0) const;

  // `lumora classification --json`.
  Answer Classification() const;
  // `lumora packages --json` (the root must be opened with databases).
  Answer Packages(uint32_t discipline) const;
  // `lumora export --json`: {"ok", "exportFolder", "report", "resources", "filesCopied",
  // "bytesCopied", "checks"}. Prepares the destination as the tool does (its folder, an empty
  // database and, when it has none, a Content.ini for the exported discipline), exports, then
  // checks what it wrote as CheckExport does: "checks" is `lumora check --json`'s array, each
  // finding marked "inherited" or not, and "ok" is false when the export reported problems or
  // the check found errors the source does not have. Without request.check, the document of
  // `lumora export --no-check --json`. An export that reports problems is an answer (ok false,
  // status ok); a destination that cannot be prepared is kInvalidArgument, kUnreadable or
  // kUnwritable. Holds the library lock alone while it exports; the progress then follows the
  // check, whose steps are the files it reads.
  Answer Export(uint32_t discipline, const ExportRequest& request,
                const ProgressFunction& progress = {}) const;

  // `lumora check --json`: every check of the root, over every discipline or only `discipline`
  // (0: all). Findings are part of the document ("ok" false when one is an error), not a
  // failure of the answer. Checks run one at a time; other reads go on meanwhile. CheckContent
  // checks any folder, with a choice of checks and folders and a progress that can stop.
  Answer Check(uint32_t discipline = 0) const;

 private:
  explicit ContentRoot(std::string root) : root_(std::move(root)) {}

  std::string root_;
  bool open_ = true;
};

// The document `lumora check --json` prints for the reports of CheckContentRoot: {"ok": no
// errors, "checks": [{"name", "checked", "errors", "warnings", "findings": [{"severity",
// "file", "message"}]}]}.
Description DescribeCheck(const std::vector<CheckReport>& reports);
// The "checks" array of that document alone. With `inherited` (for each report, for each of its
// findings, whether the source of an export has it too), each finding also has "inherited".
Description DescribeCheckReports(const std::vector<CheckReport>& reports,
                                 const std::vector<std::vector<bool>>& inherited = {});

}  // namespace lumora

#pragma GCC visibility pop
