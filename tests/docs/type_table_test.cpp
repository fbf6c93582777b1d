// docs/api.md shows the table of exercise types; this renders the table from the library's own
// rows and fails, printing the table as it should read, when the page says otherwise.
#include <gtest/gtest.h>
#include <lumora/describe/resource_fields.h>
#include <lumora/resources/type_catalog.h>

#include <fstream>
#include <sstream>
#include <string>

namespace lumora {
namespace {

constexpr const char* kBegin = "<!-- exercise types: begin -->\n";
constexpr const char* kEnd = "<!-- exercise types: end -->\n";

const char* FamilyOf(uint32_t type) {
  const struct {
    const char* name;
    std::span<const TypeFields> (*rows)();
  } families[] = {{"text", &TextTypeFields},
                  {"media", &MediaTypeFields},
                  {"video", &VideoTypeFields},
                  {"element", &ElementTypeFields}};
  for (const auto& family : families) {
    for (const TypeFields& row : family.rows()) {
      if (row.type == type) return family.name;
    }
  }
  return "none";
}

std::string RenderedTable() {
  std::ostringstream out;
  out << "| type | name | index form | rebuild | load rank | media R/C/V | describer |\n"
      << "| ---: | --- | --- | --- | ---: | :---: | --- |\n";
  for (const ExerciseType& row : ExerciseTypes()) {
    const std::unique_ptr<TypeIndex> index = row.newIndex();
    out << "| " << row.number << " | " << (row.name ? row.name : "") << " | `" << index->ClassName()
        << "` | " << (row.buildIndex ? "yes" : "no") << " | " << unsigned{row.loadRank} << " | "
        << ((row.media & kResolvesMedia) ? 'R' : '-') << ((row.media & kCopiesMedia) ? 'C' : '-')
        << ((row.media & kVerifiesMedia) ? 'V' : '-') << " | " << FamilyOf(row.number) << " |\n";
  }
  return out.str();
}

TEST(ApiDocs, TypeTableIsTheLibrarysRows) {
  std::ifstream page(std::string(LUMORA_SOURCE_DIR) + "/docs/api.md");
  ASSERT_TRUE(page) << "docs/api.md cannot be read";
  const std::string text((std::istreambuf_iterator<char>(page)), {});
  const size_t begin = text.find(kBegin);
  const size_t end = text.find(kEnd);
  ASSERT_NE(begin, std::string::npos) << "no table begin marker in docs/api.md";
  ASSERT_NE(end, std::string::npos) << "no table end marker in docs/api.md";
  const size_t first = begin + std::string(kBegin).size();
  EXPECT_EQ(text.substr(first, end - first), RenderedTable());
}

}  // namespace
}  // namespace lumora
