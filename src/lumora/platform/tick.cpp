#include <lumora/platform/tick.h>

#include <chrono>
#include <thread>

namespace lumora {

uint32_t TickCount() {
  using namespace std::chrono;
  auto ms = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
  return static_cast<uint32_t>(ms);
}

void WaitTicks(uint32_t ms) {
  const uint32_t start = TickCount();
  while (TickCount() - start < ms) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

}  // namespace lumora
