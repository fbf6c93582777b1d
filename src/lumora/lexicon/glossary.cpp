#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/indexed_set_file.h>
#include <lumora/lexicon/set_file.h>
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

bool CGloV6::load(const std::string& folder_path) {
  setFolder(folder_path);
  // A table that reads its set file leaves the version it was read with; one that fails before
  // its version was accepted, or reads only its index, leaves the previous one.
  auto read = [&](std::u16string_view name, auto& table) {
    auto version = static_cast<uint32_t>(setVersion);
    const bool read_ok = ReadSetTable(folder, name, SetFamily::kGlossary, table, &version);
    setVersion = static_cast<int32_t>(version);
    return read_ok;
  };
  auto read_indexed = [&](std::u16string_view name, auto& table, int32_t& index_version,
                          DWordArray& offsets) {
    auto version = static_cast<uint32_t>(setVersion);
    const bool read_ok =
        LoadIndexedSetTable(folder, name, false, table, index_version, offsets, &version);
    setVersion = static_cast<int32_t>(version);
    return read_ok;
  };
  return read(u"t_Glo_FNs", fns) && read(u"t_Glo_Writings", writings) &&
         read(u"t_Glo_Links", links) && read(u"t_Glo_Cloud1600", clouds) &&
         read_indexed(kSoundTable, sounds, soundIndexVersion, soundIndex) &&
         read_indexed(kRecoTable, recos, recoIndexVersion, recoIndex) &&
         read(u"t_Glo_FNTranslations", translations) && read(u"t_Glo_Comments", comments) &&
         read(u"t_Glo_FNSorted", sorted) && read(u"t_Glo_FNLetter", letters);
}

void CGloV6::setFolder(const std::string& folder_path) { folder = WithBackslash(folder_path); }

bool CGloV6::save(bool withIndex, const std::vector<uint32_t>& qualities) {
  const ByteArray folders = QualityFolders(qualities);
  const ByteArray* needed = qualities.empty() ? nullptr : &folders;
  auto write = [this](std::u16string_view name, auto& table) {
    return WriteSetTable(folder, name, SetFamily::kGlossary, table);
  };
  return write(u"t_Glo_FNs", fns) && write(u"t_Glo_Writings", writings) &&
         write(u"t_Glo_Links", links) && write(u"t_Glo_Cloud1600", clouds) &&
         SaveIndexedSetTable(folder, kSoundTable, sounds, withIndex, soundIndexVersion, needed) &&
         SaveIndexedSetTable(folder, kRecoTable, recos, withIndex, recoIndexVersion, needed) &&
         write(u"t_Glo_FNTranslations", translations) && write(u"t_Glo_Comments", comments) &&
         write(u"t_Glo_FNSorted", sorted) && write(u"t_Glo_FNLetter", letters);
}

}  // namespace lumora
