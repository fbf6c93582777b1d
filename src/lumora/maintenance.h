// The face of the library for programs that work on content rather than show it: list what an
// open (lmOpen) registered, read a resource with its reason for failing, check a whole root,
// verify media, check set files, rebuild indexes, resort a glossary, prepare an export, write
// the sample content, and the small tools around them (checksums, code pages, context labels,
// the language table, the internal log). Every declaration uses only the classes of lumora.h
// and plain values.
#pragma once

#include <lumora/check/content_check.h>
#include <lumora/content.h>
#include <lumora/lumora.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

// ---- What the last open registered

// The registered disciplines, in registration order (a discipline opened twice is listed twice).
std::vector<DisciplineSummary> OpenedDisciplines();
// The first registered discipline with identifier `id`; none when it is not open.
std::optional<DisciplineSummary> OpenedDisciplineById(uint32_t id);

// Why the open could not load a discipline's glossary or grammar, or the classification; none
// when it loaded whole or nothing of that name is open.
std::optional<LoadFailure> GlossaryLoadFailure(uint32_t disciplineId);
std::optional<LoadFailure> GrammarLoadFailure(uint32_t disciplineId);
std::optional<LoadFailure> ClassificationLoadFailure();

// ---- Exercise types and resources

// Every exercise type, in ascending order.
std::vector<uint32_t> ExerciseTypeNumbers();
bool IsExerciseType(uint32_t type);
// A fresh, empty resource object of the type's class; null for a number that is not a type.
std::unique_ptr<ExerciseResource> NewResource(uint32_t type);
// lmGetResource with the reason when it fails: the file, the byte and what was wrong.
LoadResult ReadResource(const ContentRequest* request, uint32_t resourceId,
                        ExerciseResource* resource, bool fillMedia);
// The course and the number within it that a resource identifier carries.
uint32_t ResourceCourse(uint32_t resourceId);
uint32_t ResourceNumber(uint32_t resourceId);

// The resource ids packages list, as lmGetPackageResources answers them, for a discipline
// identifier rather than a request.
bool GetPackageResources(uint32_t disciplineId, const DWordArray* packageIds,
                         PackageResourceList* list);

// ---- Media of the indexed resources

struct VerifiedResource {
  uint32_t type = 0;
  uint32_t resourceId = 0;
  std::string path;  // the resource file read (its ".arh" twin when there is one)
  bool read = false;
  std::string report;  // one line per missing medium or file
  bool ok() const { return read && report.empty(); }
};

// Reads every resource that the index lists (only `onlyType`'s when given) and looks for each
// medium in the quality folders; `verified` is called after each resource.
std::vector<VerifiedResource> VerifyMedia(const std::string& localRoot, const ResourceIndex& index,
                                          const ByteArray& qualityFolders,
                                          std::optional<uint32_t> onlyType,
                                          const std::function<void()>& verified = {});

// ---- Set files (the glossary's, the grammar's and the classification's tables)

enum class SetFileChecksum { kGood, kBad, kUnlisted };

struct SetFileReport {
  std::string table;       // the file name without its extension
  bool hasHeader = false;  // at least the version and the count are there
  uint32_t version = 0;    // valid with hasHeader
  uint32_t records = 0;    // the count the header announces; valid with hasHeader
  bool versionAccepted = false;
  SetFileChecksum checksum = SetFileChecksum::kBad;
  std::optional<bool> decoded;  // for the tables the library reads: whether every record decodes
  std::string reason;           // why it does not decode
  bool bad = false;             // a bad checksum, a refused version or records that do not decode
};

// Every set file of `folder`, in name order; none when the folder cannot be listed.
std::optional<std::vector<SetFileReport>> CheckSetFiles(const std::string& folder);

// ---- Index rebuilds

struct RebuiltIndex {
  uint32_t type = 0;
  bool built = false;    // every resource file of the type was read and the index made
  uint32_t groups = 0;   // of the index file now in the folder; 0 for the flat forms
  uint64_t entries = 0;  // resource numbers it lists, repeats counted
};

// Rebuilds the index files of `types` from the resource files below `resourceRoot` into
// `indexFolder`, created when missing. In place (the discipline's own data folder), every file is
// replaced in one commit and nothing is replaced when one cannot be written: then the status says
// why.
Status RebuildIndexes(const std::string& resourceRoot, const std::string& indexFolder,
                      const std::vector<uint32_t>& types, bool inPlace,
                      std::vector<RebuiltIndex>* results);

// ---- Glossary order

// Rebuilds the alphabetical order and the letters of the glossary from its written forms, and
// saves the headwords, the order and the letters when `save`.
Status ResortGlossary(CGloV6& glossary, bool save);

// ---- Export

// Makes `destination` ready for an export of `discipline` from `root`: its export folder, an
// empty database there unless one exists, and a Content.ini holding the discipline's section
// unless it has one. Refuses a destination whose Content.ini puts files outside it. Answers the
// export folder, or empty with the reason.
std::string PrepareExportDestination(const std::string& root, uint32_t discipline,
                                     const std::string& destination, Status* status);

// The lines of an export's report as printable UTF-8 (the report is in code page 1252).
std::vector<std::string> ExportReportLines(const std::string& report);

// The files that one write made or replaced below some folders: what they held is recorded
// before the write and compared after it. Every file the library writes is replaced whole, so a
// file written again has another inode even when its bytes and time stamp did not change.
class WrittenFiles {
 public:
  // Records the regular files below `folders` (missing folders hold none), leaving out `ignored`.
  WrittenFiles(std::vector<std::string> folders, std::string ignored);

  struct Count {
    uint64_t files = 0;
    uint64_t bytes = 0;
  };
  // The files below the folders now that are new or another file than when recorded.
  Count Since() const;

