#include "serve/test_server.h"

#include <sys/stat.h>
#include <unistd.h>

#include "serve/api_routes.h"
#include "serve/file_routes.h"

namespace lumora::testing {
namespace {

constexpr char kPage[] = "<!doctype html><title>page</title>";

void WriteContent(const TempDir& dir) {
  const std::string& top = dir.path();
  dir.Write("secret.txt", kSecret);
  dir.Write("outside/secret.swf", kSecret);
  dir.Write("content/D001/C0001/r0000005/Q1/s0000010.swf", MediumBytes());
  dir.Write("content/D001/a b%.mp3", "sound");
  dir.Write("content/D001/empty.wav", "");
  dir.Write("content/D001/page.html", "<p>hi</p>");
  dir.Write("content/D001/folder/x.png", "png");
  dir.Write("content/secret-beside.swf", kSecret);
  dir.Write("ruffle/core.wasm", std::string("\0asm", 4));
  dir.Write("ruffle/ruffle.js", "export {};");
  const std::string d = top + "content/D001/";
  EXPECT_EQ(::symlink("C0001/r0000005/Q1/s0000010.swf", (d + "inside.swf").c_str()), 0);
  EXPECT_EQ(::symlink((top + "secret.txt").c_str(), (d + "escape.swf").c_str()), 0);
  EXPECT_EQ(::symlink("../secret-beside.swf", (d + "beside.swf").c_str()), 0);
  EXPECT_EQ(::symlink((top + "outside").c_str(), (d + "escape_dir").c_str()), 0);
  EXPECT_EQ(::symlink((top + "secret.txt").c_str(), (top + "ruffle/escape.js").c_str()), 0);
  EXPECT_EQ(::mkfifo((d + "fifo.swf").c_str(), 0600), 0);
}

}  // namespace

std::string MediumBytes() {
  std::string bytes(1000, '\0');
  for (size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 7 % 251);
  return bytes;
}

void TestServer::SetUpTestSuite() {
  folder_ = std::make_unique<TempDir>();
  WriteContent(*folder_);
  router_ = std::make_unique<serve::Router>();
  serve::AddApiRoutes(*router_, documents_);
  serve::AddMediaRoutes(*router_, {{1, folder_->path() + "content/D001/"},
                                   {2, folder_->path() + "content/missing/"}});
  serve::AddFolderRoute(*router_, "/ruffle", folder_->path() + "ruffle");
  serve::AddAssetRoute(*router_, "/", kPage, "text/html; charset=utf-8");
  router_->SetFallback([](const serve::Request&, const serve::RouteMatch&) {
    return serve::BytesResponse(200, kPage, "text/html; charset=utf-8");
  });
  server_ = std::make_unique<serve::HttpServer>(*router_);
  std::string error;
  ASSERT_TRUE(server_->Start({"127.0.0.1", 0, 2, {}}, &error)) << error;
}

void TestServer::TearDownTestSuite() {
  server_.reset();
  router_.reset();
  folder_.reset();
}

}  // namespace lumora::testing
