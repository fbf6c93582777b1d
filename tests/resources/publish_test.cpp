#include <lumora/frame/content_config.h>
#include <lumora/lumora.h>
#include <lumora/resources/export_indexes.h>
#include <lumora/resources/publish.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/type10.h>
#include <lumora/resources/types/type28.h>
#include <lumora/resources/types/type5.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <initializer_list>
#include <string>
#include <vector>

#include "frame/content_tree.h"
#include "resources/resource_builders.h"

namespace lumora {
namespace {

constexpr uint32_t kStoredElement = 1;  // type-1005 resource the items refer to

// A type-40 resource that notes the requests it is resolved for and the media paths it holds
// when it is written.
struct Observations {
  std::vector<ContentRequest> requests;
  std::vector<std::string> storedPaths;
};

class ObservedType40 : public Type40Resource {
 public:
  explicit ObservedType40(Observations& seen) : seen_(seen) {}

  void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                    const std::string& chosen_root) override {
    seen_.requests.push_back(request);
    Type40Resource::ResolveMedia(request, local_root, chosen_root);
  }
  void Serialize(Archive& ar) override {
    if (ar.IsStoring()) {
      const ExerciseItem& item = items[0];
      seen_.storedPaths = {item.media[0].path, item.firstParts[0].elements[0].media.path};
    }
    Type40Resource::Serialize(ar);
  }

 private:
  Observations& seen_;
};

class PublishTest : public testing::LibraryTest {
 protected:
  // A type-40 resource of course 0 below local_root whose one item has a picture (found in
  // quality folders 1 and 3) and a part referring to a stored element with its own picture.
  void WriteType40(const std::string& local_root, uint32_t number) const {
    for (const char* q : {"Q1", "Q3"}) {
      WriteFile(local_root + "C0000/r0000040/" + q + "/p" + Seven(number) + ".swf");
      WriteFile(local_root + "C0000/r0001005/" + q + "/p0000009.swf");
    }
    auto stored = testing::FullElement(u"Stored", 9);
    testing::WriteResource(local_root, kStoredElement, *stored);
    Type40Resource resource;
    testing::AddItem(resource, {kStoredElement})
        .media.Add(std::make_unique<MediaRef>(kMediaPicture, 40, number));
    testing::WriteResource(local_root, number, resource);
  }

  // Type-40 resource 123 with its index, for discipline `id` whose resources lie below
  // local_root and whose index lies below the common Local root common_local.
  void WriteDiscipline(const std::string& local_root, const std::string& common_local,
                       uint32_t id) const {
    WriteType40(local_root, 123);
    const std::string data_folder = common_local + DisciplineFolder(id);
    CreateFolderPath(data_folder);
    ASSERT_TRUE(BuildTypeIndex(40, local_root, data_folder));
  }

  static std::string Seven(uint32_t number) {
    char text[16];
    std::snprintf(text, sizeof text, "%07u", number);
    return text;
  }
  static void WriteFile(const std::string& path) {
    CreateFolderPath(FolderOf(path));
    std::FILE* file = std::fopen(path.c_str(), "wb");
    ASSERT_NE(file, nullptr);
    std::fputs("m", file);
    std::fclose(file);
  }
  static std::string Derived(const std::string& local_root, uint32_t number, const char* ext) {
    return ChangeExtension(ResourceFilePath(local_root, 40, number), ext);
  }

