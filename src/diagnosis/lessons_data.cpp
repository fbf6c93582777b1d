#include <diagnosis/diagnosis.h>

#include <utility>

#include "content_scan.h"

bool CLessonsData::Load(uint8_t disciplineParam, std::string contentFolder, uint8_t user,
                        lumora::CGloV6* /*glossary*/, lumora::CGramV6* /*grammar*/) {
  Reset();
  if (!diagnosis::IsFolder(contentFolder)) return false;
  lessons_ = diagnosis::LessonNumbers(contentFolder);
  disciplineParam_ = disciplineParam;
  user_ = user;
  contentFolder_ = std::move(contentFolder);
  loaded_ = true;
  return true;
}

void CLessonsData::Reset() { *this = CLessonsData(); }
