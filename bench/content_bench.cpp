// Opening a content root, reading its type-40 resources and rebuilding its index files, each
// against reading the same files byte for byte (an open against reading and checksumming every
// file it reads: target at most twice the reference's time). The content is the sample written at
// LUMORA_BENCH_SCALE (default 600, over 20,000 resources in three disciplines) into a temporary
// folder removed at exit.
#include <lumora/frame/content_config.h>
#include <lumora/lumora.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/type40.h>
#include <lumora/support/crc32.h>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <lumora/sample/sample_content.h>

namespace {

namespace fs = std::filesystem;

constexpr uint32_t kDisciplines[] = {1, 2, 3};

struct Resource {
  uint32_t discipline;
  uint32_t id;
  // The type-40 file and the type-1005 files its parts refer to.
  std::vector<std::string> files;
};

class SampleRoot {
 public:
  SampleRoot() {
    const char* scale = std::getenv("LUMORA_BENCH_SCALE");
    char pattern[] = "/tmp/lumora-bench-XXXXXX";
    if (mkdtemp(pattern) == nullptr) return;
    root_ = std::string(pattern) + "/";
    lumora::sample::SampleOptions options;
    options.scale = scale ? std::max(1, std::atoi(scale)) : 600;
    std::string error;
    if (!lumora::sample::WriteSampleContent(root_, options, &error)) {
      std::fprintf(stderr, "sample: %s\n", error.c_str());
      return;
    }
    openFiles_.push_back(root_ + "Content.ini");
    for (uint32_t d : kDisciplines) Collect(d);
    CollectLexicon(lumora::ClassesFolder(root_) + "/");
  }
  ~SampleRoot() {
    std::error_code ignored;
    if (!root_.empty()) fs::remove_all(root_, ignored);
  }

  const std::string& root() const { return root_; }
  // Every file an open reads: Content.ini, the index files, the glossaries, grammars and the
  // classification.
  const std::vector<std::string>& openFiles() const { return openFiles_; }
  const std::vector<Resource>& resources() const { return resources_; }
  const std::vector<std::string>& resourceFiles() const { return resourceFiles_; }
  std::string DisciplineRoot(uint32_t d) const {
    char folder[16];
    std::snprintf(folder, sizeof folder, "D%03u/", d);
    return root_ + folder;
  }

 private:
  // The files an open reads for a discipline, and every type-40 resource with the files it
  // touches.
  void Collect(uint32_t d) {
    const std::string local = DisciplineRoot(d);
    for (uint32_t type : lumora::kIndexLoadOrder) {
      const std::string path = lumora::IndexFilePath(local, type);
      if (fs::is_regular_file(path)) openFiles_.push_back(path);
    }
    CollectLexicon(lumora::LexiconFolder(local, 1001) + "/");
    CollectLexicon(lumora::LexiconFolder(local, 1002) + "/");
    std::error_code error;
    for (const auto& course : fs::directory_iterator(local, error)) {
      const std::string name = course.path().filename().string();
      if (name.size() != 5 || name[0] != 'C') continue;
      const fs::path folder = course.path() / lumora::NumberedName('r', 40);
      if (!fs::is_directory(folder)) continue;
      CollectFiles(course.path());
      for (const auto& file : fs::directory_iterator(folder)) {
        if (file.path().extension() != ".ars") continue;
        const uint32_t number = std::stoul(file.path().stem().string().substr(1));
        AddResource(d, local, lumora::MakeResourceId(std::stoul(name.substr(1)), number));
      }
    }
  }

  // A glossary, grammar or classification folder: its checksum list and set files, but for a
  // table with an index file only the index, since an open reads its records one at a time.
  void CollectLexicon(const std::string& folder) {
    std::error_code error;
    for (const auto& file : fs::directory_iterator(folder, error)) {
      const fs::path& path = file.path();
      if (!file.is_regular_file()) continue;
      if (path.extension() == ".set" && fs::exists(fs::path(path).replace_extension(".idx"))) {
        continue;
      }
      openFiles_.push_back(path.string());
    }
  }

  // Every resource file of every type in a course folder: what the index rebuilds read.
  void CollectFiles(const fs::path& course) {
    for (uint32_t type : lumora::kExerciseTypes) {
      const fs::path folder = course / lumora::NumberedName('r', type);
      std::error_code error;
      for (const auto& file : fs::directory_iterator(folder, error)) {
        if (file.path().extension() == ".ars") resourceFiles_.push_back(file.path().string());
      }
    }
  }

