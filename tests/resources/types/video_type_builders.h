// Objects of types 8, 1003, 1006, 1010 and 2000 with every stored field filled, and the link
// records and folders their media tests use.
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/resources/types/type1003.h>
#include <lumora/resources/types/type1006.h>
#include <lumora/resources/types/type1010.h>
#include <lumora/resources/types/type2000.h>
#include <lumora/resources/types/type8.h>

#include <cstdint>
#include <initializer_list>
#include <string>

namespace lumora::testing {

// A link record: kind, target type, paragraph inside the target and target number.
Record16 LinkRecord16(uint16_t kind, uint16_t type, uint16_t paragraph, uint32_t number);

ByteArray QualityFolderList(std::initializer_list<uint8_t> folders);

MarkedText PlainMarkedText(const std::u16string& text);

// Group key 4; a head link to video 12; two questions, the first linking to paragraph 2 of
// video 12 and holding texts in both lists.
Type8Resource RichType8();
// Three paragraphs (the second empty), a video, a title, a picture and a head link.
Type1003Resource RichType1003();
// A medium, two captioned media under keys 9 and 3, a title and two strings.
Type1006Resource RichType1006();
// Group key 6, four texts with distinct translations, a picture and two more texts.
Type1010Resource RichType1010();
// Attribute 2, two titles and a picture.
Type2000Resource RichType2000();

}  // namespace lumora::testing
