#include "heap_peak.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

bool counting = false;
int64_t held = 0;
int64_t most = 0;

int64_t BlockBytes(void* block) {
  return static_cast<int64_t>(malloc_usable_size(block) + sizeof(size_t));
}

}  // namespace

HeapPeak::HeapPeak() {
  held = 0;
  most = 0;
  counting = true;
}

HeapPeak::~HeapPeak() { counting = false; }

int64_t HeapPeak::peak() const { return most; }

void* operator new(size_t size) {
  void* block = std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) throw std::bad_alloc();
  if (counting) {
    held += BlockBytes(block);
    most = std::max(most, held);
  }
  return block;
}

void operator delete(void* block) noexcept {
  if (counting && block != nullptr) held -= BlockBytes(block);
  std::free(block);
}

void operator delete(void* block, size_t) noexcept { operator delete(block); }
