// Progress of a long operation, for hosts with or without a progress bar: the operation sets a
// range once (from 0 to a maximum) and then positions within it, and the host's callbacks get
// exactly what a progress-bar control would be sent. The library never draws anything.
#pragma once

#include <cstdint>
#include <functional>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Progress {
 public:
  Progress() = default;
  Progress(std::function<void(uint32_t)> on_range, std::function<void(uint32_t)> on_position)
      : onRange(std::move(on_range)), onPosition(std::move(on_position)) {}

  void SetRange(uint32_t maximum) const {
    if (onRange) onRange(maximum);
  }
  void SetPosition(uint32_t position) const {
    if (onPosition) onPosition(position);
  }
  // Whether the host asked the operation to stop; an operation that can stop asks between its
  // steps and reports that it stopped.
  bool StopRequested() const { return onStopRequested && onStopRequested(); }

  // Any may be empty.
  std::function<void(uint32_t maximum)> onRange;
  std::function<void(uint32_t position)> onPosition;
  std::function<bool()> onStopRequested;
};

}  // namespace lumora

#pragma GCC visibility pop
