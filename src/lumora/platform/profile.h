// Reading and writing ini-style profile files with the host platform's private-profile rules:
// section names and keys compare ignoring case, the first matching section and the first
// matching key in it win, and lines that are neither headers nor key lines are kept but never
// matched. The checksum list of the content tree is such a file. Every call reads the file
// afresh; nothing is cached between calls.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lumora::profile {

// Value of `key` in `section` of the file at `path`, trimmed; `fallback` when the file,
// section or key is missing. At most max_chars characters are returned.
std::string GetString(const std::string& path, const std::string& section, const std::string& key,
                      const std::string& fallback = "", size_t max_chars = 65535);

// Integer value: leading blanks skipped, optional sign, decimal digits (stops at the first
// other character); `fallback` when missing; no digits reads 0. Negative values are kept
// (the checksum list stores signed decimals), so the u32 result of -1985902209 is 0x89A1897F.
uint32_t GetInt(const std::string& path, const std::string& section, const std::string& key,
                int32_t fallback = 0);

// Sets key=value in section, creating the file and the section when missing, replacing the
// first existing occurrence of the key (case-insensitive) in place. Replaced atomically
// (WriteFileAtomically); false when it could not be, and the old file is then untouched.
bool WriteString(const std::string& path, const std::string& section, const std::string& key,
                 const std::string& value);

// The file's bytes (empty for a missing file); nothing when it exists but cannot be read.
std::optional<std::string> ReadProfileBytes(const std::string& path);

// `bytes` with every key=value of `values` set in `section`, in order, as WriteString would set
// each; nothing when a name or value could not be stored.
std::optional<std::string> WithValues(
    const std::string& bytes, const std::string& section,
    const std::vector<std::pair<std::string, std::string>>& values);

}  // namespace lumora::profile
