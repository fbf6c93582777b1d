#include <diagnosis/diagnosis.h>

#include <fstream>

namespace {

constexpr const char* kPackageFileName = "Diagnosis.txt";
constexpr const char* kLineEnd = "\r\n";

}  // namespace

bool CLessonsData::GeneratePackage(uint8_t disciplineParam, lumora::CGloV6* /*glossary*/,
                                   lumora::CGramV6* /*grammar*/, std::string sourceFolder,
                                   std::vector<uint32_t> lessonIds, std::string exportFolder,
                                   std::string* report) {
  const std::string path = exportFolder + kPackageFileName;
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << "LumoraDiagnosis 1" << kLineEnd << "discipline=" << unsigned{disciplineParam} << kLineEnd
      << "source=" << sourceFolder << kLineEnd << "lessons=" << lessonIds.size() << kLineEnd;
  for (uint32_t lesson : lessonIds) out << lesson << kLineEnd;
  out.close();
  if (out) return true;
  if (report) *report += "Can not write the diagnosis package: " + path + "\n";
  return false;
}
