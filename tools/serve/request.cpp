#include "serve/request.h"

namespace lumora::serve {

const std::string& Request::Header(const std::string& lower_case_name) const {
  static const std::string kNone;
  const auto found = headers.find(lower_case_name);
  return found == headers.end() ? kNone : found->second;
}

const std::string* Request::Query(const std::string& name) const {
  const auto found = query.find(name);
  return found == query.end() ? nullptr : &found->second;
}

}  // namespace lumora::serve
