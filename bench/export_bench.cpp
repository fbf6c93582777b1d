// Package exports, each against a reference measured in the same run, both timed by the wall
// clock since an export spends much of its time waiting for the disk.
//
// ExportPackages: every package of discipline 1 of the sample content (LUMORA_BENCH_SCALE,
// default 600) exported into a fresh destination, against copying the files the export copies
// with std::filesystem::copy_file (target: at most 1.3 times the reference's time). Both report
// the bytes of those copied files, so their ratio is a ratio of times.
//
// CustomExport: a caller's list of 100,000 type-40 rows, one package, whose files are absent,
// exported into a fresh destination (target: at least 100,000 rows per second), against inserting
// the same rows with one prepared SQLite statement in one transaction into an empty database.
//
// Every run gets a new destination, made ready and the file system flushed outside the timed
// part, so that each timed run flushes only what it wrote itself; each destination is removed
// again, also outside the timed part, once its run is over. Both sides do the same, so neither
// pays for files the other left: on a memory file system the cost of creating a file grows with
// the number of files kept, and on a disk file system creating files costs more just after many
// were removed.
#include <lumora/lumora.h>
#include <lumora/packages/package_records.h>
#include <lumora/resources/resource_id.h>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <lumora/sample/sample_content.h>

namespace {

namespace fs = std::filesystem;

constexpr uint32_t kDiscipline = 1;
constexpr char kExportFolder[] = "D001";
constexpr uint32_t kCustomRows = 100000;
// A course the sample never writes: every row of the custom list names an absent file.
constexpr uint32_t kAbsentCourse = 999;

std::string Bytes(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

// Flushes the file system that holds `folder`, so that what earlier runs left dirty is not
// charged to the next timed run.
void FlushFileSystem(const std::string& folder) {
  const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return;
  ::syncfs(fd);
  ::close(fd);
}

// What the export expects of its destination, as the tool makes it: the export folder with an
// empty database file (an empty file is a database without tables), and a Content.ini whose one
// section is the source's section for the discipline without its Local root, so that the
// publishing passes run.
bool FreshDestination(const std::string& destination, const std::string& section) {
  std::error_code error;
  const fs::path folder = fs::path(destination) / kExportFolder;
  fs::create_directories(folder, error);
  const bool made =
      !error && static_cast<bool>(std::ofstream(folder / "Content.mdb")) &&
      static_cast<bool>(std::ofstream(fs::path(destination) / "Content.ini", std::ios::binary)
                        << section);
  FlushFileSystem(destination);
  return made;
}

// Removes a destination once its run is over, and flushes, outside the timed part.
void RemoveDestination(const std::string& destination) {
  std::error_code ignored;
  fs::remove_all(destination, ignored);
  FlushFileSystem(fs::path(destination).parent_path().parent_path().string());
}

// The section of discipline 1 in the content root's Content.ini ("[001]" up to the next
// section), without its Local line.
std::string DisciplineSection(const std::string& root) {
  std::ifstream in(root + "Content.ini", std::ios::binary);
  std::string line;
  std::string section;
  bool inside = false;
  while (std::getline(in, line)) {
    if (!line.empty() && line.front() == '[') inside = line.rfind("[001]", 0) == 0;
    if (inside && line.rfind("Local=", 0) != 0) section += line + "\n";
  }
  return section;
}

struct CopiedFile {
  fs::path source;
  fs::path relative;  // below the destination root
};

class ExportSample {
 public:
  ExportSample() {
    // LUMORA_BENCH_DIR chooses the file system (default /tmp): on a disk that has just freed
    // many files, creating files there costs more the more were freed, whoever creates them.
    const char* dir = std::getenv("LUMORA_BENCH_DIR");
    std::string pattern = std::string(dir ? dir : "/tmp") + "/lumora-export-bench-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) {
      error_ = "no scratch folder";
      return;
    }
    scratch_ = pattern + "/";
    source_ = scratch_ + "content/";
    const char* scale = std::getenv("LUMORA_BENCH_SCALE");
    lumora::sample::SampleOptions options;
    options.scale = scale ? std::max(1, std::atoi(scale)) : 600;
    if (!lumora::sample::WriteSampleContent(source_, options, &error_)) return;
    if (!lmOpen_Database(source_.c_str(), kDiscipline)) {
      error_ = "the sample does not open with its databases";
      return;
    }
    opened_ = true;
    lumora::PackageList packages;
    if (!lmGetPackages(kDiscipline, &packages) || packages.size() == 0) {
      error_ = "the sample discipline lists no packages";
      return;
    }
    for (uint32_t i = 0; i < packages.size(); ++i) packageIds_.Add(packages.KeyAt(i));
    for (uint8_t q : {1, 2, 3}) quality_.Add(q);
    section_ = DisciplineSection(source_);
    const std::string probe = destination("probe");
    std::string report;
    if (!FreshDestination(probe, section_) || !Export(probe, report)) {
      error_ = "the first export failed: " + report;
      return;
    }
    FindCopies(probe);
  }
  ~ExportSample() {
    if (opened_) lmClose();
    std::error_code ignored;
    if (!scratch_.empty()) fs::remove_all(scratch_, ignored);
  }

  const std::string& error() const { return error_; }
  const std::string& section() const { return section_; }
  // A destination no run used yet, below the scratch folder.
  std::string destination(const char* name) const {
    return scratch_ + name + "-" + std::to_string(++destinations_) + "/";
  }
  const std::vector<CopiedFile>& copies() const { return copies_; }
  uint64_t copiedBytes() const { return copiedBytes_; }
  // Files the first export wrote that have no source to copy.
  uint32_t generated() const { return generated_; }

  bool Export(const std::string& destination, std::string& report) const {
    return lmExportPackage(kDiscipline, packageIds_, quality_, destination.c_str(), nullptr,
                           &report);
  }

 private:
  // Maps every file the export copied back to its source: the same path below the content
  // root (resource files, the classification's tables), else a file of the same name and bytes
  // anywhere in the discipline's folder (media, which the export files by quality folder). The
  // export also generates files that have no source to copy, and the reference leaves them
  // out: the database, the index files and the diagnosis file directly in the export folder,
  // the partial glossary and grammar in the lexicon folders of course 0, and the
  // classification's checksum list, whose dates are those of the export.
  void FindCopies(const std::string& probe) {
    std::multimap<std::string, fs::path> byName;
    for (const auto& entry : fs::recursive_directory_iterator(source_ + kExportFolder)) {
      if (entry.is_regular_file()) byName.emplace(entry.path().filename().string(), entry.path());
    }
    const fs::path exportFolder = fs::path(probe) / kExportFolder;
    const fs::path lexicons = exportFolder / "C0000";
    for (const auto& entry : fs::recursive_directory_iterator(probe)) {
      if (!entry.is_regular_file()) continue;
      const fs::path& path = entry.path();
      if (path.parent_path() == exportFolder || path.parent_path() == fs::path(probe) ||
          path.parent_path().parent_path() == lexicons) {
        ++generated_;
        continue;
      }
      const fs::path relative = path.lexically_relative(probe);
      const std::string bytes = Bytes(path);
      std::vector<fs::path> candidates{fs::path(source_) / relative};
      const auto [first, last] = byName.equal_range(path.filename().string());
      for (auto it = first; it != last; ++it) candidates.push_back(it->second);
      bool matched = false;
      for (const fs::path& candidate : candidates) {
        if (!fs::is_regular_file(candidate) || Bytes(candidate) != bytes) continue;
        copies_.push_back({candidate, relative});
        copiedBytes_ += bytes.size();
        matched = true;
        break;
      }
      if (!matched) ++generated_;
    }
  }

  std::string error_;
  std::string section_;
  std::string scratch_;
  std::string source_;
  bool opened_ = false;
  lumora::DWordArray packageIds_;
  lumora::ByteArray quality_;
  std::vector<CopiedFile> copies_;
  uint64_t copiedBytes_ = 0;
  uint32_t generated_ = 0;
  mutable uint64_t destinations_ = 0;
};

const ExportSample& Sample() {
  static const ExportSample sample;
  return sample;
}

bool Ready(benchmark::State& state) {
  if (!Sample().error().empty()) {
    state.SkipWithError(Sample().error().c_str());
    return false;
  }
  return true;
}

// Times `run` (destination -> an error, or empty) once per iteration, each time in a new
// destination made ready before and removed after, both outside the timed part.
template <typename Run>
void InFreshDestinations(benchmark::State& state, const char* name, Run run) {
  if (!Ready(state)) return;
  for (auto _ : state) {
    state.PauseTiming();
    const std::string destination = Sample().destination(name);
    const bool fresh = FreshDestination(destination, Sample().section());
    state.ResumeTiming();
    if (!fresh) return state.SkipWithError("the destination cannot be made");
    if (const std::string error = run(destination); !error.empty()) {
      return state.SkipWithError(error.c_str());
    }
    state.PauseTiming();
    RemoveDestination(destination);
    state.ResumeTiming();
  }
}

void ExportPackagesReference(benchmark::State& state) {
  InFreshDestinations(state, "copies", [](const std::string& destination) {
    std::set<fs::path> folders;
    for (const CopiedFile& file : Sample().copies()) {
      const fs::path target = destination / file.relative;
      if (folders.insert(target.parent_path()).second) {
        fs::create_directories(target.parent_path());
      }
      fs::copy_file(file.source, target, fs::copy_options::overwrite_existing);
    }
    return std::string();
  });
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * Sample().copiedBytes()));
  state.counters["files"] = static_cast<double>(Sample().copies().size());
}

