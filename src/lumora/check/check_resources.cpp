// Every resource file of every exercise type decodes with its type's class, and holds the
// resource its path names; an ".arh" twin, which the library prefers, decodes too.
#include <lumora/check/checks.h>
#include <lumora/platform/file.h>
#include <lumora/platform/kept_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/paths.h>

#include <algorithm>
#include <exception>
#include <string>
#include <thread>
#include <vector>

namespace lumora {
namespace {

constexpr uint64_t kMostResourceBytes = uint64_t{256} << 20;

std::string IdText(uint32_t course, uint32_t number) {
  return "course " + std::to_string(course) + ", number " + std::to_string(number);
}

// One resource file: read whole, decoded from its bytes, its findings. The bytes are kept
// afterwards, on the calling thread, for the index rebuilds and the media check.
struct FileResult {
  CheckReport found;  // its findings only
  std::string bytes;
  WholeFile read = WholeFile::kMissing;
};

struct FileToCheck {
  uint32_t type;
  ScannedResource file;
};

// Decodes what ReadWholeFile read into `result`.
LoadResult Decode(const std::string& path, ExerciseResource& resource, const FileResult& result) {
  switch (result.read) {
    case WholeFile::kRead:
      return ReadArchiveBytes(result.bytes, resource, path);
    case WholeFile::kTooLarge:
      return LoadResult({path, std::nullopt, "is larger than any resource file can be"});
    default:
      return ReadArchiveFile(path, resource);  // says why it cannot be read
  }
}

// Checks the file that `result` holds as read.
void CheckFile(const CheckedRoot& root, const FileToCheck& item, FileResult& result) {
  const ScannedResource& file = item.file;
  const std::string relative = root.Relative(file.path);
  if (!file.course) {
    result.found.Warning(
        relative, "lies outside a course folder (C and four digits): the library never reads it");
  }
  std::unique_ptr<ExerciseResource> resource = NewResource(item.type);
  const LoadResult loaded = Decode(file.path, *resource, result);
  if (!loaded.ok()) {
    result.found.Error(relative,
                       "does not decode as type " + std::to_string(item.type) + " (" +
                           loaded.failure().Details() + ")" +
                           (file.twin ? ": the library reads this twin before the .ars file" : ""));
    return;
  }
  const uint32_t stored = resource->resourceId;
  if (file.course && (CourseOf(stored) != *file.course || NumberOf(stored) != file.number)) {
    result.found.Error(relative, "holds resource " + std::to_string(stored) + " (" +
                                     IdText(CourseOf(stored), NumberOf(stored)) +
                                     ") but its path names " + IdText(*file.course, file.number));
  }
}

}  // namespace

// The files are read and decoded by two threads, each taking half of them; the findings are
// then reported, and the bytes kept, in the order of the files.
void CheckResources(const CheckedRoot& root, CheckReport& report) {
  std::vector<FileToCheck> items;
  for (const CheckedDiscipline& d : root.disciplines) {
    for (uint32_t type : kExerciseTypes) {
      for (ScannedResource& file : ScanResourceFiles(d.discipline->localRoot, type, {true})) {
        if (root.ChecksResourceFile(file.path)) items.push_back({type, std::move(file)});
      }
    }
  }
  std::vector<FileResult> results(items.size());
  // A few files are read in a row, then decoded: reads one after another keep what the system
  // needs for them at hand, which decoding in between would push out.
  constexpr size_t kReadTogether = 32;
  auto check = [&](size_t from, size_t to) {
    for (size_t first = from; first < to; first += kReadTogether) {
      const size_t last = std::min(to, first + kReadTogether);
      for (size_t i = first; i < last; ++i) {
        results[i].read = ReadWholeFile(items[i].file.path, kMostResourceBytes, results[i].bytes);
      }
      for (size_t i = first; i < last; ++i) {
        CheckFile(root, items[i], results[i]);
        root.StepsDone(1);
      }
    }
  };
  const size_t half = items.size() / 2;
  std::exception_ptr failed;
  std::thread second([&] {
    try {
      check(half, items.size());
    } catch (...) {
      failed = std::current_exception();
    }
  });
  try {
    check(0, half);
  } catch (...) {
    second.join();
    throw;
  }
  second.join();
  if (failed) std::rethrow_exception(failed);
  for (size_t i = 0; i < items.size(); ++i) {
    ++report.checked;
    for (Finding& finding : results[i].found.findings) {
      report.findings.push_back(std::move(finding));
    }
    if (results[i].read == WholeFile::kRead) {
      KeepFile(items[i].file.path, std::move(results[i].bytes));
    }
  }
}

}  // namespace lumora
