#include <lumora/packages/partial_lexicon.h>

namespace lumora {

// A resource identifier keeps its lesson in bits 11 to 19: x there is lesson
// (x / 100) * 10000 + x % 100.
std::set<uint32_t> LessonNumbers(const std::set<uint32_t>& referencedIds) {
  std::set<uint32_t> lessons;
  for (uint32_t id : referencedIds) {
    if (id < kFirstReferencedResourceId) {
      lessons.insert(id);
      continue;
    }
    const uint32_t x = (id >> 11) & 0x1FF;
    lessons.insert((x / 100) * 10000 + x % 100);
  }
  return lessons;
}

}  // namespace lumora
