#include <diagnosis/diagnosis.h>

#include <utility>

#include "content_scan.h"

bool CTestableData::Load(std::string contentFolder, lumora::CGloV6* /*glossary*/,
                         lumora::CGramV6* /*grammar*/) {
  Reset();
  if (!diagnosis::IsFolder(contentFolder)) return false;
  resources_ = diagnosis::ExerciseIdentifiers(contentFolder);
  contentFolder_ = std::move(contentFolder);
  loaded_ = true;
  return true;
}

void CTestableData::Reset() { *this = CTestableData(); }
