// Saving through the checksummed file records each file's modification time beside its
// checksum in CRCFile.ini. The sample pins those times so that writing it twice gives the same
// bytes.
#pragma once

#include <string>

namespace lumora::sample {

// Gives every file that `folder`'s CRCFile.ini dates a fixed modification time (1 January 2024,
// midnight local time) and records that time in the list as saving would have. False with a
// one-line reason when a file cannot be touched or the list cannot be written.
bool PinListedDates(const std::string& folder, std::string* error);

}  // namespace lumora::sample
