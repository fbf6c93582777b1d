// What a set file that does not read says about itself: the file, the byte and, in words a
// content engineer can act on, what is wrong there.
#pragma once

#include <lumora/lexicon/set_file.h>
#include <lumora/lexicon/set_table.h>
#include <lumora/platform/archive.h>
#include <lumora/platform/load_result.h>

#include <cstdint>
#include <exception>
#include <string>

namespace lumora {

// A file that could not be opened: missing, or there but unreadable.
LoadFailure UnopenedSetFile(const std::string& path);

// A version the family refuses, saying which versions it takes.
LoadFailure RefusedSetVersion(const std::string& path, SetFamily family, uint32_t version);

// `error` thrown while the archive read the header or the records that `cursor` followed: a
// file that ends inside its header or inside a record, that holds fewer records than its count
// gives, or a stored length larger than the rest of the file (the same whether the length or
// the file is damaged).
LoadFailure SetReadError(const std::string& path, const Archive& ar, const SetRecordCursor& cursor,
                         const std::exception& error);

// Whether the bytes read match the checksum CRCFile.ini records (`recorded`, 0 for none), and
// why not. The records took the first `taken` of the file's `bytes`: a reader that stops at its
// last record checksums only those, so bytes after it fail the read too.
LoadResult SetChecksumResult(const std::string& path, const std::vector<uint8_t>& bytes,
                             size_t taken, uint32_t recorded, uint32_t whole_file_checksum);

}  // namespace lumora
