// Every resource file of every exercise type decodes with its type's class, and holds the
// resource its path names; an ".arh" twin, which the library prefers, decodes too.
#include <lumora/check/checks.h>
#include <lumora/check/decoded_indexes.h>
#include <lumora/check/decoded_media.h>
#include <lumora/platform/file.h>
#include <lumora/platform/kept_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/folder_entries.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

#include <algorithm>
#include <atomic>
#include <exception>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace lumora {
namespace {

constexpr uint64_t kMostResourceBytes = uint64_t{256} << 20;

std::string IdText(uint32_t course, uint32_t number) {
  return "course " + std::to_string(course) + ", number " + std::to_string(number);
}

// One resource file: read whole, decoded from its bytes, its findings. The bytes are kept
// afterwards, on the calling thread, for the index rebuilds that read the file again.
struct FileResult {
  CheckReport found;  // its findings only
  std::string bytes;
  WholeFile read = WholeFile::kMissing;
  DecodedIndexes::Input index;  // when the index check takes it from here
};

struct FileToCheck {
  uint32_t type;
  ScannedResource file;
  size_t media = DecodedMedia::kNotVerified;  // its place among the files the media check verifies
  size_t discipline = 0;
  bool indexInput = false;  // whether the index check takes its input from here
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

// Checks the file that `result` holds as read, and verifies its media from the decoded resource
// when the media check wants them.
void CheckFile(const CheckedRoot& root, const FileToCheck& item, FileResult& result,
               DecodedMedia& media) {
  const ScannedResource& file = item.file;
  const std::string relative = root.Relative(file.path);
  if (!file.course) {
    result.found.Warning(
        relative, "lies outside a course folder (C and four digits): the library never reads it");
  }
  std::unique_ptr<ExerciseResource> resource = NewResource(item.type);
  const LoadResult loaded = Decode(file.path, *resource, result);
  if (item.media != DecodedMedia::kNotVerified && result.read == WholeFile::kRead) {
    media.Verify(item.media, loaded.ok() ? resource.get() : nullptr);
  }
  if (item.indexInput) {
    result.index =
        DecodedIndexes::InputOf(item.type, file.number, loaded.ok() ? resource.get() : nullptr);
  }
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

// The files are read and decoded by two threads; the findings are then reported, and the bytes
// kept, in the order of the files.
void CheckResources(const CheckedRoot& root, CheckReport& report) {
  DecodedMedia media(root);
  DecodedIndexes indexes(root);
  std::vector<FileToCheck> items;
  for (size_t d = 0; d < root.disciplines.size(); ++d) {
    for (uint32_t type : kExerciseTypes) {
      std::vector<ScannedResource> scanned =
          ScanResourceFiles(root.disciplines[d].discipline->localRoot, type, {true});
      const std::vector<size_t> places = media.PlacesAmong(d, type, scanned);
      const bool index_inputs = indexes.Takes(type);
      for (size_t i = 0; i < scanned.size(); ++i) {
        if (!root.ChecksResourceFile(scanned[i].path)) continue;
        const bool twin = scanned[i].twin;
        items.push_back({type, std::move(scanned[i]), places[i], d, index_inputs && !twin});
      }
    }
  }
  std::vector<FileResult> results(items.size());
  // The two threads take a few files at a time, in turn, so that neither waits for the other
  // at the end: some types have far more media to verify than others. A few files are read in
  // a row, then decoded: reads one after another keep what the system needs for them at hand,
  // which decoding in between would push out.
  constexpr size_t kReadTogether = 32;
  std::atomic<size_t> next{0};
  auto check = [&] {
    // The media checked here lie in folders that do not change meanwhile.
    const ListedFiles listed;
    for (size_t first = next.fetch_add(kReadTogether); first < items.size();
         first = next.fetch_add(kReadTogether)) {
      const size_t last = std::min(items.size(), first + kReadTogether);
      for (size_t i = first; i < last; ++i) {
        results[i].read = ReadWholeFile(items[i].file.path, kMostResourceBytes, results[i].bytes);
      }
      for (size_t i = first; i < last; ++i) {
        CheckFile(root, items[i], results[i], media);
        root.StepsDone(1);
      }
    }
  };
  std::exception_ptr failed;
  std::thread second([&] {
    try {
      const SharedFolderListing listed(root.resourceFolders);
      check();
    } catch (...) {
      failed = std::current_exception();
    }
  });
  try {
    check();
  } catch (...) {
    second.join();
    throw;
  }
  second.join();
  if (failed) std::rethrow_exception(failed);
  media.Finish();
  for (size_t i = 0; i < items.size(); ++i) {
    ++report.checked;
    for (Finding& finding : results[i].found.findings) {
      report.findings.push_back(std::move(finding));
    }
    if (items[i].indexInput) {
      // Nothing reads the file again.
      indexes.Add(items[i].discipline, items[i].type, std::move(results[i].index),
                  results[i].read == WholeFile::kTooLarge);
    } else if (results[i].read == WholeFile::kRead) {
      KeepFile(items[i].file.path, std::move(results[i].bytes));
    }
  }
  indexes.Finish();
}

}  // namespace lumora
