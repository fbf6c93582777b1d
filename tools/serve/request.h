// One HTTP request as the handlers see it: its path already split and percent-decoded, its
// query decoded, its header names in lower case.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace lumora::serve {

struct Request {
  std::string method;
  // The path as it was sent, for the log.
  std::string raw_path;
  // The decoded segments of the path: "/a/b%20c" is {"a", "b c"}; "/" is none.
  std::vector<std::string> segments;
  // Query parameters, decoded; the first of repeated names is kept.
  std::map<std::string, std::string> query;
  std::map<std::string, std::string> headers;

  // The header `lower_case_name`, or empty.
  const std::string& Header(const std::string& lower_case_name) const;
  // The query parameter `name`, or null when absent.
  const std::string* Query(const std::string& name) const;
};

}  // namespace lumora::serve
