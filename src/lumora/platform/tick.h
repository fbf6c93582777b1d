// Millisecond tick count that wraps like a 32-bit counter; only differences are meaningful.
#pragma once

#include <cstdint>

namespace lumora {

uint32_t TickCount();

// Busy-waits (sleeping in small steps) until `ms` milliseconds have passed on the tick count.
void WaitTicks(uint32_t ms);

}  // namespace lumora
