#include <lumora/platform/archive.h>
#include <lumora/platform/atomic_write.h>
#include <lumora/platform/file.h>
#include <lumora/platform/kept_files.h>
#include <lumora/platform/stream.h>
#include <lumora/support/paths.h>

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>
#include <algorithm>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <new>
#include <optional>

namespace lumora {
namespace {

// The part after the last separator.
std::string_view FileNamePart(std::string_view path) {
  size_t slash = path.rfind(kPathSeparator);
  return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

bool MakeFolder(const std::string& folder) {
  return FolderExists(folder) || ::mkdir(folder.c_str(), 0777) == 0;
}

std::string ExecutablePath() {
  std::error_code ec;
  auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
  return ec ? std::string() : exe.string();
}

}  // namespace

std::string WithBackslash(std::string_view path) {
  std::string result(path);
  if (!result.empty() && result.back() != kPathSeparator) result += kPathSeparator;
  return result;
}

bool FileExists(const std::string& path) {
  struct stat st;
  return ::stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

bool FolderExists(const std::string& path) {
  struct stat st;
  return ::stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool CreateFolderPath(const std::string& path) {
  std::string p = WithBackslash(path);
  if (p.empty()) return false;
  std::string built;
  size_t from = 0;
  if (p.rfind("//", 0) == 0) {
    size_t server_end = p.find(kPathSeparator, 2);
    if (server_end == std::string::npos || server_end == 2) return false;
    built = p.substr(0, server_end + 1);
    from = server_end + 1;
  } else if (p[0] == kPathSeparator) {
    built = "/";
    from = 1;
  }
  for (size_t next; (next = p.find(kPathSeparator, from)) != std::string::npos; from = next + 1) {
    if (next == from) continue;  // doubled separator
    built += p.substr(from, next - from + 1);
    if (!MakeFolder(built)) return false;
  }
  return true;
}

std::string ModuleFolder(const void* address_in_module) {
  std::string file;
  Dl_info info;
  if (address_in_module && ::dladdr(address_in_module, &info) != 0 && info.dli_fname) {
    file = info.dli_fname;
  } else {
    file = ExecutablePath();
  }
  return FolderOf(file);
}

namespace {

// The absolute form of `path` with links, "." and ".." resolved as far as they exist; nothing
// when any step fails, so that a caller never compares against a half-resolved path.
std::optional<std::filesystem::path> Resolved(const std::string& path) {
  if (path.empty()) return std::nullopt;
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(path, error);
  if (error) return std::nullopt;
  std::filesystem::path resolved = std::filesystem::weakly_canonical(absolute, error);
  if (error || resolved.empty()) return std::nullopt;
  return resolved;
}

}  // namespace

bool PathIsWithin(const std::string& path, const std::string& folder) {
  const auto inside = Resolved(folder);
  const auto candidate = Resolved(path);
  if (!inside || !candidate) return false;
  // A folder value's trailing separator leaves an empty last part, which anything matches.
  auto end = inside->end();
  if (end != inside->begin() && std::prev(end)->empty()) --end;
  return std::mismatch(inside->begin(), end, candidate->begin(), candidate->end()).first == end;
}

std::string FolderOf(std::string_view path) {
  size_t slash = path.rfind(kPathSeparator);
  return slash == std::string_view::npos ? std::string() : std::string(path.substr(0, slash + 1));
}

std::string FileTitle(std::string_view path) {
  std::string_view name = FileNamePart(path);
  size_t dot = name.rfind('.');
  return std::string(dot == std::string_view::npos ? name : name.substr(0, dot));
}

std::string ExtensionOf(std::string_view path) {
  std::string_view name = FileNamePart(path);
  size_t dot = name.rfind('.');
  return dot == std::string_view::npos ? std::string() : std::string(name.substr(dot));
}

std::string ChangeExtension(std::string_view path, std::string_view extension) {
  std::string result = FolderOf(path) + FileTitle(path);
  if (!extension.empty() && extension.front() != '.') result += '.';
  result += extension;
  return result;
}

std::string FirstExistingFile(const std::string& base,
                              std::initializer_list<std::string_view> suffixes) {
  for (std::string_view suffix : suffixes) {
    std::string candidate = base + std::string(suffix);
    if (FileExists(candidate)) return candidate;
  }
  return std::string();
}

// Loading reads the file as it stands; storing makes the whole file in memory first and
// replaces the old one atomically, so that a failed store leaves the previous file in place.
bool LoadArchiveFile(const std::string& path, bool store, Object& object) {
  if (!store) return ReadArchiveFile(path, object).ok();
  try {
    StringSink sink;
    Archive ar(sink, Archive::Mode::kStore);
    object.Serialize(ar);
    ar.Flush();
    return WriteFileAtomically(path, sink.Take()).ok();
  } catch (const std::exception&) {
    return false;
  }
}

namespace {

// Archive errors, and allocations refused for counts a corrupted file claims, stop the load
// where the archive stands.
LoadResult ReadFromStream(Stream& stream, Object& object, const std::string& path) {
  Archive ar(stream, Archive::Mode::kLoad);
  try {
    object.Serialize(ar);
  } catch (const std::bad_alloc&) {
    return LoadResult({path, ar.Position(), "a stored count is larger than memory allows"});
  } catch (const std::exception& error) {
    return LoadResult({path, ar.Position(), error.what()});
  }
  return {};
}

}  // namespace

LoadResult ReadArchiveFile(const std::string& path, Object& object) {
  using namespace open_flags;
  if (const std::string* kept = KeptFile(path)) return ReadArchiveBytes(*kept, object, path);
  File file;
  if (!file.Open(path, kRead | kShareDenyNone | kBinary)) {
    return LoadResult(
        {path, std::nullopt, std::string("cannot be opened: ") + std::strerror(file.LastError())});
  }
  FileStream stream(file);
  return ReadFromStream(stream, object, path);
}

bool LoadArchiveBytes(std::string_view bytes, Object& object) {
  return ReadArchiveBytes(bytes, object, std::string()).ok();
}

LoadResult ReadArchiveBytes(std::string_view bytes, Object& object, const std::string& path) {
  ViewStream stream(bytes);
  return ReadFromStream(stream, object, path);
}

std::string UniqueFileName(const char* extension, const char* folder, const char* prefix) {
  std::error_code ec;
  std::string dir =
      folder ? folder : WithBackslash(std::filesystem::temp_directory_path(ec).string());
  std::string ext = extension ? extension : "tmp";
  std::string pre = prefix ? prefix : "~AT";
  for (long n = 0;; ++n) {
    std::string candidate = dir + pre + std::to_string(n) + "." + ext;
    if (!FileExists(candidate)) return candidate;
  }
}

}  // namespace lumora
