// The package-to-resource rows of an open discipline, for the export.
#pragma once

#include <lumora/packages/package_records.h>
#include <lumora/platform/typed_array.h>

#include <cstdint>

namespace lumora {

// Appends the rows of t_PackagesResources whose package is in packageIds. False for an
// unknown discipline, one without a database, or a table that cannot be read or has no row.
bool GetPackageResources(uint32_t disciplineId, const DWordArray* packageIds,
                         PackageResourceList* list);

}  // namespace lumora
