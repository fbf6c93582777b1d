#include <lumora/sample/sample_grammar.h>

#include <lumora/lexicon/grammar.h>
#include <lumora/resources/resource_id.h>
#include <lumora/support/paths.h>

#include <array>
#include <cstdio>

#include <lumora/sample/sample_dates.h>
#include <lumora/sample/sample_files.h>
#include <lumora/sample/sample_package.h>
#include <lumora/sample/swf_media.h>

namespace lumora::sample {
namespace {

constexpr uint8_t kEnglish = 14;
constexpr uint32_t kGrammarFolder = 1002;

// The course-language texts of one discipline: a title per point, a keyword per subpoint and
// two bubble sentences.
struct CourseTexts {
  uint8_t language;
  std::array<const char16_t*, 3> titles;
  std::array<const char16_t*, 5> keywords;
  std::array<const char16_t*, 2> bubbles;
};

constexpr CourseTexts kCourseTexts[] = {
    {17,
     {u"Les articles", u"Le présent", u"Les questions"},
     {u"le", u"un", u"parler", u"aller", u"est-ce que"},
     {u"Le chat dort.", u"Je parle français."}},
    {18,
     {u"Die Artikel", u"Das Präsens", u"Die Fragen"},
     {u"der", u"ein", u"spielen", u"sein", u"ob"},
     {u"Der Hund schläft.", u"Ich spiele Tennis."}},
    {15,
     {u"Articles", u"The present", u"Questions"},
     {u"the", u"a", u"to talk", u"to go", u"do"},
     {u"The cat is sleeping.", u"I speak English."}},
};

constexpr const char16_t* kEnglishTitles[] = {u"Articles", u"Present tense", u"Questions"};

// Subpoints by point: level, category code and English title.
struct SampleSubpoint {
  uint32_t id;
  uint8_t level;
  uint32_t categoryCode;
  const char16_t* title;
};
constexpr SampleSubpoint kSubpoints[] = {
    {1001, 1, 1010000, u"Definite article"}, {1002, 1, 1020000, u"Indefinite article"},
    {2001, 2, 2010000, u"Regular verbs"},    {2002, 3, 2020000, u"Irregular verbs"},
    {3001, 2, 1030000, u"Yes/no questions"},
};

const CourseTexts& TextsFor(uint8_t language) {
  for (const CourseTexts& texts : kCourseTexts) {
    if (texts.language == language) return texts;
  }
  return kCourseTexts[0];
}

void AddPoints(CGramV6& g, const CourseTexts& texts) {
  for (uint16_t p = 1; p <= 3; ++p) {
    g.points.Insert({p, static_cast<uint8_t>(p), p == 1, kEnglishTitles[p - 1]});
    g.titles.Insert({p, kEnglish, kEnglishTitles[p - 1]});
    g.titles.Insert({p, texts.language, texts.titles[p - 1]});
  }
  g.pictures.Insert({1, 1, 11});
  g.pictures.Insert({1, 2, 12});
  g.pictures.Insert({2, 1, 21});
}

void AddSubpoints(CGramV6& g, const CourseTexts& texts) {
  for (size_t i = 0; i < std::size(kSubpoints); ++i) {
    const SampleSubpoint& s = kSubpoints[i];
    g.subpoints.Insert({s.id, s.level, s.categoryCode});
    g.subpointTitles.Insert({s.id, kEnglish, s.title});
    g.keywords.Insert({s.id * 100 + 1, texts.keywords[i]});
    g.parts.Insert({s.id, 1, 0, 1, s.id * 10, 0, 0, 0});
  }
  // The first lesson teaches the articles and the verbs, the second the questions.
  for (uint32_t subpoint : {1001u, 1002u, 2001u, 2002u}) {
    g.links.Insert({kGrammarLessons[0], subpoint, subpoint * 100, 1, 0});
  }
  g.links.Insert({kGrammarLessons[1], 3001u, 3001u * 100, 1, 0});
}

void AddBubbles(CGramV6& g, const CourseTexts& texts) {
  g.bubbles.Insert({texts.language, 1, 1, 1, texts.bubbles[0]});
  g.bubbles.Insert({texts.language, 2, 1, 1, texts.bubbles[1]});
  g.bubbles.Insert({kEnglish, 2, 1, 1, u"Regular verbs follow the pattern."});
}

// The media the host shows with a point: the pictures of every point that has some, one file
// per picture in each quality folder, in Q<q>/<point, three digits>.
bool WritePictureFiles(const CGramV6& g, std::string* error) {
  for (const GrPicturesRecord& picture : g.pictures) {
    for (int quality : {1, 2, 3}) {
      char name[32];
      std::snprintf(name, sizeof name, "Q%d%c%03d%c%02d.swf", quality, kPathSeparator,
                    static_cast<int>(picture.pointId), kPathSeparator,
                    static_cast<int>(picture.attrA));
      const std::string bytes = SwfPicture(picture.pointId * 100 + picture.attrA);
      if (!WriteBytesFile(g.folder + name, bytes, error)) return false;
    }
  }
  return true;
}

// The grammar resource files the parts name by attrD. The library never decodes them, it only
// copies them into exports, so a few placeholder bytes stand in for their content.
bool WriteResourceFiles(const CGramV6& g, std::string* error) {
  for (const GrPartsRecord& part : g.parts) {
    if (part.attrD == 0) continue;
    const std::string path = g.folder + NumberedName('r', part.attrD) + ".ars";
    if (!WriteBytesFile(path, "sample grammar resource " + std::to_string(part.attrD) + "\n",
                        error)) {
      return false;
    }
  }
  return true;
}

}  // namespace

bool WriteSampleGrammar(const std::string& root, uint8_t language, std::string* error) {
  CGramV6 grammar;
  grammar.setFolder(root + CourseFolderName(0) + kPathSeparator +
                    NumberedName('r', kGrammarFolder));
  const CourseTexts& texts = TextsFor(language);
  AddPoints(grammar, texts);
  AddSubpoints(grammar, texts);
  AddBubbles(grammar, texts);
  if (!CreateFolderPath(grammar.folder) || !grammar.save()) {
    *error = "cannot write the grammar in " + grammar.folder;
    return false;
  }
  return WritePictureFiles(grammar, error) && WriteResourceFiles(grammar, error) &&
         PinListedDates(grammar.folder, error);
}

}  // namespace lumora::sample
