// Resources of the text-only types (1, 2, 3, 4, 7, 12, 13, 15, 16, 17, 18) with every list,
// text and record array filled, so that every count and length of their stored forms is on
// disk and no two fields of a resource store the same bytes.
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/marked_text.h>
#include <lumora/resources/object_list.h>
#include <lumora/resources/types/type1.h>
#include <lumora/resources/types/type12.h>
#include <lumora/resources/types/type13.h>
#include <lumora/resources/types/type15.h>
#include <lumora/resources/types/type16.h>
#include <lumora/resources/types/type17.h>
#include <lumora/resources/types/type18.h>
#include <lumora/resources/types/type2.h>
#include <lumora/resources/types/type3.h>
#include <lumora/resources/types/type4.h>
#include <lumora/resources/types/type7.h>

#include <memory>
#include <string>
#include <vector>

namespace lumora::testing {

// A text carrying one 16-byte and one 24-byte record.
MarkedText SampleText(const std::u16string& text);
void AddTexts(TextList& list, const std::vector<std::u16string>& texts);

void FillSample(Type1Resource& resource);
void FillSample(Type2Resource& resource);
void FillSample(Type3Resource& resource);
void FillSample(Type4Resource& resource);
void FillSample(Type7Resource& resource);
void FillSample(SentencePracticeResource& resource);
void FillSample(Type15Resource& resource);
void FillSample(Type16Resource& resource);
void FillSample(Type17Resource& resource);
void FillSample(Type18Resource& resource);

template <typename Resource>
std::unique_ptr<ExerciseResource> Sample() {
  auto resource = std::make_unique<Resource>();
  FillSample(*resource);
  return resource;
}

}  // namespace lumora::testing
