#include <lumora/check/content_check.h>

#include <cctype>
#include <map>
#include <tuple>

namespace lumora {
namespace {

// The message with each run of digits made one '#': what findings of one problem share.
std::string ProblemOf(const std::string& message) {
  std::string problem;
  for (size_t i = 0; i < message.size(); ++i) {
    if (!std::isdigit(static_cast<unsigned char>(message[i]))) {
      problem += message[i];
    } else if (i == 0 || !std::isdigit(static_cast<unsigned char>(message[i - 1]))) {
      problem += '#';
    }
  }
  return problem;
}

}  // namespace

std::vector<ShownFinding> FindingsToShow(const std::vector<Finding>& findings, size_t shownAlike) {
  using Key = std::tuple<Severity, std::string, std::string>;
  struct Group {
    uint64_t total = 0;
    uint64_t shown = 0;
  };
  std::map<Key, Group> groups;
  std::vector<Key> keys;
  keys.reserve(findings.size());
  for (const Finding& f : findings) {
    keys.emplace_back(f.severity, f.file, ProblemOf(f.message));
    ++groups[keys.back()].total;
  }
  std::vector<ShownFinding> shown;
  for (size_t i = 0; i < findings.size(); ++i) {
    Group& group = groups[keys[i]];
    if (group.shown == shownAlike) continue;
    ++group.shown;
    const bool last_shown = group.shown == shownAlike && group.total > shownAlike;
    shown.push_back({&findings[i], last_shown ? group.total - shownAlike : 0});
  }
  return shown;
}

}  // namespace lumora
