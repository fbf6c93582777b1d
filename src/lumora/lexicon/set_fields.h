// The value encodings inside set-file records, over the library's little-endian archive.
// Fixed-width numbers use Archive::Io directly; byte lists are ByteArray's stored form (element
// size 1 as the marker, count, growth step, bytes).
#pragma once

#include <lumora/lexicon/record_text.h>
#include <lumora/lexicon/small_list.h>
#include <lumora/platform/archive.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

// u32 count of UTF-16 code units, then the units little-endian; no terminator.
void IoText(Archive& ar, RecordText& text);

// u32 count, then the values.
void IoU32List(Archive& ar, U32List& values);

// Element size 1 as the marker, u32 count, u32 growth step, then the bytes. A stored growth step
// of 0xFFFFFFFF leaves the list's own.
void IoByteList(Archive& ar, ByteList& bytes);

// A byte holding 0 or 1; any other byte read counts as 1.
void IoFlag(Archive& ar, uint8_t& flag);

}  // namespace lumora

#pragma GCC visibility pop
