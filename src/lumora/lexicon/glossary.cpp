#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/indexed_set_file.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/lexicon/set_file_write.h>
#include <lumora/support/folder_commit.h>
#include <lumora/support/paths.h>

namespace lumora {
namespace {

constexpr std::u16string_view kSoundTable = u"t_Glo_Sounds";
constexpr std::u16string_view kRecoTable = u"t_Glo_Reco1600";

// Quality folders are numbered by bytes wherever media are laid out.
ByteArray QualityFolders(const std::vector<uint32_t>& qualities) {
  ByteArray folders;
  for (uint32_t quality : qualities) folders.Add(static_cast<uint8_t>(quality));
  return folders;
}

}  // namespace

std::string CGloBase::getErrors() const {
  std::string all;
  for (const std::string& error : errors) all.append(error).push_back('\n');
  return all;
}

LoadResult CGloV6::LoadWithReason(const std::string& folder_path) {
  setFolder(folder_path);
  FolderReadScope scope(folder);
  LoadResult result;
  // A table that reads its set file leaves the version it was read with; one that fails before
  // its version was accepted, or reads only its index, leaves the previous one.
  auto read = [&](std::u16string_view name, auto& table) {
    auto version = static_cast<uint32_t>(setVersion);
    result = LoadSetTable(folder, name, SetFamily::kGlossary, table, &version);
    setVersion = static_cast<int32_t>(version);
    return result.ok();
  };
  auto read_indexed = [&](std::u16string_view name, auto& table, int32_t& index_version,
                          DWordArray& offsets) {
    auto version = static_cast<uint32_t>(setVersion);
    result = LoadIndexedSetTable(folder, name, false, table, index_version, offsets, &version);
    setVersion = static_cast<int32_t>(version);
    return result.ok();
  };
  read(u"t_Glo_FNs", fns) && read(u"t_Glo_Writings", writings) && read(u"t_Glo_Links", links) &&
      read(u"t_Glo_Cloud1600", clouds) &&
      read_indexed(kSoundTable, sounds, soundIndexVersion, soundIndex) &&
      read_indexed(kRecoTable, recos, recoIndexVersion, recoIndex) &&
      read(u"t_Glo_FNTranslations", translations) && read(u"t_Glo_Comments", comments) &&
      read(u"t_Glo_FNSorted", sorted) && read(u"t_Glo_FNLetter", letters);
  return result;
}

bool CGloV6::load(const std::string& folder_path) { return LoadWithReason(folder_path).ok(); }

void CGloV6::setFolder(const std::string& folder_path) { folder = WithBackslash(folder_path); }

// Every table, the two indexes and their versions replace the old ones in one commit: a
// glossary is never left with tables from two different saves.
bool CGloV6::save(bool withIndex, const std::vector<uint32_t>& qualities) {
  const ByteArray folders = QualityFolders(qualities);
  const ByteArray* needed = qualities.empty() ? nullptr : &folders;
  const uint32_t version = WrittenSetVersion(SetFamily::kGlossary);
  try {
    FolderCommit commit(folder);
    auto stage = [&](std::u16string_view name, auto& table) {
      StageSetTable(commit, name, version, table);
    };
    stage(u"t_Glo_FNs", fns);
    stage(u"t_Glo_Writings", writings);
    stage(u"t_Glo_Links", links);
    stage(u"t_Glo_Cloud1600", clouds);
    StageIndexedSetTable(commit, folder, kSoundTable, sounds, withIndex, soundIndexVersion, needed);
    StageIndexedSetTable(commit, folder, kRecoTable, recos, withIndex, recoIndexVersion, needed);
    stage(u"t_Glo_FNTranslations", translations);
    stage(u"t_Glo_Comments", comments);
    stage(u"t_Glo_FNSorted", sorted);
    stage(u"t_Glo_FNLetter", letters);
    return CommitSaved(commit);
  } catch (const std::exception& error) {
    WriteStatus::Failure(folder, error.what());
    return false;
  }
}

}  // namespace lumora
