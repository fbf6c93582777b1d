#include <lumora/resources/exercise_names.h>

namespace lumora {

const char* ExerciseDisplayName(uint32_t type) {
  switch (type) {
    case 1:
      return "Word Association";
    case 2:
      return "Word Order";
    case 3:
      return "Fill-in-the-Blanks";
    case 4:
      return "Mysterious Phrase";
    case 5:
      return "Dictation";
    case 7:
      return "The Right Word";
    case 8:
      return "Video Questions";
    case 9:
      return "Picture/Word Association";
    case 10:
      return "Phonetics";
    case 12:
    case 13:
    case 15:
      return "Grammar Practice/Sentence Practice";
    case 16:
      return "Grammatical Nature";
    case 17:
      return "Cultural Card";
    case 20:
      return "PatchWork";
    case 21:
      return "Riddle";
    default:
      return nullptr;
  }
}

}  // namespace lumora
