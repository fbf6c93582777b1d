#include <lumora/content/glossary_search_cache.h>

#include <map>
#include <mutex>

namespace lumora {
namespace {

// Readers share the library lock, so the first searches of a glossary may come at once: the
// first makes the index while the others wait for it.
std::mutex& CacheMutex() {
  static std::mutex mutex;
  return mutex;
}

std::map<const CGloV6*, std::shared_ptr<const GlossarySearchIndex>>& Indexes() {
  static std::map<const CGloV6*, std::shared_ptr<const GlossarySearchIndex>> indexes;
  return indexes;
}

}  // namespace

std::shared_ptr<const GlossarySearchIndex> SearchIndexOf(const CGloV6& glossary) {
  std::lock_guard lock(CacheMutex());
  std::shared_ptr<const GlossarySearchIndex>& index = Indexes()[&glossary];
  if (!index || !index->MadeFrom(glossary)) {
    index = std::make_shared<const GlossarySearchIndex>(glossary);
  }
  return index;
}

void ForgetSearchIndexes() {
  std::lock_guard lock(CacheMutex());
  Indexes().clear();
}

void ForgetSearchIndexOf(const CGloV6& glossary) {
  std::lock_guard lock(CacheMutex());
  Indexes().erase(&glossary);
}

}  // namespace lumora
