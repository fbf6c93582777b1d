// The sample's classification: the five label tables in the "Classes" folder of the common
// Local root, written through the library with their checksums in CRCFile.ini.
#pragma once

#include <string>

namespace lumora::sample {

// Writes the tables into `common_local` + "Classes" (created if missing).
bool WriteSampleClassification(const std::string& common_local, std::string* error);

}  // namespace lumora::sample
