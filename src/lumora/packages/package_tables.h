// Reading a discipline's package tables through its database connection. Each reader appends
// one record per row, in the order the database gives them, to a list it does not empty.
// False when the SELECT fails or gives no row (nothing is appended then), and when a value
// cannot be read as its field's type, a NULL for instance (the rows before it stay appended).
#pragma once

#include <lumora/packages/database_connection.h>
#include <lumora/packages/package_records.h>
#include <lumora/platform/typed_array.h>

namespace lumora {

bool ReadPackages(DatabaseConnection& db, PackageList& list);
bool ReadPackageTranslations(DatabaseConnection& db, TranslationList& list);
// Only the rows of the packages listed in `packageIds`; none when it is empty.
bool ReadPackageResources(DatabaseConnection& db, const DWordArray& packageIds,
                          PackageResourceList& list);

}  // namespace lumora
