// The package export over the sample content: what an export writes, what it says about the
// problems planted in its source, and the positions it reports.
#include <lumora/frame/library_state.h>
#include <lumora/frame/package_queries.h>
#include <lumora/lumora.h>
#include <lumora/packages/export_resources.h>
#include <lumora/packages/package_export.h>
#include <lumora/resources/index_forms.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <lumora/sample/sample_content.h>
#include "fixtures/temp_dir.h"
#include "frame/content_tree.h"

namespace lumora {
namespace {

namespace fs = std::filesystem;

using Row = std::tuple<uint32_t, int32_t, int32_t>;

// Every file below `folder` with its bytes.
std::map<std::string, std::string> Snapshot(const std::string& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    std::ifstream in(entry.path(), std::ios::binary);
    files[entry.path().string()] = std::string(std::istreambuf_iterator<char>(in), {});
  }
  return files;
}

std::string ReadBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

class PackageExport : public testing::LibraryTest {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::WriteSampleContent(source(), {1, false}, &error)) << error;
  }

  std::string source() const { return root() + "source/"; }
  std::string destination() const { return root() + "out/"; }
  std::string exportFolder() const { return destination() + "D001/"; }

  // What the export's caller provides: the export folder with its empty database, and a
  // Content.ini that describes the exported discipline.
  void PrepareDestination() const {
    fs::create_directories(exportFolder());
    if (!fs::exists(exportFolder() + "Content.mdb")) {
      std::ofstream(exportFolder() + "Content.mdb", std::ios::binary);
    }
    std::ofstream(destination() + "Content.ini", std::ios::binary)
        << "[001]\r\nDiscipline=1\r\nType=0\r\nParam=17\r\n";
  }

  bool Export(std::initializer_list<uint32_t> ids, const Progress* progress = nullptr) {
    PrepareDestination();
    DWordArray packageIds;
    for (uint32_t id : ids) packageIds.Add(id);
    ByteArray qualities;
    for (uint8_t q : {1, 2, 3}) qualities.Add(q);
    return lmExportPackage(1, packageIds, qualities, destination().c_str(), progress, &report);
  }

  // The rows of t_PackagesResources of package `ids` in the source database.
  std::vector<Row> SourceRows(std::initializer_list<uint32_t> ids) const {
    DWordArray packageIds;
    for (uint32_t id : ids) packageIds.Add(id);
    PackageResourceList rows;
    EXPECT_TRUE(GetPackageResources(1, &packageIds, &rows));
    std::vector<Row> out;
    for (uint32_t i = 0; i < rows.size(); ++i) {
      out.emplace_back(rows.KeyAt(i), rows.ObjectAt(i)->idResource, rows.ObjectAt(i)->idItem);
    }
    return out;
  }

  std::string report;
};

