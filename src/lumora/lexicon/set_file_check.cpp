#include <lumora/lexicon/set_file_check.h>
#include <lumora/platform/archive.h>
#include <lumora/platform/ascii_text.h>
#include <lumora/support/folder_commit.h>
#include <lumora/support/folder_entries.h>
#include <lumora/support/paths.h>
#include <lumora/support/xcrc_file2.h>

#include <array>

namespace lumora {
namespace {

constexpr std::string_view kSetExtension = ".set";
constexpr size_t kHeaderSize = 8;
constexpr size_t kScanBlock = 64 * 1024;

bool HasSetExtension(std::string_view name) {
  return EqualsIgnoringCase(ExtensionOf(name), kSetExtension);
}

}  // namespace

SetFamily FamilyOfTable(std::string_view table) {
  if (table.starts_with("t_Glo_")) return SetFamily::kGlossary;
  if (table.starts_with("t_Gr_")) return SetFamily::kGrammar;
  return SetFamily::kClassification;
}

SetFileCheck CheckSetFile(const std::string& path) {
  SetFileCheck check;
  check.table = FileTitle(path);

  // Reading through the checksummed file checksums every byte and fetches the recorded value.
  xCRCFile2 file(true, true);
  if (!file.Open(path, open_flags::kRead | open_flags::kBinary)) return check;
  std::array<uint8_t, kHeaderSize> header{};
  size_t total = file.Read(header.data(), header.size());
  std::vector<uint8_t> block(kScanBlock);
  for (size_t got; (got = file.Read(block.data(), block.size())) > 0;) total += got;
  file.Close();

  check.hasHeader = total >= kHeaderSize;
  if (check.hasHeader) {
    check.version = DecodeU32(header.data());
    check.records = DecodeU32(header.data() + 4);
    check.versionAccepted = AcceptsSetVersion(FamilyOfTable(check.table), check.version);
  }
  if (!check.hasHeader) {
    check.checksum = SetChecksum::kBad;
  } else if (file.expected() == 0) {
    check.checksum = SetChecksum::kUnlisted;
  } else {
    check.checksum = file.IsGood() ? SetChecksum::kGood : SetChecksum::kBad;
  }
  if (const KnownSetTable* table = FindSetTable(check.table)) check.decode = table->decode(path);
  return check;
}

std::optional<std::vector<SetFileCheck>> CheckSetFolder(const std::string& folder) {
  // The folder as any reader sees it: a save a crash interrupted is finished first.
  FolderReadScope scope(WithBackslash(folder));
  const std::optional<std::vector<FolderEntry>> entries = ListFolder(folder);
  if (!entries) return std::nullopt;
  const std::string prefix = WithBackslash(folder);
  std::vector<SetFileCheck> checks;
  for (const FolderEntry& entry : *entries) {
    if (!entry.isFolder && HasSetExtension(entry.name)) {
      checks.push_back(CheckSetFile(prefix + entry.name));
    }
  }
  return checks;
}

}  // namespace lumora