  void AddResource(uint32_t d, const std::string& local, uint32_t id) {
    lumora::Type40Resource resource;
    lumora::ContentRequest request;
    if (!lumora::LoadResource(local, local, request, id, resource, false)) return;
    Resource r{d, id, {lumora::ResourceFilePath(local, 40, id)}};
    for (uint32_t i = 0; i < resource.items.size(); ++i) {
      for (const lumora::ItemPart* part : resource.items[i].Parts()) {
        for (uint32_t e = 0; e < part->elements.size(); ++e) {
          const lumora::ContentElement& element = part->elements[e];
          if (!element.isReference) continue;
          r.files.push_back(lumora::ResourceFilePath(local, 1005, element.reference));
        }
      }
    }
    resources_.push_back(std::move(r));
  }

  std::string root_;
  std::vector<std::string> openFiles_;
  std::vector<Resource> resources_;
  std::vector<std::string> resourceFiles_;
};

const SampleRoot& Sample() {
  static const SampleRoot sample;
  return sample;
}

size_t ReadWhole(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  benchmark::DoNotOptimize(bytes.data());
  return bytes.size();
}

uint32_t ReadAndChecksum(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  return lumora::Crc32(bytes.data(), bytes.size());
}

bool Ready(benchmark::State& state) {
  if (Sample().resources().empty()) {
    state.SkipWithError("the sample holds no type-40 resources");
    return false;
  }
  return true;
}

void OpenReference(benchmark::State& state) {
  if (!Ready(state)) return;
  for (auto _ : state) {
    uint32_t all = 0;
    for (const std::string& path : Sample().openFiles()) all ^= ReadAndChecksum(path);
    benchmark::DoNotOptimize(all);
  }
}

void OpenAndClose(benchmark::State& state) {
  if (!Ready(state)) return;
  for (auto _ : state) {
    if (!lmOpen(Sample().root().c_str(), 0)) state.SkipWithError("lmOpen failed");
    lmClose();
  }
}

void GetResourceReference(benchmark::State& state) {
  if (!Ready(state)) return;
  for (auto _ : state) {
    size_t total = 0;
    for (const Resource& r : Sample().resources()) {
      for (const std::string& path : r.files) total += ReadWhole(path);
    }
    benchmark::DoNotOptimize(total);
  }
  state.SetItemsProcessed(state.iterations() * Sample().resources().size());
}

void GetResourceWithMedia(benchmark::State& state) {
  if (!Ready(state)) return;
  if (!lmOpen(Sample().root().c_str(), 0)) {
    state.SkipWithError("lmOpen failed");
    return;
  }
  lumora::ContentRequest request;
  request.pathKind = lumora::kPathUrl;
  request.mediaOrder = 1;
  size_t failed = 0;
  for (auto _ : state) {
    for (const Resource& r : Sample().resources()) {
      request.disciplineId = r.discipline;
      lumora::Type40Resource resource;
      failed += !lmGetResource(&request, r.id, &resource, true);
      benchmark::DoNotOptimize(resource.items.size());
    }
  }
  lmClose();
  if (failed != 0) state.SkipWithError("some resources could not be read");
  state.SetItemsProcessed(state.iterations() * Sample().resources().size());
  state.counters["resources"] = static_cast<double>(Sample().resources().size());
}

void RebuildReference(benchmark::State& state) {
  if (!Ready(state)) return;
  for (auto _ : state) {
    size_t total = 0;
    for (const std::string& path : Sample().resourceFiles()) total += ReadWhole(path);
    benchmark::DoNotOptimize(total);
  }
  state.SetItemsProcessed(state.iterations() * Sample().resourceFiles().size());
}

// Every type's index rebuilt into a scratch folder, as an export does after copying.
void RebuildEveryType(benchmark::State& state) {
  if (!Ready(state)) return;
  const std::string out = Sample().root() + "rebuilt/";
  fs::create_directories(out);
  for (auto _ : state) {
    for (uint32_t d : kDisciplines) {
      for (uint32_t type : lumora::kExerciseTypes) {
        lumora::BuildTypeIndex(type, Sample().DisciplineRoot(d), out);
      }
    }
  }
  state.SetItemsProcessed(state.iterations() * Sample().resourceFiles().size());
}

BENCHMARK(OpenReference)
    ->Name("Open/reference_read_and_crc32_open_files")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(OpenAndClose)->Name("Open/lmOpen_lmClose")->Unit(benchmark::kMillisecond);
BENCHMARK(GetResourceReference)
    ->Name("GetResource/reference_read_files")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(GetResourceWithMedia)
    ->Name("GetResource/lmGetResource_url_media")
    ->Unit(benchmark::kMillisecond);

BENCHMARK(RebuildReference)->Name("Rebuild/reference_read_files")->Unit(benchmark::kMillisecond);
BENCHMARK(RebuildEveryType)
    ->Name("Rebuild/BuildTypeIndex_every_type")
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
