// Loading and saving a large grammar (about 110,000 records in nine tables) and a large
// classification (about 25,000 records in five), against reading and checksumming, or
// writing, the same bytes in the same run. Also reports the heap a loaded object holds per
// record.
#include <lumora/lexicon/classification.h>
#include <lumora/lexicon/grammar.h>
#include <lumora/support/crc32.h>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <stdlib.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::u16string Numbered(std::u16string_view stem, uint32_t n) {
  std::u16string text(stem);
  for (char c : std::to_string(n)) text.push_back(static_cast<char16_t>(c));
  return text;
}

// 2,000 points with two titles, three pictures, five subpoints (two titles, two parts and three
// keywords each), five links and four bubbles.
void FillGrammar(lumora::CGramV6& g) {
  for (uint16_t point = 1; point <= 2000; ++point) {
    g.points.Insert({point, 1, 1, Numbered(u"point ", point)});
    for (uint8_t language : {14, 17})
      g.titles.Insert({point, language, Numbered(u"Title ", point)});
    for (uint8_t picture = 1; picture <= 3; ++picture) g.pictures.Insert({point, picture, 1});
    for (uint32_t n = 1; n <= 5; ++n) {
      const uint32_t subpoint = point * 100u + n;
      g.subpoints.Insert({subpoint, static_cast<uint8_t>(n), 10100 + n});
      for (uint8_t language : {14, 17}) {
        g.subpointTitles.Insert({subpoint, language, Numbered(u"Subpoint ", subpoint)});
      }
      for (uint8_t b = 0; b < 2; ++b) g.parts.Insert({subpoint, 1, b, 0, subpoint, 0, 0, 0});
      for (uint32_t k = 0; k < 3; ++k) {
        g.keywords.Insert({subpoint * 100 + k, Numbered(u"keyword", subpoint * 100 + k)});
      }
      g.links.Insert({point, subpoint, subpoint * 100, 1, 0});
    }
    for (uint8_t b = 1; b <= 4; ++b) g.bubbles.Insert({14, point, b, 1, Numbered(u"bubble ", b)});
  }
}

void FillClassification(lumora::Classification& c) {
  for (uint32_t id = 1; id <= 20000; ++id) c.famSem.Insert({id, Numbered(u"family ", id), 1});
  for (uint32_t id = 1; id <= 2000; ++id) {
    lumora::CatGramRecord category;
    category.id = 10000 + id;
    category.label = Numbered(u"category ", id);
    for (size_t language = 1; language < lumora::kCatGramLanguages; ++language) {
      category.labels[language] = Numbered(u"label ", id);
    }
    c.catGram.Insert(category);
  }
  for (uint32_t id = 1; id <= 2000; ++id) c.grammarPointCategories.Insert({id, u"point", 0});
  for (uint32_t id = 1; id <= 500; ++id) c.verbTenses.Insert({id, Numbered(u"tense ", id), 0});
  for (uint16_t id = 1; id <= 1000; ++id) c.syntacticFunctions.Insert({id, u"function", 0});
}

// A folder holding one saved object, and the set files it wrote.
class SavedFolder {
 public:
  explicit SavedFolder(const std::function<bool(const std::string&)>& save) {
    char pattern[] = "/tmp/lumora-bench-XXXXXX";
    if (mkdtemp(pattern) == nullptr) return;
    folder_ = std::string(pattern) + "/";
    if (!save(folder_)) {
      std::fprintf(stderr, "could not save into %s\n", folder_.c_str());
      return;
    }
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_)) {
      if (entry.path().extension() == ".set") {
        files_.push_back(entry.path().string());
        bytes_ += entry.file_size();
      }
    }
  }
  ~SavedFolder() {
    std::error_code ignored;
    if (!folder_.empty()) fs::remove_all(folder_, ignored);
  }

  bool ready() const { return !files_.empty(); }
  const std::string& folder() const { return folder_; }
  const std::vector<std::string>& files() const { return files_; }
  int64_t bytes() const { return static_cast<int64_t>(bytes_); }

 private:
  std::string folder_;
  std::vector<std::string> files_;
  uintmax_t bytes_ = 0;
};

const SavedFolder& Grammar() {
  static const SavedFolder folder([](const std::string& path) {
    lumora::CGramV6 g;
    FillGrammar(g);
    g.setFolder(path);
    return g.save();
  });
  return folder;
}

const SavedFolder& Classes() {
  static const SavedFolder folder([](const std::string& path) {
    lumora::Classification c;
    FillClassification(c);
    c.SetFolder(path);
    return c.save();
  });
  return folder;
}

