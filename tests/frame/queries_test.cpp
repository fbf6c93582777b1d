#include <lumora/platform/archive.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/support/paths.h>

#include <stdexcept>

#include "frame/content_tree.h"

namespace lumora {
namespace {

using testing::LibraryTest;

// The least a resource class does: the common head, its type tag and one group byte, and a
// record of the media resolution it was asked for.
class NoteResource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 7;

  uint32_t GetType() const override { return kType; }
  void Serialize(Archive& ar) override {
    SerializeHeadAndTag(ar);
    ar.Io(group);
  }
  void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                    const std::string& chosen_root) override {
    resolved = local_root + " | " + chosen_root + " | " + std::to_string(request.pathKind);
  }

  uint8_t group = 0;
  std::string resolved;
};

class Queries : public LibraryTest {
 protected:
  void SetUp() override {
    WriteIni("[Common]\nLocal=" + root() + "shared\n" +
             "[001]\nDiscipline=7\nURL=http://cdn/d7\nUNC=\\\\server\\d7\\\nLocal=" + root() +
             "d7\n");
    ASSERT_TRUE(lmOpen(root().c_str(), 0));
  }

  ContentRequest Request(uint32_t path_kind, uint32_t discipline = 7) const {
    ContentRequest request;
    request.disciplineId = discipline;
    request.pathKind = path_kind;
    return request;
  }

  std::string local() const { return root() + "d7/"; }

  // Stores a resource with `group` at its file below the local root, with `extension`.
  void WriteResource(uint32_t id, uint8_t group, const char* extension) const {
    NoteResource resource;
    resource.resourceId = id;
    resource.group = group;
    const std::string path =
        ChangeExtension(ResourceFilePath(local(), NoteResource::kType, id), extension);
    ASSERT_TRUE(CreateFolderPath(FolderOf(path)));
    ASSERT_TRUE(LoadArchiveFile(path, true, resource));
  }
};

TEST_F(Queries, UnknownDisciplineOrNoRequest) {
  const ContentRequest unknown = Request(kPathUrl, 8);
  for (const ContentRequest* request : {&unknown, static_cast<const ContentRequest*>(nullptr)}) {
    EXPECT_EQ(lmGetResourceInfos(request), nullptr);
    NoteResource resource;
    EXPECT_FALSE(lmGetResource(request, 1, &resource, true));
    std::string path = "kept";
    EXPECT_FALSE(lmGetMediaPath(request, MediaRef(kMediaSound, 40, 5), &path));
    EXPECT_EQ(path, "kept");
    EXPECT_EQ(lmGetPathInfos(request), root() + "shared/");
  }
  const ContentRequest known = Request(kPathLocal);
  EXPECT_EQ(lmGetPathInfos(&known), root() + "shared/D007/");
}

TEST_F(Queries, ResourceIndexIsTheDisciplinesUntilClose) {
  const ContentRequest request = Request(kPathLocal);
  ResourceIndex* index = lmGetResourceInfos(&request);
  ASSERT_NE(index, nullptr);
  EXPECT_EQ(lmGetResourceInfos(&request), index);
  lmClose();
  EXPECT_EQ(lmGetResourceInfos(&request), nullptr);
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  EXPECT_EQ(lmGetResourceInfos(&request), FindDiscipline(7)->resourceIndex.get());
}

TEST_F(Queries, MediaPathsUseTheRootAndSeparatorOfThePathKind) {
  dir.Write("d7/C0001/r0000040/Q1/s0000005.swf", "");
  dir.Write("d7/C0001/r0000040/Q2/s0000005.swf", "");
  const MediaRef media(kMediaSound, 40, MakeResourceId(1, 5));
  struct Case {
    uint32_t path_kind;
    uint32_t media_order;
    bool found;
    std::string path;
  };
  const Case cases[] = {
      {kPathUrl, 1, true, "http://cdn/d7C0001/r0000040/Q1/s0000005.swf"},
      // Only the low byte of the media order selects: 0x102 tries Q2 first.
      {kPathUnc, 0x102, true, "\\\\server\\d7\\C0001\\r0000040\\Q2\\s0000005.swf"},
      {kPathLocal, 1, false, "kept"},
      {5, 1, false, "kept"},
  };
  for (const Case& c : cases) {
    ContentRequest request = Request(c.path_kind);
    request.mediaOrder = c.media_order;
    std::string path = "kept";
    EXPECT_EQ(lmGetMediaPath(&request, media, &path), c.found) << c.path_kind;
    EXPECT_EQ(path, c.path) << c.path_kind;
  }
  const ContentRequest request = Request(kPathUrl);
  std::string path = "kept";
  EXPECT_FALSE(lmGetMediaPath(&request, MediaRef(kMediaSound, 40, MakeResourceId(1, 6)), &path));
  EXPECT_EQ(path, "kept");
  EXPECT_FALSE(lmGetMediaPath(&request, media, nullptr));
}

TEST_F(Queries, ResourceIsReadFromTheLocalRootAndResolvedOnlyWhenAsked) {
  const uint32_t id = MakeResourceId(1, 291);
  WriteResource(id, 4, "ars");
  const ContentRequest request = Request(kPathUrl);

  NoteResource plain;
  ASSERT_TRUE(lmGetResource(&request, id, &plain, false));
  EXPECT_EQ(plain.group, 4);
  EXPECT_EQ(plain.resourceId, id);
  EXPECT_EQ(plain.resolved, "");

  NoteResource filled;
  ASSERT_TRUE(lmGetResource(&request, id, &filled, true));
  EXPECT_EQ(filled.resolved, local() + " | http://cdn/d7 | 1");

  EXPECT_FALSE(lmGetResource(&request, id, nullptr, true));
  EXPECT_FALSE(lmGetResource(&request, MakeResourceId(1, 292), &plain, true));
}

TEST_F(Queries, HiddenTwinOfAResourceWins) {
  const uint32_t id = MakeResourceId(0, 12);
  WriteResource(id, 1, "ars");
  WriteResource(id, 2, "arh");
  const ContentRequest request = Request(kPathLocal);
  NoteResource resource;
  ASSERT_TRUE(lmGetResource(&request, id, &resource, true));
  EXPECT_EQ(resource.group, 2);
  EXPECT_EQ(resource.resolved, local() + " | " + local() + " | 0");

  // A folder named like the twin is not one: the .ars is read.
  const uint32_t other = MakeResourceId(0, 13);
  WriteResource(other, 3, "ars");
  const std::string ars = ResourceFilePath(local(), NoteResource::kType, other);
  ASSERT_TRUE(CreateFolderPath(ChangeExtension(ars, "arh") + kPathSeparator));
  ASSERT_TRUE(lmGetResource(&request, other, &resource, false));
  EXPECT_EQ(resource.group, 3);
}

// A host class whose own code throws: whatever it throws stays inside the library.
class ThrowingResource : public NoteResource {
 public:
  void ResolveMedia(const ContentRequest&, const std::string&, const std::string&) override {
    throw std::runtime_error("host failure");
  }
};

TEST_F(Queries, ExceptionsOfTheHostsClassesNeverLeave) {
  const uint32_t id = MakeResourceId(0, 12);
  WriteResource(id, 1, "ars");
  const ContentRequest request = Request(kPathUrl);
  ThrowingResource resource;
  EXPECT_FALSE(lmGetResource(&request, id, &resource, true));
  EXPECT_TRUE(lmGetResource(&request, id, &resource, false));
}

}  // namespace
}  // namespace lumora
