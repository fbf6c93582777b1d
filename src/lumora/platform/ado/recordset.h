// The rows of one SELECT, walked forward. Opening runs the statement on the active connection
// and keeps every row, so a record set stays readable while the connection runs further
// statements and holds no lock on the file; the library never updates through it, so the
// dynamic, optimistic cursor it asks for reads the same as this snapshot.
//
// Fields are found by name in any letter case. At BOF or EOF, reading a field or moving on
// raises kNoCurrentRecord; a closed record set raises kObjectClosed.
#pragma once

#include <lumora/platform/ado/variant.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::ado {

class Connection;

class Recordset {
 public:
  // The text-command form of opening: `sql` is run as it stands on `active`.
  void Open(std::u16string_view sql, Connection& active);
  void Close();
  int32_t State() const;

  bool GetBOF() const;
  bool GetEOF() const;
  void MoveNext();
  const Variant& Field(std::string_view name) const;

 private:
  void RequireOpen() const;

  bool open_ = false;
  std::vector<std::string> names_;
  std::vector<std::vector<Variant>> rows_;
  size_t position_ = 0;
};

}  // namespace lumora::ado
