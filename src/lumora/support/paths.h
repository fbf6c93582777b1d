// Path helpers on narrow strings. Folder values always end in the platform separator; file
// values never do. Nothing here keeps state or throws: failures are false or empty results.
#pragma once

#include <lumora/platform/load_result.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace lumora {

class Object;

inline constexpr char kPathSeparator = '/';

// The path with the platform separator appended unless it is empty or already ends in one.
std::string WithBackslash(std::string_view path);

// True for a regular file only: folders, devices and pipes do not count.
bool FileExists(const std::string& path);
bool FolderExists(const std::string& path);

// Creates every missing folder of `path`; true when all of them exist afterwards. Existing
// folders are left alone, so the call is repeatable. An absolute path starts at the file system
// root; a path starting with two separators names a server share, which is tried as the first
// folder (an existing share passes, a missing one fails); a relative path is created below the
// current folder.
bool CreateFolderPath(const std::string& path);

// Folder of the module holding `address_in_module` (null: the host program), with separator.
std::string ModuleFolder(const void* address_in_module = nullptr);

// Whether `path` is `folder` or lies below it, both taken as absolute paths with links and "."
// and ".." resolved as far as they exist. False whenever either cannot be resolved (an empty
// path, a loop of links, a folder that cannot be searched): a doubt never counts as inside.
bool PathIsWithin(const std::string& path, const std::string& folder);

std::string FolderOf(std::string_view path);
std::string FileTitle(std::string_view path);
std::string ExtensionOf(std::string_view path);
// `extension` may be given with or without its leading dot.
std::string ChangeExtension(std::string_view path, std::string_view extension);

// base + the first suffix, in list order, that names an existing file; empty if none.
std::string FirstExistingFile(const std::string& base,
                              std::initializer_list<std::string_view> suffixes);

// Stores `object` into or loads it from the file at `path` through an archive with a 4096-byte
// buffer. A store replaces the file whole (written beside it, then renamed over it), so that a
// failed store leaves the previous file in place. False on any file or archive error; a partly
// loaded object keeps what it read.
// While a KeptFiles lives on this thread, a file kept in it loads from the kept bytes.
bool LoadArchiveFile(const std::string& path, bool store, Object& object);

// Loads `object` from a file's bytes already in memory, as LoadArchiveFile loads the file.
bool LoadArchiveBytes(std::string_view bytes, Object& object);

// The loads above, answering why they failed: the file, the byte where reading stopped and the
// archive's complaint. `path` names the bytes' file in the failure.
LoadResult ReadArchiveFile(const std::string& path, Object& object);
LoadResult ReadArchiveBytes(std::string_view bytes, Object& object, const std::string& path);

// folder + prefix + n + "." + extension for the first n = 0, 1, 2, ... naming no existing file.
// Null arguments take the defaults "tmp", the temporary folder and "~AT". Nothing is created,
// so two callers can be given the same name.
std::string UniqueFileName(const char* extension = nullptr, const char* folder = nullptr,
                           const char* prefix = nullptr);

}  // namespace lumora