void ExportPackages(benchmark::State& state) {
  InFreshDestinations(state, "export", [](const std::string& destination) {
    std::string report;
    const bool exported = Sample().Export(destination, report);
    return exported ? std::string() : report.empty() ? std::string("the export failed") : report;
  });
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * Sample().copiedBytes()));
  state.counters["files"] = static_cast<double>(Sample().copies().size());
  state.counters["generated"] = Sample().generated();
}

// The caller's lists of the custom export: one package and kCustomRows distinct type-40 rows.
struct CustomLists {
  CustomLists() {
    auto package = std::make_unique<lumora::PackageRecord>();
    package->version = 1;
    package->idString = 100;
    packages.Add(1, std::move(package));
    packageIds.Add(1);
    for (uint8_t q : {1, 2, 3}) quality.Add(q);
    for (uint32_t i = 0; i < kCustomRows; ++i) {
      auto row = std::make_unique<lumora::PackageResourceRecord>();
      row->idResource = 40;
      row->idItem = static_cast<int32_t>(lumora::MakeResourceId(kAbsentCourse, i + 1));
      rows.Add(1, std::move(row));
    }
  }

  lumora::PackageList packages;
  lumora::TranslationList translations;
  lumora::PackageResourceList rows;
  lumora::DWordArray packageIds;
  lumora::ByteArray quality;
};

