// Seeds of the targets that read texts: the sample's ini files, what its databases hold and
// the string that opens them, and a stored text context for each kind of place a code names.
#include <lumora/platform/archive.h>
#include <lumora/platform/stream.h>
#include <lumora/resources/text_context.h>
#include <sqlite3.h>

#include <cstdint>
#include <string>

#include "seed_folder.h"
#include "seed_sets.h"

namespace seeds {
namespace {

Bytes BytesOf(const std::string& text) { return Bytes(text.begin(), text.end()); }

// Every non-null text the query returns in its first column.
void AddQueryTexts(sqlite3* db, const char* query, TargetSeeds& seeds) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(db, query, -1, &statement, nullptr) != SQLITE_OK) return;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    const auto* text = sqlite3_column_text(statement, 0);
    if (text != nullptr) seeds.Add(BytesOf(reinterpret_cast<const char*>(text)));
  }
  sqlite3_finalize(statement);
}

}  // namespace

void WriteProfileSeeds(const std::filesystem::path& sample, const std::filesystem::path& out) {
  TargetSeeds seeds(out, "profile_fuzz");
  for (const auto& file : FilesEndingIn(sample, ".ini")) seeds.Add(ReadBytes(file));
}

// The statements that made each table, the dates the packages were generated, and the
// connection string naming the file (without a driver, which the parser accepts as well).
void WriteDatabaseTextSeeds(const std::filesystem::path& sample, const std::filesystem::path& out) {
  TargetSeeds seeds(out, "database_text_fuzz");
  for (const auto& file : FilesEndingIn(sample, ".mdb")) {
    seeds.Add(BytesOf("DBQ=" + file.string()));
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK) {
      AddQueryTexts(db, "SELECT sql FROM sqlite_master WHERE sql IS NOT NULL", seeds);
      AddQueryTexts(db, "SELECT f_DateLastGeneration FROM t_Packages", seeds);
    }
    sqlite3_close(db);
  }
}

// No sample file stores a text context, so the seeds are one stored context per kind of
// place: titles long and short, a bare question, a computer message, a question, a student
// answer, a video paragraph, an exercise and an item-based type.
void WriteTextContextSeeds(const std::filesystem::path& out) {
  constexpr uint32_t kCodes[] = {0x00008100, 0x00004100, 0x00000100, 0x20004101, 0x40000203,
                                 0x60008102, 0x80004100, 0xA4020500, 0xC1010100};
  TargetSeeds seeds(out, "text_context_fuzz");
  for (const uint32_t code : kCodes) {
    lumora::TextContext context(code, code % 2 == 0 ? -1 : 3, code > 0x80000000 ? "note" : "");
    lumora::MemoryStream stream;
    lumora::Archive ar(stream, lumora::Archive::Mode::kStore);
    context.Serialize(ar);
    ar.Flush();
    seeds.Add(stream.bytes());
  }
}

}  // namespace seeds
