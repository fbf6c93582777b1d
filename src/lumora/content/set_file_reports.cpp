// The set files of a folder as plain reports.
#include <lumora/lexicon/set_file_check.h>
#include <lumora/maintenance.h>

namespace lumora {
namespace {

SetFileChecksum ChecksumOf(SetChecksum checksum) {
  switch (checksum) {
    case SetChecksum::kGood:
      return SetFileChecksum::kGood;
    case SetChecksum::kUnlisted:
      return SetFileChecksum::kUnlisted;
    case SetChecksum::kBad:
      break;
  }
  return SetFileChecksum::kBad;
}

}  // namespace

std::optional<std::vector<SetFileReport>> CheckSetFiles(const std::string& folder) {
  const std::optional<std::vector<SetFileCheck>> checks = CheckSetFolder(folder);
  if (!checks) return std::nullopt;
  std::vector<SetFileReport> reports;
  for (const SetFileCheck& check : *checks) {
    SetFileReport report;
    report.table = check.table;
    report.hasHeader = check.hasHeader;
    report.version = check.version;
    report.records = check.records;
    report.versionAccepted = check.versionAccepted;
    report.checksum = ChecksumOf(check.checksum);
    if (check.decode) {
      report.decoded = check.decode->result.ok();
      if (!check.decode->result.ok()) report.reason = check.decode->result.failure().Details();
    }
    report.bad = check.IsBad();
    reports.push_back(std::move(report));
  }
  return reports;
}

}  // namespace lumora
