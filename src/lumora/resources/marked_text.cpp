#include <lumora/resources/marked_text.h>

namespace lumora {

void MarkedText::Serialize(Archive& ar) {
  CodePageText::Serialize(ar);
  records16.Serialize(ar);
  records24.Serialize(ar);
}

}  // namespace lumora
