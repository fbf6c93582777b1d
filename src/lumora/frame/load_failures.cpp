#include <lumora/frame/library_state.h>
#include <lumora/frame/load_failures.h>
#include <lumora/maintenance.h>

namespace lumora {
namespace {

std::optional<LoadFailure> FailureOf(const LoadResult& result) {
  if (result.ok()) return std::nullopt;
  return result.failure();
}

const LexiconLoadResult* LexiconLoadOf(uint32_t disciplineId) {
  const auto& loads = Library().lexiconLoads;
  const auto found = loads.find(disciplineId);
  return found != loads.end() ? &found->second : nullptr;
}

}  // namespace

std::optional<LoadFailure> GlossaryLoadFailure(uint32_t disciplineId) {
  const LexiconLoadResult* loaded = LexiconLoadOf(disciplineId);
  return loaded != nullptr ? FailureOf(loaded->glossary) : std::nullopt;
}

std::optional<LoadFailure> GrammarLoadFailure(uint32_t disciplineId) {
  const LexiconLoadResult* loaded = LexiconLoadOf(disciplineId);
  return loaded != nullptr ? FailureOf(loaded->grammar) : std::nullopt;
}

std::optional<LoadFailure> ClassificationLoadFailure() {
  return FailureOf(Library().classificationLoad);
}

}  // namespace lumora