TEST_F(PackageExport, WritesACopyThatOpensAsAContentRootAndLeavesTheSourceAsItWas) {
  ASSERT_TRUE(lmOpen_Database(source().c_str(), 1));
  const std::vector<Row> rows = SourceRows({1, 2});
  const auto before = Snapshot(source());
  ASSERT_TRUE(Export({1, 2, 99})) << report;
  EXPECT_EQ(report, "");
  EXPECT_EQ(Snapshot(source()), before);
  lmClose();

  // Every exported resource file is its source's bytes.
  for (const auto& [package, type, item] : rows) {
    const std::string name = ExportResourcePath("", type, item);
    EXPECT_EQ(ReadBytes(exportFolder() + name), ReadBytes(source() + "D001/" + name)) << name;
  }
  ASSERT_TRUE(lmOpen_Database(destination().c_str(), 1));
  PackageList packages;
  ASSERT_TRUE(lmGetPackages(1, &packages));
  ASSERT_EQ(packages.size(), 2u);  // 99 is not a package of the source: ignored
  EXPECT_EQ(packages.KeyAt(0), 1u);
  EXPECT_EQ(packages.KeyAt(1), 2u);
  EXPECT_EQ(SourceRows({1, 2}), rows);
  TranslationList translations;
  ASSERT_TRUE(lmGetPackageTranslations(1, &translations));
  EXPECT_EQ(translations.size(), 6u);  // three languages per title

  // The index of type 40 lists exactly the exported type-40 resources, by number.
  const ContentRequest request{0, 1, 1, kPathLocal};
  auto* index = dynamic_cast<GroupsIndex*>(lmGetResourceInfos(&request)->FindType(40));
  ASSERT_NE(index, nullptr);
  DWordArray numbers;
  index->groups.GetResourceNumbers(0, numbers);
  std::multiset<uint32_t> listed(numbers.begin(), numbers.end()), exported;
  for (const auto& [package, type, item] : rows) {
    if (type == 40) exported.insert(static_cast<uint32_t>(item) & 0xFFFFF);
  }
  EXPECT_EQ(listed, exported);
  EXPECT_TRUE(fs::exists(destination() + "Classes"));
  EXPECT_TRUE(fs::exists(exportFolder() + "C0000/r0001001/t_Glo_FNs.set"));
  EXPECT_TRUE(fs::exists(exportFolder() + "C0000/r0001002/t_Gr_Points.set"));
  EXPECT_TRUE(fs::exists(exportFolder() + "Diagnosis.txt"));
}

TEST_F(PackageExport, PublishedResourcesAreReadFromTheirArhFiles) {
  ASSERT_TRUE(lmOpen_Database(source().c_str(), 1));
  ASSERT_TRUE(Export({4})) << report;
  lmClose();
  // With every published type's .ars file cut short, only its .arh twin can be read.
  const std::pair<uint32_t, uint32_t> published[] = {{40, 400001}, {5, 4}, {10, 4}, {28, 4}};
  for (const auto& [type, id] : published) {
    const std::string ars = exportFolder() + ExportResourcePath("", type, id);
    ASSERT_TRUE(fs::exists(ChangeExtension(ars, "arh"))) << ars;
    fs::resize_file(ars, 5);
  }
  ASSERT_TRUE(lmOpen(destination().c_str(), 1));
  const ContentRequest request{0, 1, 1, kPathLocal};
  for (const auto& [type, id] : published) {
    std::unique_ptr<ExerciseResource> resource = NewResource(type);
    EXPECT_TRUE(lmGetResource(&request, id, resource.get(), false)) << type;
  }
}

TEST_F(PackageExport, ProblemsInTheSourceAreReportedAndTheExportGoesOn) {
  ASSERT_TRUE(lmOpen_Database(source().c_str(), 1));
  // Resource 0x100002 of type 40 is missing: its row is written, its file is not, and nothing
  // is said. Type-1005 resource 0x100001 cannot be decoded: it is copied, and said so.
  const std::string missing = source() + "D001/" + ExportResourcePath("", 40, 0x100002);
  const std::string broken = source() + "D001/" + ExportResourcePath("", 1005, 0x100001);
  fs::remove(missing);
  fs::resize_file(broken, 10);
  EXPECT_FALSE(Export({1}));
  EXPECT_EQ(report, "Can not open file: " + broken + "\n");
  EXPECT_FALSE(fs::exists(exportFolder() + ExportResourcePath("", 40, 0x100002)));
  EXPECT_EQ(fs::file_size(exportFolder() + ExportResourcePath("", 1005, 0x100001)), 10u);
  lmClose();
  ASSERT_TRUE(lmOpen_Database(destination().c_str(), 1));
  EXPECT_EQ(SourceRows({1}).size(), 3u);
}

