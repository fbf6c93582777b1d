// The discipline description a Content.ini section gives, on top of the file's layout
// (support/content_ini.h).
#pragma once

#include <lumora/frame/discipline_info.h>
#include <lumora/support/content_ini.h>
#include <lumora/support/profile_file.h>

namespace lumora {

// Type (its low byte) and Param of the current section, read in that order.
void ReadTypeAndParam(ProfileFile& ini, DisciplineInfo& info);

}  // namespace lumora
