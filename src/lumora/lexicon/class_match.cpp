#include <lumora/lexicon/class_match.h>

namespace lumora {

bool classMatches(uint32_t candidate, uint32_t query) {
  if (query > candidate) return false;
  if (query % 10000 == 0) return candidate / 10000 == query / 10000;
  if (query % 100 != 0) return candidate == query;
  return candidate / 100 == query / 100;
}

}  // namespace lumora
