#include <lumora/packages/package_tables.h>
#include <lumora/support/language_table.h>

#include <algorithm>
#include <memory>

namespace lumora {
namespace {

// Runs `sql` and hands every row to `read`. A database error while walking (a NULL where a
// number is read, say) makes the listing false; the record set is given back either way.
template <typename ReadRow>
bool ReadRows(DatabaseConnection& db, const char16_t* sql, ReadRow read) {
  RecordsetHolder* holder = db.OpenRecordset(WideText(sql));
  if (holder == nullptr) return false;
  bool ok = true;
  try {
    for (; !holder->recordset->GetEOF(); holder->recordset->MoveNext()) read(*holder);
  } catch (const ado::Error&) {
    ok = false;
  }
  db.CloseRecordset(holder);
  return ok;
}

}  // namespace

bool ReadPackages(DatabaseConnection& db, PackageList& list) {
  return ReadRows(db, u"SELECT * FROM t_Packages", [&](RecordsetHolder& row) {
    int32_t id = 0;
    db.ReadInteger(row, "f_IdPackage", id);
    auto owned = std::make_unique<PackageRecord>();
    PackageRecord& record = *owned;
    list.Add(static_cast<uint32_t>(id), std::move(owned));
    db.ReadDate(row, "f_DateLastGeneration", record.dateLastGeneration);
    db.ReadInteger(row, "f_Version", record.version);
    db.ReadInteger(row, "f_IdString", record.idString);
  });
}

bool ReadPackageTranslations(DatabaseConnection& db, TranslationList& list) {
  return ReadRows(db, u"SELECT * FROM t_Translations", [&](RecordsetHolder& row) {
    TranslationRecord& record = list.Add(std::make_unique<TranslationRecord>());
    db.ReadInteger(row, "f_IdString", record.idString);
    db.ReadByte(row, "f_IdLanguage", record.idLanguage);
    db.ReadInteger(row, "f_IdDataType", record.idDataType);
    WideText text;
    db.ReadText(row, "f_String", text);
    record.text = CodePageText(CodePageOf(record.idLanguage), std::move(text));
  });
}

bool ReadPackageResources(DatabaseConnection& db, const DWordArray& packageIds,
                          PackageResourceList& list) {
  return ReadRows(db, u"SELECT * FROM t_PackagesResources", [&](RecordsetHolder& row) {
    int32_t id = 0;
    db.ReadInteger(row, "f_IdPackage", id);
    const uint32_t key = static_cast<uint32_t>(id);
    if (std::find(packageIds.begin(), packageIds.end(), key) == packageIds.end()) return;
    auto owned = std::make_unique<PackageResourceRecord>();
    PackageResourceRecord& record = *owned;
    list.Add(key, std::move(owned));
    db.ReadInteger(row, "f_IdResource", record.idResource);
    db.ReadInteger(row, "f_IdItem", record.idItem);
  });
}

}  // namespace lumora