TEST_F(PackageExport, ReportLinesComeInRowOrderWhenTheWritesFinishLater) {
  ASSERT_TRUE(lmOpen_Database(source().c_str(), 1));
  // Every copy fails (a folder stands where each file goes) and one resource cannot be decoded:
  // each row's failed copy is said before its decoding problem and before the next row's,
  // although the copies are written on a second thread and found failed only afterwards.
  const std::string broken = source() + "D001/" + ExportResourcePath("", 1005, 0x100001);
  fs::resize_file(broken, 10);
  std::string expected;
  for (const auto& [package, type, id] : SourceRows({1})) {
    const std::string from = source() + "D001/" + ExportResourcePath("", type, id);
    if (!fs::exists(from)) continue;
    fs::create_directories(exportFolder() + ExportResourcePath("", type, id));
    expected += "Can not copy file: " + from + "\n";
    if (from == broken) expected += "Can not open file: " + from + "\n";
  }
  ASSERT_NE(expected.find("Can not open file"), std::string::npos);
  EXPECT_FALSE(Export({1}));
  EXPECT_EQ(report.substr(0, expected.size()), expected);
}

TEST_F(PackageExport, NothingIsWrittenOutsideTheDestinationWhateverItsContentIniSays) {
  ASSERT_TRUE(lmOpen_Database(source().c_str(), 1));
  const std::map<std::string, std::string> before = Snapshot(source());
  PrepareDestination();
  // The destination's section keeps its files in the source tree: the publishing pass, which
  // writes beside the resources of every section, must pass it over.
  std::ofstream(destination() + "Content.ini", std::ios::binary)
      << "[001]\r\nDiscipline=1\r\nType=0\r\nParam=17\r\nLocal=" << source() << "D001/\r\n";
  DWordArray packageIds;
  packageIds.Add(4);
  ByteArray qualities;
  qualities.Add(1);
  lmExportPackage(1, packageIds, qualities, destination().c_str(), nullptr, &report);
  EXPECT_EQ(Snapshot(source()), before);
}

TEST_F(PackageExport, AReportThatHoldsTextOnEntryMakesTheExportAnswerFalse) {
  ASSERT_TRUE(lmOpen_Database(source().c_str(), 1));
  report = "earlier\n";
  EXPECT_FALSE(Export({1}));
  EXPECT_EQ(report, "earlier\n");
  EXPECT_TRUE(fs::exists(exportFolder() + "C0000/r0001001/t_Glo_FNs.set"));
}

TEST_F(PackageExport, ListsThatCannotBeReadStopTheExportBeforeItStarts) {
  // Unknown discipline, and a discipline opened without its database.
  ASSERT_TRUE(lmOpen(source().c_str(), 1));
  DWordArray ids;
  ids.Add(1);
  EXPECT_FALSE(lmExportPackage(7, ids, {}, destination().c_str(), nullptr, &report));
  EXPECT_EQ(report,
            "Can not get Discipline n\xB0"
            "7\n");
  report.clear();
  EXPECT_FALSE(lmExportPackage(1, ids, {}, destination().c_str(), nullptr, &report));
  EXPECT_EQ(report,
            "Can not get packages for discipline n\xB0"
            "1\n");
  EXPECT_FALSE(lmExportPackage(1, ids, {}, destination().c_str(), nullptr, nullptr));
}

TEST_F(PackageExport, TheExportDatabaseMustExistAndBeEmpty) {
  ASSERT_TRUE(lmOpen_Database(source().c_str(), 1));
  PrepareDestination();
  fs::remove(exportFolder() + "Content.mdb");
  DWordArray ids;
  ids.Add(1);
  EXPECT_FALSE(lmExportPackage(1, ids, {}, destination().c_str(), nullptr, &report));
  const std::string connection =
      "DRIVER={Microsoft Access Driver (*.mdb)};DBQ=" + exportFolder() + "Content.mdb";
  EXPECT_EQ(report, "Can not open " + connection + "!\n");
  EXPECT_FALSE(fs::exists(exportFolder() + "Content.mdb"));

  // A database that already holds the tables: the first CREATE TABLE fails.
  report.clear();
  ASSERT_TRUE(Export({1}));
  report.clear();
  EXPECT_FALSE(Export({1}));
  EXPECT_EQ(report, "Can not create t_Packages table for " + connection + "!\n");
}

