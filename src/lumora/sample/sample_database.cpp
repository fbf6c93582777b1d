#include <lumora/sample/sample_database.h>

#include <lumora/packages/database_connection.h>
#include <lumora/packages/package_schema.h>
#include <lumora/platform/com_apartment.h>
#include <lumora/platform/utf8.h>
#include <lumora/resources/resource_id.h>

#include <array>
#include <string_view>

#include <lumora/sample/sample_files.h>
#include <lumora/sample/sample_layout.h>
#include <lumora/sample/sample_package.h>
#include <lumora/support/wide_format.h>

namespace lumora::sample {
namespace {

constexpr uint8_t kEnglish = 14;
constexpr uint8_t kRussian = 31;
constexpr int32_t kTitleDataType = 1;

struct SampleResource {
  uint32_t type;
  uint32_t id;
};

struct SamplePackage {
  int32_t id;
  int32_t version;
  const char16_t* date;
  int32_t idString;
  std::array<SampleResource, 8> resources;  // type 0 ends a shorter list
};

constexpr uint32_t kPackageId = MakeResourceId(kPackageCourse, kPackageNumber);

// Exercises 1 and 2 of course 1 and 3 of course 2, elements 1 and 2 of course 1 and 5 of
// course 2: all written at every scale. The last package is the course-0 one.
constexpr SamplePackage kPackages[] = {
    {1,
     3,
     u"2024/01/15 09:30:00",
     100,
     {{{kExerciseFolder, MakeResourceId(1, 1)},
       {kExerciseFolder, MakeResourceId(1, 2)},
       {kElementFolder, MakeResourceId(1, 1)}}}},
    {2,
     1,
     u"2024/02/01 14:00:00",
     101,
     {{{kExerciseFolder, MakeResourceId(2, 3)}, {kElementFolder, MakeResourceId(2, 5)}, {0, 0}}}},
    {3,
     2,
     u"2024/03/10 08:15:00",
     102,
     {{{kExerciseFolder, MakeResourceId(1, 1)},
       {kExerciseFolder, MakeResourceId(2, 3)},
       {kElementFolder, MakeResourceId(1, 2)}}}},
    // The course-0 package: its exercise with the three elements it names, a dictation,
    // phonetics, a listening exercise and questions about the lesson videos.
    {4,
     1,
     u"2024/04/02 10:00:00",
     103,
     {{{kExerciseFolder, MakeResourceId(kPackageCourse, kPackageExerciseNumber)},
       {kElementFolder, MakeResourceId(1, 1)},
       {kElementFolder, MakeResourceId(1, 2)},
       {kElementFolder, MakeResourceId(1, 3)},
       {5, kPackageId},
       {8, kPackageId},
       {10, kPackageId},
       {28, kPackageId}}}},
};

// Titles of the packages, by language.
struct Titles {
  uint8_t language;
  std::array<const char16_t*, std::size(kPackages)> texts;
};

constexpr Titles kTitles[] = {
    {kEnglish, {u"Beginner's course", u"Travel", u"Review", u"At the station"}},
    {17, {u"Cours pour débutants", u"Voyage", u"Révision", u"À la gare"}},
    {18, {u"Anfängerkurs", u"Reisen", u"Wiederholung", u"Am Bahnhof"}},
    {33, {u"Curso para principiantes", u"Viaje", u"Repaso", u"En la estación"}},
    {kRussian, {u"Курс для начинающих", u"Путешествие", u"Повторение", u"На вокзале"}},
};

// Apostrophes doubled, so that a title with one stays inside its quotes.
std::u16string Quoted(std::u16string_view text) {
  std::u16string out;
  for (char16_t c : text) {
    out += c;
    if (c == u'\'') out += c;
  }
  return out;
}

class Writer {
 public:
  explicit Writer(DatabaseConnection& db) : db_(db) {}

  template <typename... Args>
  bool Run(std::u16string_view pattern, const Args&... args) {
    WideText sql;
    sql.Assign(FormatWide(pattern, args...));
    if (db_.Execute(sql)) return true;
    failed_ = Utf16ToUtf8(sql.view()) + ": " + db_.errorText;
    return false;
  }
  const std::string& failed() const { return failed_; }

 private:
  DatabaseConnection& db_;
  std::string failed_;
};

bool WriteTitles(Writer& w, uint8_t language) {
  for (const Titles& titles : kTitles) {
    if (titles.language != kEnglish && titles.language != kRussian && titles.language != language) {
      continue;
    }
    for (size_t i = 0; i < std::size(kPackages); ++i) {
      if (!w.Run(u"INSERT INTO t_Translations VALUES (%d, %d, %d, '%s')", kPackages[i].idString,
                 titles.language, kTitleDataType, Quoted(titles.texts[i]))) {
        return false;
      }
    }
  }
  return true;
}

// Beyond the first unit, every unit of content joins the review package, so that a larger
// sample has a package whose export grows with it.
bool WriteReviewUnits(Writer& w, int scale) {
  constexpr uint32_t kReview = 3;
  for (int unit = 1; unit < scale; ++unit) {
    for (uint32_t course : kCourses) {
      for (int slot = 0; slot < kExercisesPerUnit; ++slot) {
        if (!w.Run(u"INSERT INTO t_PackagesResources VALUES (%d, %u, %u)", kReview, kExerciseFolder,
                   MakeResourceId(course, ExerciseNumber(course, unit, slot)))) {
          return false;
        }
      }
      for (int slot = 0; slot < kElementsPerUnit; ++slot) {
        if (!w.Run(u"INSERT INTO t_PackagesResources VALUES (%d, %u, %u)", kReview, kElementFolder,
                   MakeResourceId(course, ElementNumber(course, unit, slot)))) {
          return false;
        }
      }
    }
  }
  return true;
}

bool WriteTables(Writer& w, uint8_t language, int scale) {
  for (const char16_t* create : kCreatePackageTables) {
    if (!w.Run(create)) return false;
  }
  for (const SamplePackage& p : kPackages) {
    if (!w.Run(u"INSERT INTO t_Packages VALUES (%d, '%s', %d, %d)", p.id, p.date, p.version,
               p.idString)) {
      return false;
    }
    for (const SampleResource& r : p.resources) {
      if (r.type != 0 &&
          !w.Run(u"INSERT INTO t_PackagesResources VALUES (%d, %u, %u)", p.id, r.type, r.id)) {
        return false;
      }
    }
  }
  return WriteReviewUnits(w, scale) && WriteTitles(w, language);
}

}  // namespace

bool WriteSampleDatabase(const std::string& data_folder, uint8_t language, int scale,
                         std::string* error) {
  // Opening never creates a database: an empty file is one with no tables yet.
  const std::string path = data_folder + "Content.mdb";
  if (!WriteBytesFile(path, "", error)) return false;
  ComInitialize();
  DatabaseConnection db;
  bool ok = db.Open("DRIVER={Microsoft Access Driver (*.mdb)};DBQ=" + path, "", "", 0);
  if (!ok) {
    *error = "cannot open " + path + ": " + db.errorText;
  } else {
    Writer writer(db);
    // One transaction: the rows of a large sample reach the disk together.
    ok = writer.Run(u"BEGIN") && WriteTables(writer, language, scale) && writer.Run(u"COMMIT");
    if (!ok) *error = "cannot write " + path + ": " + writer.failed();
  }
  db.Close();
  ComUninitialize();
  return ok;
}

}  // namespace lumora::sample