std::vector<char> ReadAll(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::vector<char>((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

// Heap bytes in use now, as the allocator counts them.
double HeapInUse() { return static_cast<double>(mallinfo2().uordblks); }

void ReferenceRead(benchmark::State& state, const SavedFolder& saved) {
  if (!saved.ready()) return state.SkipWithError("nothing saved");
  for (auto _ : state) {
    for (const std::string& file : saved.files()) {
      const std::vector<char> bytes = ReadAll(file);
      benchmark::DoNotOptimize(lumora::Crc32(bytes.data(), bytes.size()));
    }
  }
  state.SetBytesProcessed(state.iterations() * saved.bytes());
}

// Writes the saved files' bytes again under other names, each with its checksum computed.
void ReferenceWrite(benchmark::State& state, const SavedFolder& saved) {
  if (!saved.ready()) return state.SkipWithError("nothing saved");
  std::vector<std::vector<char>> contents;
  for (const std::string& file : saved.files()) contents.push_back(ReadAll(file));
  for (auto _ : state) {
    for (size_t i = 0; i < contents.size(); ++i) {
      std::ofstream out(saved.files()[i] + ".copy", std::ios::binary | std::ios::trunc);
      out.write(contents[i].data(), static_cast<std::streamsize>(contents[i].size()));
      benchmark::DoNotOptimize(lumora::Crc32(contents[i].data(), contents[i].size()));
    }
  }
  state.SetBytesProcessed(state.iterations() * saved.bytes());
}

template <typename Object>
void Load(benchmark::State& state, const SavedFolder& saved, uint32_t (*records)(const Object&)) {
  if (!saved.ready()) return state.SkipWithError("nothing saved");
  double held = 0;
  uint32_t count = 0;
  for (auto _ : state) {
    const double before = HeapInUse();
    Object loaded;
    if (!loaded.load(saved.folder())) return state.SkipWithError("the load failed");
    held = HeapInUse() - before;
    count = records(loaded);
  }
  state.SetBytesProcessed(state.iterations() * saved.bytes());
  state.counters["records"] = count;
  state.counters["heap_bytes_per_record"] = count ? held / count : 0;
  state.counters["file_bytes_per_record"] = count ? static_cast<double>(saved.bytes()) / count : 0;
}

template <typename Object>
void Save(benchmark::State& state, const SavedFolder& saved,
          const std::function<void(Object&, const std::string&)>& point_at) {
  if (!saved.ready()) return state.SkipWithError("nothing saved");
  Object loaded;
  if (!loaded.load(saved.folder())) return state.SkipWithError("the load failed");
  const std::string copy = saved.folder() + "copy/";
  fs::create_directories(copy);
  point_at(loaded, copy);
  for (auto _ : state) {
    if (!loaded.save()) return state.SkipWithError("the save failed");
  }
  state.SetBytesProcessed(state.iterations() * saved.bytes());
}

uint32_t GrammarRecords(const lumora::CGramV6& g) {
  return g.points.size() + g.titles.size() + g.pictures.size() + g.subpoints.size() +
         g.parts.size() + g.subpointTitles.size() + g.keywords.size() + g.links.size() +
         g.bubbles.size();
}

uint32_t ClassRecords(const lumora::Classification& c) {
  return c.famSem.size() + c.catGram.size() + c.grammarPointCategories.size() +
         c.verbTenses.size() + c.syntacticFunctions.size();
}

void GrammarReference(benchmark::State& state) { ReferenceRead(state, Grammar()); }
void GrammarLoad(benchmark::State& state) {
  Load<lumora::CGramV6>(state, Grammar(), GrammarRecords);
}
void GrammarWriteReference(benchmark::State& state) { ReferenceWrite(state, Grammar()); }
void GrammarSave(benchmark::State& state) {
  Save<lumora::CGramV6>(state, Grammar(),
                        [](lumora::CGramV6& g, const std::string& to) { g.setFolder(to); });
}
void ClassesReference(benchmark::State& state) { ReferenceRead(state, Classes()); }
void ClassesLoad(benchmark::State& state) {
  Load<lumora::Classification>(state, Classes(), ClassRecords);
}
void ClassesWriteReference(benchmark::State& state) { ReferenceWrite(state, Classes()); }
void ClassesSave(benchmark::State& state) {
  Save<lumora::Classification>(
      state, Classes(), [](lumora::Classification& c, const std::string& to) { c.SetFolder(to); });
}

BENCHMARK(GrammarReference)
    ->Name("GrammarLoad/reference_read_and_crc32")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(GrammarLoad)->Name("GrammarLoad/CGramV6_load")->Unit(benchmark::kMillisecond);
BENCHMARK(GrammarWriteReference)
    ->Name("GrammarSave/reference_write_and_crc32")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(GrammarSave)->Name("GrammarSave/CGramV6_save")->Unit(benchmark::kMillisecond);
BENCHMARK(ClassesReference)
    ->Name("ClassesLoad/reference_read_and_crc32")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ClassesLoad)->Name("ClassesLoad/Classification_load")->Unit(benchmark::kMillisecond);
BENCHMARK(ClassesWriteReference)
    ->Name("ClassesSave/reference_write_and_crc32")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ClassesSave)->Name("ClassesSave/Classification_save")->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
