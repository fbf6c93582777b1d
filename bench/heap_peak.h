// The most heap a stretch of code holds at once, counted over every allocation made through
// operator new while a HeapPeak is alive. Each block counts as the allocator's usable size
// plus its header, which is close to what the allocator spends on it.
#pragma once

#include <cstdint>

class HeapPeak {
 public:
  HeapPeak();
  ~HeapPeak();
  HeapPeak(const HeapPeak&) = delete;
  HeapPeak& operator=(const HeapPeak&) = delete;

  // The largest count of bytes held at once since construction, over what was held then.
  int64_t peak() const;
};
