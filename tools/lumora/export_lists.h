// The lists of a customized export, read from a JSON file:
//   {"packages":         [{"id": 7, "version": 2, "date": "2002/03/14 09:05:00", "idString": 70}],
//    "translations":     [{"idString": 70, "language": 17, "dataType": 0, "text": "Le présent"}],
//    "packageResources": [{"package": 7, "type": 40, "item": 1048577}],
//    "packageIds":       [7]}
// Every member may be left out (an empty list). "date" is local time and may be left out (no
// date); "dataType" defaults to 0; a text is UTF-8 and gets the code page of its language.
#pragma once

#include <lumora/lumora.h>

#include <string>

namespace lumora::cli {

struct CustomLists {
  PackageList packages;
  TranslationList translations;
  PackageResourceList packageResources;
  DWordArray packageIds;
};

// Throws CommandFailure naming the file and what in it cannot be read.
CustomLists ReadCustomLists(const std::string& path);

}  // namespace lumora::cli
