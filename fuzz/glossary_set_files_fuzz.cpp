// Feeds arbitrary bytes to the glossary set-file reader: the first byte picks one of the ten
// table kinds, the rest is the file. What was read is looked up and stored again, so that a
// partly read table is also walked.
#include <lumora/lexicon/glossary_records.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/lexicon/set_table.h>
#include <lumora/platform/archive.h>
#include <lumora/platform/stream.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

template <typename Record>
void ReadAndStore(const uint8_t* data, size_t size) {
  lumora::SetTable<Record> table;
  try {
    lumora::MemoryStream in(std::vector<uint8_t>(data, data + size));
    lumora::Archive load(in, lumora::Archive::Mode::kLoad);
    const uint32_t version = load.ReadU32();
    if (!lumora::AcceptsSetVersion(lumora::SetFamily::kGlossary, version)) return;
    table.ReadRecords(load, version);
  } catch (const lumora::ArchiveError&) {
  }
  if (!table.empty()) {
    const auto key = table.records().front().Key();
    table.Find(key);
    table.Range(key, table.records().back().Key());
    table.Remove(key);
  }
  lumora::MemoryStream out;
  lumora::Archive store(out, lumora::Archive::Mode::kStore);
  table.WriteRecords(store, lumora::WrittenSetVersion(lumora::SetFamily::kGlossary));
  store.Flush();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const uint8_t* file = data + 1;
  const size_t length = size - 1;
  switch (data[0] % 10) {
    case 0:
      ReadAndStore<lumora::GloFNRecord>(file, length);
      break;
    case 1:
      ReadAndStore<lumora::GloWritingRecord>(file, length);
      break;
    case 2:
      ReadAndStore<lumora::GloLinkRecord>(file, length);
      break;
    case 3:
      ReadAndStore<lumora::GloCloudRecord>(file, length);
      break;
    case 4:
      ReadAndStore<lumora::GloSoundRecord>(file, length);
      break;
    case 5:
      ReadAndStore<lumora::GloRecoRecord>(file, length);
      break;
    case 6:
      ReadAndStore<lumora::GloFNTranslationRecord>(file, length);
      break;
    case 7:
      ReadAndStore<lumora::GloCommentRecord>(file, length);
      break;
    case 8:
      ReadAndStore<lumora::GloFNSortedRecord>(file, length);
      break;
    default:
      ReadAndStore<lumora::GloFNLetterRecord>(file, length);
      break;
  }
  return 0;
}
