// One table of a set file in memory: an ordered map from the record's key to the record, kept
// as a vector sorted by key. Set files store their records in key order, so reading appends at
// the end and a 100,000-word glossary costs its records and nothing per entry.
//
// A record type provides:
//   Key()                          its key: an unsigned number, or a std::tuple of them compared
//                                  part by part, the first part first;
//   Serialize(Archive&, schema)    its fields in file order (schema: the version the file was
//                                  read with, for the tables whose layout grew over time).
#pragma once

#include <lumora/platform/archive.h>

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <utility>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

// Where a read of a table's records stands, so that a file that fails can be reported by
// record: a damaged file says which record and byte it went wrong at.
struct SetRecordCursor {
  bool counted = false;      // the record count was read
  uint32_t count = 0;        // the record count the file gives
  uint32_t record = 0;       // the record being read, counting from 1; 0 before the first
  uint64_t recordStart = 0;  // the byte where that record starts
};

// Reads the u32 record count, then that many records in file order, handing each to
// `each(Record&&)`. `cursor` follows the read, so that it says where an error thrown from here
// happened. Every record takes at least one byte, so a count larger than the file can hold
// ends in an end-of-file error after at most as many records as the file has bytes.
template <typename Record, typename Each>
void ReadSetRecords(Archive& ar, uint32_t schema, SetRecordCursor& cursor, Each&& each) {
  cursor.count = ar.ReadU32();
  cursor.counted = true;
  for (uint32_t i = 0; i < cursor.count; ++i) {
    cursor.record = i + 1;
    cursor.recordStart = ar.Position();
    Record record{};
    record.Serialize(ar, schema);
    each(std::move(record));
  }
}

template <typename Record>
class SetTable {
 public:
  using Key = decltype(std::declval<const Record&>().Key());

  uint32_t size() const { return static_cast<uint32_t>(records_.size()); }
  bool empty() const { return records_.empty(); }
  const std::vector<Record>& records() const { return records_; }
  auto begin() const { return records_.begin(); }
  auto end() const { return records_.end(); }
  void Clear() { records_.clear(); }

  const Record* Find(const Key& key) const {
    // Tables keyed by a number are usually numbered from 1 without gaps (words, written forms),
    // so the record is first looked for where its number puts it: a walk over all words then
    // costs no binary search per word.
    if constexpr (std::is_integral_v<Key>) {
      if (key >= 1 && key <= records_.size() && records_[key - 1].Key() == key) {
        return &records_[key - 1];
      }
    }
    auto it = LowerBound(key);
    return it != records_.end() && it->Key() == key ? &*it : nullptr;
  }
  Record* Find(const Key& key) {
    return const_cast<Record*>(static_cast<const SetTable&>(*this).Find(key));
  }

  // The records whose keys lie in [first, last), in key order.
  std::pair<typename std::vector<Record>::const_iterator,
            typename std::vector<Record>::const_iterator>
  Range(const Key& first, const Key& last) const {
    return {LowerBound(first), LowerBound(last)};
  }

  // Adds `record` unless its key is already there: the record already held stays. False when
  // the record was dropped.
  bool Insert(Record record) {
    const Key key = record.Key();
    if (records_.empty() || records_.back().Key() < key) {
      records_.push_back(std::move(record));
      return true;
    }
    auto it = LowerBound(key);
    if (it != records_.end() && it->Key() == key) return false;
    records_.insert(it, std::move(record));
    return true;
  }

  bool Remove(const Key& key) {
    auto it = LowerBound(key);
    if (it == records_.end() || !(it->Key() == key)) return false;
    records_.erase(it);
    return true;
  }

  // Empties the table, then reads the u32 count and that many records; a record whose key came
  // before is dropped.
  void ReadRecords(Archive& ar, uint32_t schema) {
    SetRecordCursor cursor;
    ReadRecords(ar, schema, cursor);
  }
  void ReadRecords(Archive& ar, uint32_t schema, SetRecordCursor& cursor) {
    records_.clear();
    ReadSetRecords<Record>(ar, schema, cursor, [this, &cursor, &ar](Record&& record) {
      // Room for as many records as the file can still hold, at most the count it gives.
      if (cursor.record == 1)
        records_.reserve(std::min<uint64_t>(cursor.count, ar.Available() + 1));
      Insert(std::move(record));
    });
  }

  // The u32 count and every record in key order.
  void WriteRecords(Archive& ar, uint32_t schema) {
    WriteRecords(ar, schema, [](const Record&) {});
  }

  // The same, calling `before_each(record)` just before each record is written: a table with
  // an index notes there where each record starts.
  template <typename BeforeEach>
  void WriteRecords(Archive& ar, uint32_t schema, BeforeEach before_each) {
    ar.WriteU32(size());
    for (Record& record : records_) {
      before_each(static_cast<const Record&>(record));
      record.Serialize(ar, schema);
    }
  }

 private:
  typename std::vector<Record>::const_iterator LowerBound(const Key& key) const {
    return std::lower_bound(records_.begin(), records_.end(), key,
                            [](const Record& r, const Key& k) { return r.Key() < k; });
  }
  typename std::vector<Record>::iterator LowerBound(const Key& key) {
    return std::lower_bound(records_.begin(), records_.end(), key,
                            [](const Record& r, const Key& k) { return r.Key() < k; });
  }

  std::vector<Record> records_;
};

}  // namespace lumora

#pragma GCC visibility pop