class CustomizedExport : public PackageExport {
 protected:
  void SetUp() override {
    PackageExport::SetUp();
    ASSERT_TRUE(lmOpen(source().c_str(), 1));
  }

  void AddPackage(uint32_t id, int32_t idString) {
    auto package = std::make_unique<PackageRecord>();
    package->idString = idString;
    packages.Add(id, std::move(package));
    packageIds.Add(id);
  }
  void AddTitle(int32_t idString, uint8_t language, std::u16string text) {
    auto t = std::make_unique<TranslationRecord>();
    t->idString = idString;
    t->idLanguage = language;
    t->text = CodePageText(1252, WideText(text));
    translations.Add(std::move(t));
  }
  void AddRow(uint32_t package, int32_t type, int32_t item) {
    auto row = std::make_unique<PackageResourceRecord>();
    row->idResource = type;
    row->idItem = item;
    rows.Add(package, std::move(row));
  }
  bool Export(uint8_t withDiagnosis, const Progress* progress = nullptr) {
    PrepareDestination();
    const ByteArray qualities;
    return lmExportCustomizedPackage(&packages, &translations, &rows, &packageIds, 1, &qualities,
                                     destination().c_str(), progress, &report, withDiagnosis);
  }

  PackageList packages;
  TranslationList translations;
  PackageResourceList rows;
  DWordArray packageIds;
};

TEST_F(CustomizedExport, TitlesAreExportedAsTheyStandAndRepeatedKeysStopTheExport) {
  AddPackage(5, 500);
  AddTitle(500, 14, u"Today's words");
  AddRow(5, 40, 0x100001);
  ASSERT_TRUE(Export(0)) << report;
  EXPECT_FALSE(fs::exists(exportFolder() + "Diagnosis.txt"));
  lmClose();
  ASSERT_TRUE(lmOpen_Database(destination().c_str(), 1));
  TranslationList read;
  ASSERT_TRUE(lmGetPackageTranslations(1, &read));
  ASSERT_EQ(read.size(), 1u);
  EXPECT_EQ(read[0].text.text.view(), u"Today's words");
  lmClose();

  // Two packages that share one title: the second insert of its translation breaks the key.
  ASSERT_TRUE(lmOpen(source().c_str(), 1));
  fs::remove_all(destination());
  AddPackage(6, 500);
  EXPECT_FALSE(Export(0));
  EXPECT_EQ(report, "Can not add Translation [500], String = Today's words\n");
}

TEST_F(CustomizedExport, ARepeatedResourceRowIsRefusedBeforeAnythingIsWritten) {
  AddPackage(5, 500);
  AddRow(5, 40, 0x100001);
  AddRow(5, 1005, 0x100001);
  AddRow(5, 40, 0x100001);
  EXPECT_FALSE(Export(1));
  EXPECT_EQ(report, "Can not add in PackageResource [40] Item [1048577]\n");
  EXPECT_EQ(fs::file_size(exportFolder() + "Content.mdb"), 0u);
  EXPECT_FALSE(fs::exists(exportFolder() + "C0001"));
}

TEST_F(CustomizedExport, ProgressGoesEveryFifthResourceThenThroughTheLexiconSteps) {
  for (int32_t i = 0; i < 12; ++i) AddRow(1, 40, 0x700000 + i);  // files that do not exist
  std::vector<uint32_t> positions;
  uint32_t range = 0;
  const Progress progress([&](uint32_t maximum) { range = maximum; },
                          [&](uint32_t position) { positions.push_back(position); });
  for (uint8_t withDiagnosis : {1, 0}) {
    positions.clear();
    fs::remove_all(destination());
    report.clear();
    EXPECT_TRUE(Export(withDiagnosis, &progress)) << report;
    EXPECT_EQ(range, 28u);
    EXPECT_EQ(positions, (std::vector<uint32_t>{0, 5, 10, 13, 17, 23, 28}));
    EXPECT_EQ(fs::exists(exportFolder() + "Diagnosis.txt"), withDiagnosis != 0);
  }
}

}  // namespace
}  // namespace lumora
