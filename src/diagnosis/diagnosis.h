// Learner-diagnosis data of a course: what a user has done in the lessons and what can be
// tested. The course library creates one lessons object and one testable object per open
// discipline, loads and resets them on the host's request and hands their addresses to the
// host, which then reads them here. This library stands on its own: it takes the course's
// glossary and grammar by address only and reads the content folder itself.
//
// What a load finds below a content folder (every name compared as written):
//   - lessons: the course folders "Cnnnn" directly below it, n from 1 on (course 0 holds the
//     glossary and grammar, not a lesson); the lesson number is n;
//   - testable resources: the exercise files "Cnnnn/rTTTTTTT/rNNNNNNN.ars" of those courses,
//     as resource identifiers (n << 20) | N, ascending and without repeats.
//
// The package file that GeneratePackage writes into an export folder, "Diagnosis.txt", is text
// with CR LF line ends:
//   line 1: "LumoraDiagnosis 1" (name and version of the format)
//   line 2: "discipline=" + the discipline parameter, decimal
//   line 3: "source=" + the source folder as given
//   line 4: "lessons=" + the number of lesson numbers that follow
//   then one line per lesson number, decimal, in the order given.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lumora {
class CGloV6;
class CGramV6;
}  // namespace lumora

#define DIAGNOSIS_EXPORT __attribute__((visibility("default")))

class DIAGNOSIS_EXPORT CLessonsData {
 public:
  virtual ~CLessonsData() = default;

  // Reads the lessons below `contentFolder` for `user`. False, leaving the object empty, when
  // the folder does not exist. The glossary and grammar are accepted for the caller's sake and
  // not read.
  bool Load(uint8_t disciplineParam, std::string contentFolder, uint8_t user,
            lumora::CGloV6* glossary, lumora::CGramV6* grammar);
  // Empties the object, which can then be loaded again.
  void Reset();

  // Writes the package file (above) into `exportFolder`. False, with one line appended to
  // `report` (when given), when the file cannot be written.
  static bool GeneratePackage(uint8_t disciplineParam, lumora::CGloV6* glossary,
                              lumora::CGramV6* grammar, std::string sourceFolder,
                              std::vector<uint32_t> lessonIds, std::string exportFolder,
                              std::string* report);

  bool loaded() const { return loaded_; }
  uint8_t disciplineParam() const { return disciplineParam_; }
  uint8_t user() const { return user_; }
  const std::string& contentFolder() const { return contentFolder_; }
  const std::vector<uint32_t>& lessons() const { return lessons_; }

 private:
  bool loaded_ = false;
  uint8_t disciplineParam_ = 0;
  uint8_t user_ = 0;
  std::string contentFolder_;
  std::vector<uint32_t> lessons_;
};

class DIAGNOSIS_EXPORT CTestableData {
 public:
  virtual ~CTestableData() = default;

  // Reads the testable resources below `contentFolder`; false, leaving the object empty, when
  // the folder does not exist.
  bool Load(std::string contentFolder, lumora::CGloV6* glossary, lumora::CGramV6* grammar);
  void Reset();

  bool loaded() const { return loaded_; }
  const std::string& contentFolder() const { return contentFolder_; }
  const std::vector<uint32_t>& resources() const { return resources_; }

 private:
  bool loaded_ = false;
  std::string contentFolder_;
  std::vector<uint32_t> resources_;
};

class DIAGNOSIS_EXPORT CDiagnosisInt {
 public:
  static CLessonsData* NewLessonsData();
  static CTestableData* NewTestableData();
  // Destroy the object; the result (always null) is what the caller keeps in its place.
  static CLessonsData* DeleteLessonsData(CLessonsData* lessons);
  static CTestableData* DeleteTestableData(CTestableData* testable);

  // Whether `lessons` holds a successful load of `contentFolder` for `user`. The two trailing
  // values are reserved (the course library passes 0) and do not change the answer.
  static bool IsValidForUser(std::string contentFolder, const CLessonsData* lessons, uint8_t user,
                             uint8_t reserved1, uint8_t reserved2);
};
