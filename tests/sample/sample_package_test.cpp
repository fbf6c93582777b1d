// The sample's course-0 package (package 4 of every opened discipline): its rows name
// resources that decode, and an export of it carries every layer an export writes.
#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/grammar.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "fixtures/run_cli.h"
#include "fixtures/sample_suite.h"
#include "fixtures/temp_dir.h"

namespace lumora::testing {
namespace {

using nlohmann::json;

constexpr uint32_t kOpenDisciplines[] = {1, 2, 3};
constexpr uint32_t kPublishedTypes[] = {40, 5, 10, 28};

std::string Folder(uint32_t discipline) { return "D00" + std::to_string(discipline) + "/"; }

class SamplePackage : public SampleContentSuite {
 protected:
  static json Rows(uint32_t discipline) {
    const CliResult result = RunCli("packages " + root() + " -d " + std::to_string(discipline) +
                                    " --resources 4 --json");
    EXPECT_EQ(result.exit_code, 0) << result.err;
    return json::parse(result.out);
  }
};

TEST_F(SamplePackage, RowsNameResourcesOfSeveralTypesThatDecode) {
  for (uint32_t d : kOpenDisciplines) {
    SCOPED_TRACE(d);
    std::multiset<uint32_t> types;
    std::set<uint32_t> course0;
    for (const json& row : Rows(d)) {
      const uint32_t type = row["type"], id = row["item"];
      types.insert(type);
      if (CourseOf(id) == 0) course0.insert(type);
      std::unique_ptr<ExerciseResource> resource = NewResource(type);
      ASSERT_NE(resource, nullptr) << type;
      EXPECT_TRUE(LoadArchiveFile(ResourceFilePath(root() + Folder(d), type, id), false, *resource))
          << "type " << type << ", id " << id;
    }
    EXPECT_EQ(types, (std::multiset<uint32_t>{5, 8, 10, 28, 40, 1005, 1005, 1005}));
    EXPECT_EQ(course0, (std::set<uint32_t>{5, 8, 10, 28, 40}));
  }
}

// Published copies beside the course-0 resources, their media, the videos the questions name,
// and a glossary and a grammar cut down to the lessons those videos stand for: lesson 10001 of
// the glossary (not 10002) and lesson 3 of the grammar, plus point 2 from the description of
// the lesson video (point 1 stays out).
TEST_F(SamplePackage, AnExportCarriesEveryLayer) {
  for (uint32_t d : kOpenDisciplines) {
    SCOPED_TRACE(d);
    TempDir to;
    const CliResult result = RunCli("export " + root() + " -d " + std::to_string(d) +
                                    " --packages 4 --to " + to.path() + " --json");
    ASSERT_EQ(result.exit_code, 0) << result.out << result.err;
    const json report = json::parse(result.out);
    EXPECT_EQ(report["ok"], true);
    EXPECT_EQ(report["report"], json::array());
    EXPECT_EQ(report["resources"], 8);
    // The export checks clean: what it leaves out by its own rule (elements the package does
    // not list, media it copies for no resource of some types) is said in warnings.
    for (const json& check : report["checks"]) EXPECT_EQ(check["errors"], 0) << check;

    const std::string exported = to.path() + Folder(d);
    for (const json& row : Rows(d)) {
      const uint32_t type = row["type"], id = row["item"];
      const std::string ars = ResourceFilePath(exported, type, id);
      EXPECT_TRUE(FileExists(ars)) << ars;
      const bool published =
          CourseOf(id) == 0 && std::find(std::begin(kPublishedTypes), std::end(kPublishedTypes),
                                         type) != std::end(kPublishedTypes);
      EXPECT_EQ(FileExists(ChangeExtension(ars, "arh")), published) << ars;
    }
    for (const char* medium : {"C0000/r0000005/Q1/s0000040.swf", "C0000/r0000010/Q3/v0000040.swf",
                               "C0000/r0000040/Q3/v0000010.mpg", "C0000/r0001003/Q3/v0206849.mpg",
                               "C0000/r0001003/r0000003.ars", "C0000/r0001001/Q3/000/01.swf",
                               "C0000/r0001002/Q2/002/01.swf", "C0000/r0001002/r0030010.ars"}) {
      EXPECT_TRUE(FileExists(exported + medium)) << medium;
    }

    CGramV6 grammar;
    ASSERT_TRUE(grammar.load(exported + "C0000/r0001002"));
    std::set<uint16_t> points;
    for (const GrPointsRecord& p : grammar.points) points.insert(p.pointId);
    EXPECT_EQ(points, (std::set<uint16_t>{2, 3}));
    ASSERT_FALSE(grammar.links.empty());
    for (const GrLinksRecord& link : grammar.links) EXPECT_EQ(link.fromId, 3u);

    CGloV6 whole, partial;
    ASSERT_TRUE(whole.load(root() + Folder(d) + "C0000/r0001001"));
    ASSERT_TRUE(partial.load(exported + "C0000/r0001001"));
    ASSERT_FALSE(partial.links.empty());
    for (const GloLinkRecord& link : partial.links) EXPECT_EQ(link.fromId, 10001u);
    EXPECT_EQ(partial.fns.size(), partial.links.size());
    EXPECT_LT(partial.fns.size(), whole.fns.size());

    EXPECT_EQ(RunCli("open " + to.path()).exit_code, 0);
    const CliResult packages =
        RunCli("packages " + to.path() + " -d " + std::to_string(d) + " --json");
    ASSERT_EQ(packages.exit_code, 0) << packages.err;
    EXPECT_EQ(json::parse(packages.out)[0]["id"], 4);
  }
}

}  // namespace
}  // namespace lumora::testing