const CustomLists& Lists() {
  static const CustomLists lists;
  return lists;
}

bool Step(sqlite3* db, const char* sql) {
  return sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

// The same rows into the same table, the plain way.
bool InsertRows(const std::string& path) {
  sqlite3* db = nullptr;
  if (sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
    sqlite3_close(db);
    return false;
  }
  sqlite3_stmt* insert = nullptr;
  bool ok = Step(db,
                 "CREATE TABLE t_PackagesResources (f_IdPackage INTEGER, f_IdResource INTEGER, "
                 "f_IdItem INTEGER, CONSTRAINT x PRIMARY KEY (f_IdPackage, f_IdResource, "
                 "f_IdItem))") &&
            Step(db, "BEGIN") &&
            sqlite3_prepare_v2(db, "INSERT INTO t_PackagesResources VALUES (?, ?, ?)", -1, &insert,
                               nullptr) == SQLITE_OK;
  const lumora::PackageResourceList& rows = Lists().rows;
  for (uint32_t i = 0; ok && i < rows.size(); ++i) {
    sqlite3_bind_int(insert, 1, static_cast<int>(rows.KeyAt(i)));
    sqlite3_bind_int(insert, 2, rows.ObjectAt(i)->idResource);
    sqlite3_bind_int(insert, 3, rows.ObjectAt(i)->idItem);
    ok = sqlite3_step(insert) == SQLITE_DONE && sqlite3_reset(insert) == SQLITE_OK;
  }
  sqlite3_finalize(insert);
  ok = Step(db, "COMMIT") && ok;
  return sqlite3_close(db) == SQLITE_OK && ok;
}

void CustomExportReference(benchmark::State& state) {
  InFreshDestinations(state, "rows", [](const std::string& destination) {
    return InsertRows(destination + kExportFolder + "/Content.mdb")
               ? std::string()
               : std::string("the rows were not inserted");
  });
  state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * kCustomRows));
}

void CustomExport(benchmark::State& state) {
  const CustomLists& lists = Lists();
  InFreshDestinations(state, "custom", [&lists](const std::string& destination) {
    std::string report;
    const bool exported = lmExportCustomizedPackage(
        &lists.packages, &lists.translations, &lists.rows, &lists.packageIds, kDiscipline,
        &lists.quality, destination.c_str(), nullptr, &report, 0);
    // A false answer with nothing in the report would still be a failure.
    return exported ? std::string() : report.empty() ? std::string("the export failed") : report;
  });
  state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * kCustomRows));
}

BENCHMARK(ExportPackagesReference)
    ->Name("ExportPackages/reference_copy_files")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ExportPackages)
    ->Name("ExportPackages/lmExportPackage")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(CustomExportReference)
    ->Name("CustomExport/reference_sqlite_inserts")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(CustomExport)
    ->Name("CustomExport/lmExportCustomizedPackage")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