  std::string d7() const { return root() + "D007/"; }
};

TEST_F(PublishTest, ClearPathsWritesArhFilesThatTheOpenedTreeReads) {
  WriteIni("[001]\nDiscipline=7\n");
  for (uint32_t number : {123u, 124u, 125u}) WriteType40(d7(), number);
  ASSERT_TRUE(BuildTypeIndex(40, d7(), d7()));
  dir.Write("D007/C0000/r0000040/r0000125.ars", "ARS");  // listed, but unreadable

  PublishResources(40, root(), true);
  for (uint32_t number : {123u, 124u}) {
    EXPECT_TRUE(FileExists(Derived(d7(), number, "arh"))) << number;
    EXPECT_FALSE(FileExists(Derived(d7(), number, "aro"))) << number;
  }
  EXPECT_FALSE(FileExists(Derived(d7(), 125, "arh")));

  // With the original made unreadable, only the derived file can answer; its reference has
  // already been expanded into the element it names.
  dir.Write("D007/C0000/r0000040/r0000123.ars", "ARS");
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  ContentRequest request;
  request.disciplineId = 7;
  Type40Resource loaded;
  ASSERT_TRUE(lmGetResource(&request, 123, &loaded, false));
  const ContentElement& element = loaded.items[0].firstParts[0].elements[0];
  EXPECT_FALSE(element.isReference);
  EXPECT_EQ(element.text.text.view(), u"Stored");
  EXPECT_EQ(element.media.resource, 9u);
}

// An element expanded by the pass takes every field of the stored element, its reference too:
// the published file's links are what the stored elements name, which the verification of the
// published file then looks for. A stored element naming itself keeps the link; one naming
// nothing (0) leaves a link to resource 0, which no tree holds and no package lists.
TEST_F(PublishTest, APublishedLinkNamesWhatTheStoredElementNames) {
  WriteIni("[001]\nDiscipline=7\n");
  for (const uint32_t named : {kStoredElement, 0u}) {
    SCOPED_TRACE(named);
    WriteDiscipline(d7(), root(), 7);
    auto stored = testing::FullElement(u"Stored", 9);
    stored->reference = named;
    testing::WriteResource(d7(), kStoredElement, *stored);

    PublishResources(40, root(), true);
    Type40Resource published;
    ASSERT_TRUE(LoadArchiveFile(Derived(d7(), 123, "arh"), false, published));
    const ContentElement& element = published.items[0].firstParts[0].elements[0];
    EXPECT_FALSE(element.isReference);
    EXPECT_EQ(element.reference, named);
  }
}

TEST_F(PublishTest, KeptPathsWriteAroFilesOnly) {
  WriteIni("[001]\nDiscipline=7\n");
  WriteDiscipline(d7(), root(), 7);

  PublishResources(40, root(), false);
  EXPECT_FALSE(FileExists(Derived(d7(), 123, "arh")));
  Type40Resource published;
  ASSERT_TRUE(LoadArchiveFile(Derived(d7(), 123, "aro"), false, published));
  EXPECT_FALSE(published.items[0].firstParts[0].elements[0].isReference);
}

TEST_F(PublishTest, ResolvesForTheNetworkShareFromQualityThreeFirst) {
  WriteIni("[001]\nDiscipline=7\n");
  WriteDiscipline(d7(), root(), 7);
  struct Case {
    bool clearPaths;
    std::vector<std::string> storedPaths;
  };
  const Case cases[] = {
      {false,
       {d7() + "C0000\\r0000040\\Q3\\p0000123.swf", d7() + "C0000\\r0001005\\Q3\\p0000009.swf"}},
      {true, {"", ""}},
  };
  for (const Case& c : cases) {
    Observations seen;
    PublishingClass observed = *PublishingClassOf(40);
    observed.make = [&seen] { return std::make_unique<ObservedType40>(seen); };
    PublishResources(observed, root(), c.clearPaths);

    ASSERT_EQ(seen.requests.size(), 1u) << c.clearPaths;
    EXPECT_EQ(seen.requests[0].host & 0xFF, 17u);
    EXPECT_EQ(seen.requests[0].disciplineId, 7u);
    EXPECT_EQ(seen.requests[0].selector(), 3);
    EXPECT_EQ(seen.requests[0].pathKind, static_cast<uint32_t>(kPathUnc));
    EXPECT_EQ(seen.storedPaths, c.storedPaths) << c.clearPaths;
  }
}

TEST_F(PublishTest, ResourcesFollowTheSectionLocalAndIndexesTheCommonLocal) {
  const std::string shared = root() + "shared/";
  const std::string elsewhere = root() + "elsewhere/";
  WriteIni("[Common]\nLocal=" + root() + "shared\n[001]\nDiscipline=7\n[002]\nDiscipline=8\n" +
           "Local=" + root() + "elsewhere/\n");
  WriteDiscipline(d7(), shared, 7);
  WriteDiscipline(elsewhere, shared, 8);

  PublishResources(40, root(), true);
  EXPECT_TRUE(FileExists(Derived(d7(), 123, "arh")));
  EXPECT_TRUE(FileExists(Derived(elsewhere, 123, "arh")));
}

TEST_F(PublishTest, SectionLocalIsTakenAsWritten) {
  // Without its closing separator the folder name runs into the course folder's name, so the
  // resource files are not found and nothing is written.
  const std::string elsewhere = root() + "elsewhere/";
  WriteIni("[001]\nDiscipline=8\nLocal=" + root() + "elsewhere\n");
  WriteDiscipline(elsewhere, root(), 8);

  PublishResources(40, root(), true);
  EXPECT_FALSE(FileExists(Derived(elsewhere, 123, "arh")));
}

TEST_F(PublishTest, StopsAtTheFirstMissingSectionOrIndex) {
  // Discipline 7 has no index file.
  struct Case {
    const char* ini;
    bool eightPublished;
  };
  const Case cases[] = {
      {"[001]\nDiscipline=8\n[003]\nDiscipline=9\n", true},
      {"[001]\nDiscipline=7\n[002]\nDiscipline=8\n[003]\nDiscipline=9\n", false},
  };
  for (const Case& c : cases) {
    testing::TempDir tree;
    tree.Write("Content.ini", c.ini);
    const std::string d8 = tree.path() + "D008/";
    WriteDiscipline(d8, tree.path(), 8);
    WriteDiscipline(tree.path() + "D009/", tree.path(), 9);

    PublishResources(40, tree.path(), true);
    EXPECT_EQ(FileExists(Derived(d8, 123, "arh")), c.eightPublished) << c.ini;
    EXPECT_FALSE(FileExists(Derived(tree.path() + "D009/", 123, "arh"))) << c.ini;
  }
}

TEST_F(PublishTest, TheOtherPublishingTypesGetTheirArhToo) {
  WriteIni("[001]\nDiscipline=7\n");
  Type5Resource dictation;
  dictation.sentences.AddNew().media = MediaRef(kMediaSound, 5, 123);
  Type10Resource phonetics;
  phonetics.words.AddNew().media = MediaRef(kMediaVideo, 10, 123);
  Type28Resource sentences;
  sentences.sentences.AddNew().media = MediaRef(kMediaSound, 28, 123);
  for (ExerciseResource* resource :
       std::initializer_list<ExerciseResource*>{&dictation, &phonetics, &sentences}) {
    const uint32_t type = resource->GetType();
    const std::string path = testing::WriteResource(d7(), 123, *resource);
    ASSERT_TRUE(BuildTypeIndex(type, d7(), d7())) << type;

    PublishResources(type, root(), true);
    auto published = NewResource(type);
    EXPECT_TRUE(LoadArchiveFile(ChangeExtension(path, "arh"), false, *published)) << type;
  }
}

TEST_F(PublishTest, IndexRebuildRunsEveryTypeAndAnswersWhetherAllSucceeded) {
  WriteType40(root(), 123);
  ASSERT_TRUE(RebuildExportIndexes(root()));
  for (uint32_t type : kExerciseTypes) {
    EXPECT_TRUE(FileExists(IndexFilePath(root(), type))) << type;
  }

  dir.Write("C0000/r0000005/r0000001.ars", "ARS");
  std::remove(IndexFilePath(root(), 40).c_str());
  EXPECT_FALSE(RebuildExportIndexes(root()));
  EXPECT_TRUE(FileExists(IndexFilePath(root(), 40)));
}

}  // namespace
}  // namespace lumora
