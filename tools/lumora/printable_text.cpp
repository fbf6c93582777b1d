#include "printable_text.h"

#include <iostream>

namespace lumora::cli {

void PrintJson(const nlohmann::ordered_json& value) {
  std::cout << value.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

}  // namespace lumora::cli
