#include <lumora/frame/content_config.h>

namespace lumora {

void ReadTypeAndParam(ProfileFile& ini, DisciplineInfo& info) {
  info.Type = static_cast<uint8_t>(ini.GetInt("Type"));
  info.Param = ini.GetInt("Param");
}

}  // namespace lumora
