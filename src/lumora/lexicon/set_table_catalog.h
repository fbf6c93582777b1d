// Every table the library keeps in a set file, by family and in the order the family's load
// reads them, each with its record layout: a file can be decoded record by record, as its owner
// would read it, without loading the owner.
#pragma once

#include <lumora/lexicon/set_file.h>
#include <lumora/platform/load_result.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumora {

struct DecodedSetRecord {
  uint64_t start = 0;  // the byte where the record starts
  std::string key;     // "7", or "(14, 10)" for a key of several parts
};

// A record whose key an earlier record of the file has: a load keeps the earlier one.
struct RepeatedSetKey {
  uint32_t record = 0;  // counting from 1
  uint32_t kept = 0;    // the earlier record with the same key
};

struct SetDecode {
  LoadResult result;                      // what the table's load makes of the file
  std::vector<DecodedSetRecord> records;  // those read whole, in file order
  std::vector<RepeatedSetKey> repeated;
};

struct KnownSetTable {
  const char* name;  // the file name without ".set"
  SetFamily family;
  bool indexed;  // read through an index file <name>.idx when there is one
  SetDecode (*decode)(const std::string& path);
};

// The tables of `family` in the order its load reads them.
std::vector<const KnownSetTable*> SetTablesOf(SetFamily family);

// The table whose set file is `name` + ".set", or null.
const KnownSetTable* FindSetTable(std::string_view name);

}  // namespace lumora
