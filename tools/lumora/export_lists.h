// The lists of a customized export, read from a JSON file:
//   {"packages":         [{"id": 7, "version": 2, "date": "2002/03/14 09:05:00", "idString": 70}],
//    "translations":     [{"idString": 70, "language": 17, "dataType": 0, "text": "Le présent"}],
//    "packageResources": [{"package": 7, "type": 40, "item": 1048577}],
//    "packageIds":       [7]}
// Every list may be left out (an empty list). "date" is local time and may be left out (no
// date); "dataType" defaults to 0; a text is UTF-8 and gets the code page of its language.
// Each number must fit the column it is written to, a type must be an exercise type, no key is
// given twice and every identifier of "packageIds" is a package of "packages": a list that the
// export would refuse halfway, or write other than it reads, is refused before anything is written.
#pragma once

#include <lumora/lumora.h>

#include <stdexcept>
#include <string>

namespace lumora::cli {

struct CustomLists {
  PackageList packages;
  TranslationList translations;
  PackageResourceList packageResources;
  DWordArray packageIds;
};

// A file that cannot be read, is not JSON or holds lists that cannot be exported; the message
// names the file and each problem, with its entry and member.
class BadCustomLists : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Throws BadCustomLists.
CustomLists ReadCustomLists(const std::string& path);

}  // namespace lumora::cli
