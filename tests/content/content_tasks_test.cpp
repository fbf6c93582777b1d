// The face's long work over the sample: check, export and sample writing, their refusals of bad
// requests, and a progress function that stops them; and the ids behind an index's numbers.
#include <lumora/content.h>
#include <lumora/maintenance.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "fixtures/sample_suite.h"
#include "fixtures/temp_dir.h"

namespace lumora::testing {
namespace {

class ContentTasksTest : public SampleContentSuite {
 protected:
  // The sample opened with its package databases, which an export reads.
  std::unique_ptr<ContentRoot> OpenWithDatabases() {
    Status status;
    OpenOptions options;
    options.databases = true;
    auto content = ContentRoot::Open(root(), options, &status);
    EXPECT_TRUE(content) << status.ToString();
    return content;
  }
};

TEST_F(ContentTasksTest, IndexNumbersGetTheCourseOfTheFolderThatHoldsTheirFile) {
  Status status;
  auto content = ContentRoot::Open(root(), {}, &status);
  ASSERT_TRUE(content) << status.ToString();
  const Answer index = content->Index(1, 40);
  ASSERT_TRUE(index.ok());
  std::vector<uint32_t> numbers;
  for (const auto& group : index.document["types"][0]["groups"]) {
    for (uint32_t n : group["resources"]) numbers.push_back(n);
  }
  const std::vector<uint32_t> ids = content->ResourceIds(1, 40);
  ASSERT_EQ(ids.size(), numbers.size());
  for (size_t i = 0; i < ids.size(); ++i) {
    EXPECT_EQ(ids[i] & 0xFFFFF, numbers[i]);
    char name[64];
    std::snprintf(name, sizeof name, "D001/C%04u/r0000040/r%07u.ars", ids[i] >> 20,
                  ids[i] & 0xFFFFF);
    EXPECT_TRUE(std::filesystem::exists(root() + name)) << name;
    EXPECT_TRUE(content->Resource(1, 40, ids[i]).ok());
  }
}

TEST_F(ContentTasksTest, CheckRefusesBadRequestsAndStopsWhenAsked) {
  CheckRequest unknown;
  unknown.checks = {"index", "nonsense"};
  EXPECT_EQ(CheckContent(root(), unknown).status.code, StatusCode::kInvalidArgument);
  CheckRequest quality;
  quality.quality = {1, 4};
  EXPECT_EQ(CheckContent(root(), quality).status.code, StatusCode::kInvalidArgument);
  EXPECT_EQ(CheckContent(root() + "nowhere/", {}).status.code, StatusCode::kNotFound);

  int calls = 0;
  const Answer stopped = CheckContent(root(), {}, [&](uint64_t, uint64_t) {
    ++calls;
    return false;
  });
  EXPECT_EQ(stopped.status.code, StatusCode::kStopped);
  EXPECT_EQ(calls, 1);
  uint64_t checked = 0;
  for (const auto& check : stopped.document["checks"]) checked += check["checked"].get<uint64_t>();
  const Answer whole = CheckContent(root(), {});
  ASSERT_TRUE(whole.ok());
  uint64_t all = 0;
  for (const auto& check : whole.document["checks"]) all += check["checked"].get<uint64_t>();
  EXPECT_LT(checked, all);
}

TEST_F(ContentTasksTest, ExportRefusesBadRequestsAndStopsWhenAsked) {
  auto content = OpenWithDatabases();
  ASSERT_TRUE(content);
  const TempDir destination;
  ExportRequest request;
  for (const auto& package : content->Packages(1).document)
    request.packages.push_back(package["id"]);
  request.destination = destination.path() + "out";
  ExportRequest bad = request;
  bad.quality = {0};
  EXPECT_EQ(content->Export(1, bad).status.code, StatusCode::kInvalidArgument);
  bad = request;
  bad.packages.clear();
  EXPECT_EQ(content->Export(1, bad).status.code, StatusCode::kInvalidArgument);
  EXPECT_EQ(content->Export(9, request).status.code, StatusCode::kNotFound);

  const Answer stopped = content->Export(1, request, [](uint64_t, uint64_t) { return false; });
  EXPECT_EQ(stopped.status.code, StatusCode::kStopped);
  EXPECT_EQ(stopped.document["ok"], false);
  EXPECT_EQ(stopped.document["report"].back(), "The export was stopped before its end.");
}

// What an export wrote is checked unless the host says not to; the sample exports undamaged.
TEST_F(ContentTasksTest, AnExportIsCheckedUnlessAskedNotTo) {
  auto content = OpenWithDatabases();
  ASSERT_TRUE(content);
  const TempDir destination;
  ExportRequest request;
  request.packages = {content->Packages(1).document.front()["id"].get<uint32_t>()};
  request.destination = destination.path() + "checked";
  const Answer checked = content->Export(1, request);
  ASSERT_TRUE(checked.ok()) << checked.status.ToString();
  EXPECT_EQ(checked.document["ok"], true) << checked.document.dump();
  std::vector<std::string> names;
  for (const auto& check : checked.document["checks"]) names.push_back(check["name"]);
  EXPECT_EQ(names, ExportCheckNames());

  request.destination = destination.path() + "unchecked";
  request.check = false;
  const Answer unchecked = content->Export(1, request);
  ASSERT_TRUE(unchecked.ok()) << unchecked.status.ToString();
  EXPECT_FALSE(unchecked.document.contains("checks"));
}

TEST_F(ContentTasksTest, SampleScaleIsChecked) {
  const TempDir folder;
  EXPECT_EQ(WriteSample(folder.path(), 0).code, StatusCode::kInvalidArgument);
  EXPECT_EQ(WriteSample(folder.path(), 100001).code, StatusCode::kInvalidArgument);
}

}  // namespace
}  // namespace lumora::testing
