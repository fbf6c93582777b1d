// Feeds arbitrary bytes to the set-file reader: the first byte picks one of the table kinds of
// the glossary, the grammar and the classification (in the order of lexicon_inputs.h), the rest
// is the file. What was read is
// looked up and stored again, so that a partly read table is also walked.
#include <lumora/lexicon/classification.h>
#include <lumora/lexicon/glossary_records.h>
#include <lumora/lexicon/grammar_records.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/lexicon/set_table.h>
#include <lumora/platform/archive.h>
#include <lumora/platform/stream.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

#include "lexicon_inputs.h"

namespace {

template <typename Record>
void ReadAndStore(lumora::SetFamily family, const uint8_t* data, size_t size) {
  lumora::SetTable<Record> table;
  try {
    lumora::MemoryStream in(std::vector<uint8_t>(data, data + size));
    lumora::Archive load(in, lumora::Archive::Mode::kLoad);
    const uint32_t version = load.ReadU32();
    if (!lumora::AcceptsSetVersion(family, version)) return;
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
  table.WriteRecords(store, lumora::WrittenSetVersion(family));
  store.Flush();
}

template <typename Record>
void Glossary(const uint8_t* data, size_t size) {
  ReadAndStore<Record>(lumora::SetFamily::kGlossary, data, size);
}
template <typename Record>
void Grammar(const uint8_t* data, size_t size) {
  ReadAndStore<Record>(lumora::SetFamily::kGrammar, data, size);
}
template <typename Record>
void Classes(const uint8_t* data, size_t size) {
  ReadAndStore<Record>(lumora::SetFamily::kClassification, data, size);
}

using Reader = void (*)(const uint8_t*, size_t);
constexpr Reader kReaders[] = {
    Glossary<lumora::GloFNRecord>,
    Glossary<lumora::GloWritingRecord>,
    Glossary<lumora::GloLinkRecord>,
    Glossary<lumora::GloCloudRecord>,
    Glossary<lumora::GloSoundRecord>,
    Glossary<lumora::GloRecoRecord>,
    Glossary<lumora::GloFNTranslationRecord>,
    Glossary<lumora::GloCommentRecord>,
    Glossary<lumora::GloFNSortedRecord>,
    Glossary<lumora::GloFNLetterRecord>,
    Grammar<lumora::GrPointsRecord>,
    Grammar<lumora::GrTitlesRecord>,
    Grammar<lumora::GrPicturesRecord>,
    Grammar<lumora::GrSubpointsRecord>,
    Grammar<lumora::GrPartsRecord>,
    Grammar<lumora::GrSubpointTitlesRecord>,
    Grammar<lumora::GrKeywordsRecord>,
    Grammar<lumora::GrLinksRecord>,
    Grammar<lumora::GrBubblesRecord>,
    Classes<lumora::FamSemRecord>,
    Classes<lumora::CatGramRecord>,
    Classes<lumora::SyntacticFunctionRecord>,
};
static_assert(std::size(kReaders) == fuzzing::kSetFileNames.size());

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  kReaders[data[0] % std::size(kReaders)](data + 1, size - 1);
  return 0;
}
