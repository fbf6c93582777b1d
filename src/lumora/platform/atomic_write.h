// Replacing a whole file so that readers see either the old bytes or the new ones, never half
// of each: the bytes go to a temporary file in the same folder, which is then renamed over the
// old file. The old file's permission bits carry over to the new one.
#pragma once

#include <string>

namespace lumora {

// False when the folder cannot be written or the bytes cannot be stored; the old file (if any)
// is then untouched and no temporary file is left behind.
bool WriteFileAtomically(const std::string& path, const std::string& bytes);

}  // namespace lumora
