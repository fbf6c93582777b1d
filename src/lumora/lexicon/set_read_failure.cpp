#include <lumora/lexicon/set_read_failure.h>
#include <lumora/support/crc32.h>
#include <lumora/support/paths.h>
#include <lumora/support/xcrc_file2.h>

namespace lumora {
namespace {

std::string AcceptedVersions(SetFamily family) {
  switch (family) {
    case SetFamily::kGlossary:
      return "glossary tables take versions below 100";
    case SetFamily::kGrammar:
      return "grammar tables take 1 and below";
    case SetFamily::kClassification:
      break;
  }
  return "classification tables take only version 1";
}

std::string RecordOfCount(const SetRecordCursor& cursor) {
  return "record " + std::to_string(cursor.record) + " of " + std::to_string(cursor.count) +
         ", which starts at byte " + std::to_string(cursor.recordStart);
}

}  // namespace

LoadFailure UnopenedSetFile(const std::string& path) {
  return {path, std::nullopt,
          FileExists(path) ? "the file cannot be opened" : "the file is missing"};
}

LoadFailure RefusedSetVersion(const std::string& path, SetFamily family, uint32_t version) {
  return {path, 0,
          "version " + std::to_string(version) + " is refused: " + AcceptedVersions(family)};
}

LoadFailure SetReadError(const std::string& path, const Archive& ar, const SetRecordCursor& cursor,
                         const std::exception& error) {
  const uint64_t at = ar.Position();
  if (!cursor.counted) {
    return {path, at, "the file ends inside its header (version and record count)"};
  }
  if (ar.Available() == 0) {
    // Nothing of the record was there: the count promised more than the file holds.
    if (at == cursor.recordStart) {
      return {path, at,
              "the file holds " + std::to_string(cursor.record - 1) + " of the " +
                  std::to_string(cursor.count) + " records its count gives"};
    }
    return {path, at, "the file ends inside " + RecordOfCount(cursor)};
  }
  if (dynamic_cast<const ArchiveError*>(&error) != nullptr) {
    return {path, at,
            RecordOfCount(cursor) + ", gives a length that runs past the end of the file"};
  }
  return {path, at, RecordOfCount(cursor) + ": " + error.what()};
}

LoadResult SetChecksumResult(const std::string& path, const std::vector<uint8_t>& bytes,
                             size_t taken, uint32_t recorded, uint32_t whole_file_checksum) {
  if (taken < bytes.size()) {
    if (recorded == 0 || Crc32(bytes.data(), taken) == recorded) return {};
    return LoadResult(
        {path, taken, std::to_string(bytes.size() - taken) + " bytes follow the last record"});
  }
  if (recorded == 0 || whole_file_checksum == recorded) return {};
  return LoadResult({path, std::nullopt,
                     "the checksum differs from CRCFile.ini (recorded " +
                         xCRCFile2::ListChecksumText(recorded) + ", the file has " +
                         xCRCFile2::ListChecksumText(whole_file_checksum) + ")"});
}

}  // namespace lumora
