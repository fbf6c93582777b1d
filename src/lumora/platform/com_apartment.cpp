#include <lumora/platform/com_apartment.h>

namespace lumora {
namespace {

thread_local int initializations = 0;

}  // namespace

void ComInitialize() { ++initializations; }

void ComUninitialize() {
  if (initializations > 0) --initializations;
}

int ComInitializations() { return initializations; }

}  // namespace lumora
