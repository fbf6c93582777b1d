#include <diagnosis/diagnosis.h>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <sstream>

namespace {

constexpr const char* kPackageFileName = "Diagnosis.txt";
constexpr const char* kStagingSuffix = ".new";
constexpr const char* kLineEnd = "\r\n";

bool WriteAll(int fd, const std::string& bytes) {
  size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t wrote = ::write(fd, bytes.data() + done, bytes.size() - done);
    if (wrote < 0 && errno == EINTR) continue;
    if (wrote <= 0) return false;
    done += static_cast<size_t>(wrote);
  }
  return true;
}

bool SyncFolder(const std::string& folder) {
  const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return false;
  const bool synced = ::fsync(fd) == 0;
  ::close(fd);
  return synced;
}

// Replaces the file at folder + name whole: a reader, or whoever looks after a crash, finds the
// old file or the new one, never the new one cut short.
bool ReplaceFile(const std::string& folder, const std::string& name, const std::string& bytes) {
  const std::string path = folder + name;
  const std::string staging = path + kStagingSuffix;
  const int fd = ::open(staging.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (fd < 0) return false;
  const bool written = WriteAll(fd, bytes) && ::fsync(fd) == 0;
  const bool closed = ::close(fd) == 0;
  if (!written || !closed || std::rename(staging.c_str(), path.c_str()) != 0) {
    std::remove(staging.c_str());
    return false;
  }
  return SyncFolder(folder);
}

}  // namespace

bool CLessonsData::GeneratePackage(uint8_t disciplineParam, lumora::CGloV6* /*glossary*/,
                                   lumora::CGramV6* /*grammar*/, std::string sourceFolder,
                                   std::vector<uint32_t> lessonIds, std::string exportFolder,
                                   std::string* report) {
  std::ostringstream text;
  text << "LumoraDiagnosis 1" << kLineEnd << "discipline=" << unsigned{disciplineParam} << kLineEnd
       << "source=" << sourceFolder << kLineEnd << "lessons=" << lessonIds.size() << kLineEnd;
  for (uint32_t lesson : lessonIds) text << lesson << kLineEnd;
  if (ReplaceFile(exportFolder, kPackageFileName, text.str())) return true;
  if (report)
    *report += "Can not write the diagnosis package: " + exportFolder + kPackageFileName + "\n";
  return false;
}
