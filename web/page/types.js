// What the page says about exercise types: their names, and how many resources an index lists.

const NAMES = {
  1: "Word Association",
  2: "Word Order",
  3: "Fill-in-the-Blanks",
  4: "Mysterious Phrase",
  5: "Dictation",
  7: "The Right Word",
  8: "Video Questions",
  9: "Picture/Word Association",
  10: "Phonetics",
  12: "Grammar Practice/Sentence Practice",
  13: "Grammar Practice/Sentence Practice",
  15: "Grammar Practice/Sentence Practice",
  16: "Grammatical Nature",
  17: "Cultural Card",
  20: "PatchWork",
  21: "Riddle",
  1003: "Videos",
  1005: "Elements",
  2000: "Descriptions",
};

export function typeName(type) {
  return NAMES[type] ? `${NAMES[type]} (type ${type})` : `Type ${type}`;
}
