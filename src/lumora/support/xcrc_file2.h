// A ShareFile that checksums every byte passing through it. A writer's Close re-reads the file
// from disk and, when it holds exactly what was written, records the checksum: in CRCFile.ini
// beside the file (section Main, key = file name, signed decimal, plus DATE_<name> with the
// file's modification time) or as a four-byte little-endian trailer. A reader compares what it
// read with the recorded value through IsGood.
#pragma once

#include <lumora/support/crc32.h>
#include <lumora/support/share_file.h>

#include <cstdint>
#include <ctime>
#include <string>

namespace lumora {

class xCRCFile2 : public ShareFile {
 public:
  static constexpr const char* kListName = "CRCFile.ini";
  static constexpr const char* kListSection = "Main";

  xCRCFile2(bool checksum_on, bool use_list) : checksumOn(checksum_on), useList(use_list) {}
  ~xCRCFile2() override;

  bool Open(const std::string& path, uint32_t flags, FileError* error = nullptr);
  void Close() override;

  size_t Read(void* buffer, size_t n) override;
  bool Write(const void* buffer, size_t n) override;
  bool ReadString(std::string& line, bool* had_end = nullptr) override;

  // True when nothing is checked, nothing was recorded, or what was read matches the record.
  bool IsGood() const;

  // Checksum of a whole file on disk; 0 when it cannot be opened.
  static uint32_t FileChecksum(const std::string& path);
  // How the list writes a checksum (signed decimal) and a file's date (its modification time,
  // local, "%d/%m/%Y %H:%M:%S"; empty when the file cannot be seen).
  static std::string ListChecksumText(uint32_t crc);
  static std::string ListDate(const std::string& path);
  // Whether a caller should try a failed save again, given the attempts made so far and the
  // tick count when it started: always for the first three, for 30 s up to ten, then 10 s.
  static bool ShouldRetry(uint32_t attempts, uint32_t start_tick);

  const std::string& path() const { return path_; }
  std::time_t recordedDate() const { return recordedDate_; }
  bool verified() const { return verified_; }
  uint32_t expected() const { return expected_; }
  uint32_t running() const { return running_.value(); }

 private:
  void ReadRecordedChecksum(const std::string& path);
  bool VerifyAndRecord();
  bool RecordInList(uint32_t crc) const;
  bool AppendTrailer(uint32_t crc);

  const bool checksumOn;
  const bool useList;
  std::string path_;
  std::time_t recordedDate_ = 0;
  bool verified_ = false;
  uint32_t expected_ = 0;
  CrcAccumulator running_;
};

}  // namespace lumora
