// Descriptions of a discipline's packages: what `lumora packages --json` prints.
#pragma once

#include <lumora/describe/description.h>
#include <lumora/packages/package_records.h>

namespace lumora {

// [{"id", "version", "date", "idString", "titles": [{"language", "code", "codePage", "text"}]}]:
// each package with the date of its last generation as the export writes it (local time,
// "YYYY/MM/DD HH:MM:SS") and its titles from `translations`.
Description DescribePackages(const PackageList& packages, const TranslationList& translations);

// [{"package", "type", "item"}]: the resource rows of packages.
Description DescribePackageResources(const PackageResourceList& rows);

}  // namespace lumora