 private:
  struct State {
    uint64_t inode;
    int64_t modified;  // nanoseconds
    bool operator==(const State&) const = default;
  };
  struct Seen {
    std::string path;
    State state;
    uint64_t size;
  };
  std::vector<Seen> Walk() const;

  std::vector<std::string> folders_;
  std::string ignored_;
  std::map<std::string, State> before_;
};

// The media that a package export leaves behind: those of types 19, 21, 28 and 1003, whose
// classes find and verify their media but have no copy of their own.
bool IsUncopiedMediaType(uint32_t type);

struct UncopiedMediaCopy {
  uint64_t files = 0;
  uint64_t bytes = 0;
  std::vector<std::string> problems;  // a copy that failed, with the file and the reason
};

// For every resource file of those types in the course folders of `exportFolder`, copies each
// medium it refers to from `sourceLocalRoot` for each quality folder as the export copies the
// media of other types: the file a lookup with that folder first finds, into that folder (a
// video once, into Q3). A type-19 resource's own picture goes to Q3. A resource that does not
// read is left to the resources check; a medium the source lacks is left to the media check.
UncopiedMediaCopy CopyUncopiedMedia(const std::string& sourceLocalRoot,
                                    const std::string& exportFolder, const ByteArray& quality);

// The check of what an export wrote: the integrity checks run over the exported discipline, and
// each finding weighed against the source, so that what the export damaged stands out from what
// it only carried over.
//
// Findings that the same checks have on the source for the same file (paths taken relative to
// the discipline's folder on both sides) are inherited. Two kinds of finding are the export's
// own way and become one warning per exercise type, with their count: the media it copies for
// no resource of types 19, 21, 28 and 1003, and the type-1005 resources that exported resources
// link to but no exported package lists (the export copies exactly the listed resources). The
// source is checked only when the export has errors left to weigh, only by the checks that found
// them.

// For each report, for each of its findings: whether the source of an export has it too.
// Empty for a check that weighs nothing against a source.
using InheritedFindings = std::vector<std::vector<bool>>;

struct ExportChecks {
  std::vector<CheckReport> reports;
  InheritedFindings inherited;  // one mark per finding of each report

  // Errors the source does not have: the export damaged something.
  uint64_t damage() const;
};

struct ExportCheckInput {
  std::string sourceRoot;
  std::string sourceLocalRoot;  // the discipline's folder of resources in the source
  std::string destination;      // the export's content root
  std::string exportFolder;     // the discipline's folder below it
  uint32_t discipline = 0;
  ByteArray qualityFolders;
  bool allMedia = false;  // the media the export leaves behind were copied after it
  const Progress* progress = nullptr;
};

// The checks that an export is checked by, in the order they run.
const std::vector<std::string>& ExportCheckNames();

ExportChecks CheckExport(const ExportCheckInput& input);

// ---- Sample content

inline constexpr int kMaxSampleScale = 100000;

struct SampleOptions {
  int scale = 1;        // units of content per discipline, 1 to kMaxSampleScale
  bool durable = true;  // flush every file to the disk
};

// Writes a small but complete content root into `folder`; false with the reason.
bool WriteSampleContent(const std::string& folder, const SampleOptions& options,
                        std::string* error);

// ---- Small tools

// The CRC-32 of a file's bytes as the content's own files carry it; none when the file cannot
// be opened or a read fails (a folder opens but cannot be read).
std::optional<uint32_t> FileCrc32(const std::string& path);

// Text in the narrow encoding of Windows code page `codePage` (1252 when omitted) or
// UTF-8 as printable UTF-8.
std::string PrintableText(std::string_view narrow, uint32_t codePage);
std::string PrintableText(std::string_view narrow);
// The code page of an open discipline's texts.
uint32_t DisciplineTextCodePage(uint32_t id);
std::u16string Utf8ToUtf16(std::string_view text);
std::string Utf16ToUtf8(std::u16string_view text);

bool IsKnownCodePage(uint32_t codePage);

// Converts a stream of any size between a Windows code page and UTF-8, block by block.
class CodePageConverter {
 public:
  enum class Direction { kDecode, kEncode };  // decode: code page to UTF-8
  CodePageConverter(uint32_t codePage, Direction direction);
  ~CodePageConverter();
  CodePageConverter(const CodePageConverter&) = delete;
  CodePageConverter& operator=(const CodePageConverter&) = delete;

  // Converts the next block and appends the result to `out`; `last` ends the stream.
  void Convert(std::string_view block, bool last, std::string& out);
  // Replacements made so far (U+FFFD when decoding, "?" when encoding).
  uint64_t substitutions() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

// The labels of a context code.
struct ContextLabels {
  uint32_t code = 0;
  std::string technical;    // printable UTF-8
  std::string readable;     // printable UTF-8
  std::string description;  // printable UTF-8, several lines
  bool valid = false;
};
ContextLabels LabelContext(uint32_t code);

// The code page of the language with that number in the language table (1252 for a number
// outside it).
uint16_t CodePageOf(unsigned number);

struct LanguageRowInfo {
  uint32_t number = 0;
  std::string name;
  std::string code;
  uint32_t charset = 0;
  uint32_t leftToRight = 1;  // 0 for right-to-left scripts
  uint32_t codePage = 0;
  uint32_t langId = 0;
};
// The library's language table, in number order.
std::vector<LanguageRowInfo> LanguageTable();

// The library writes its internal log only when a program installs it: dated files in `folder`,
// the last `keepFiles` kept. RemoveInternalLog stops it again.
void InstallInternalLog(const std::string& folder, uint8_t keepFiles);
void RemoveInternalLog();

}  // namespace lumora

#pragma GCC visibility pop
