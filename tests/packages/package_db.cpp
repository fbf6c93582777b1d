#include "packages/package_db.h"

#include <lumora/packages/database_connection.h>
#include <lumora/packages/package_schema.h>
#include <lumora/platform/com_apartment.h>
#include <lumora/platform/utf8.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace lumora::testing {

void WritePackageDatabase(const std::string& data_folder,
                          std::initializer_list<const char16_t*> statements, bool with_tables) {
  std::filesystem::create_directories(data_folder);
  std::ofstream(data_folder + "Content.mdb", std::ios::binary | std::ios::trunc);
  std::vector<const char16_t*> all;
  if (with_tables) all.assign(std::begin(kCreatePackageTables), std::end(kCreatePackageTables));
  all.insert(all.end(), statements.begin(), statements.end());
  ComInitialize();
  DatabaseConnection db;
  std::string failure;
  if (!db.Open("DBQ=" + data_folder + "Content.mdb", "", "", 0)) failure = db.errorText;
  for (const char16_t* sql : all) {
    if (failure.empty() && !db.Execute(WideText(sql))) {
      failure = Utf16ToUtf8(sql) + ": " + db.errorText;
    }
  }
  db.Close();
  ComUninitialize();
  if (!failure.empty()) throw std::runtime_error(failure);
}

}  // namespace lumora::testing
