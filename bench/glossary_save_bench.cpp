// Saving the whole 65,534-word glossary (bench_glossary.h): every table, its checksums and the
// commit that makes the save all or nothing, against writing the same bytes the minimal
// durable way, one file after another: a temporary file, flushed to disk, renamed into place,
// and the folder flushed at the end (target: at most 1.5 times the reference's time). Both are
// timed by the wall clock: a save spends much of its time waiting for the disk, which CPU time
// leaves out.
#include <lumora/lexicon/glossary.h>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "bench_glossary.h"

namespace {

using lumora::bench::Glossary;

bool WriteDurably(const std::string& path, const std::string& bytes) {
  const std::string temporary = path + ".tmp";
  const int fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (fd < 0) return false;
  bool ok = ::write(fd, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
  ok = ::fsync(fd) == 0 && ok;
  ok = ::close(fd) == 0 && ok;
  return ok && ::rename(temporary.c_str(), path.c_str()) == 0;
}

bool SyncFolder(const std::string& folder) {
  const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const bool ok = fd >= 0 && ::fsync(fd) == 0;
  if (fd >= 0) ::close(fd);
  return ok;
}

void ReferenceDurableWrites(benchmark::State& state) {
  if (!Glossary().ready()) return state.SkipWithError("no glossary");
  char pattern[] = "/tmp/lumora-save-reference-XXXXXX";
  if (mkdtemp(pattern) == nullptr) return state.SkipWithError("no scratch folder");
  const std::string folder = std::string(pattern) + "/";
  std::vector<std::pair<std::string, std::string>> files;
  for (const std::string& path : Glossary().setFiles()) {
    std::ifstream in(path, std::ios::binary);
    files.emplace_back(folder + std::filesystem::path(path).filename().string(),
                       std::string(std::istreambuf_iterator<char>(in), {}));
  }
  for (auto _ : state) {
    for (const auto& [path, bytes] : files) {
      if (!WriteDurably(path, bytes)) return state.SkipWithError("a file was not written");
    }
    if (!SyncFolder(folder)) return state.SkipWithError("the folder was not flushed");
  }
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * Glossary().setBytes()));
}

void Save(benchmark::State& state) {
  if (!Glossary().ready()) return state.SkipWithError("no glossary");
  lumora::CGloV6 glossary;
  if (!glossary.load(Glossary().folder())) return state.SkipWithError("the glossary did not load");
  for (auto _ : state) {
    if (!glossary.save(false, {})) return state.SkipWithError("the glossary was not saved");
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * Glossary().setBytes()));
}

BENCHMARK(ReferenceDurableWrites)
    ->Name("GlossarySave/reference_durable_writes")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Save)->Name("GlossarySave/CGloV6_save")->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
