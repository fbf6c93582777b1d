// A server started on a free loopback port for one test suite, over a temporary folder: the
// media of discipline 1 below content/D001/, a file outside every root that no request may
// read, links that lead in and out, a static folder and an in-program page.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "fixtures/http_client.h"
#include "fixtures/temp_dir.h"
#include "serve/fake_documents.h"
#include "serve/http_server.h"
#include "serve/router.h"

namespace lumora::testing {

// Bytes that must never come back in an answer.
inline constexpr char kSecret[] = "outside-the-root-secret";
// A medium of 1000 bytes whose every byte differs from its neighbours.
std::string MediumBytes();

class TestServer : public ::testing::Test {
 protected:
  static void SetUpTestSuite();
  static void TearDownTestSuite();

  static std::string Url(const std::string& path) {
    return "http://127.0.0.1:" + std::to_string(server_->port()) + path;
  }
  static uint16_t port() { return server_->port(); }
  static const TempDir& folder() { return *folder_; }

 private:
  inline static std::unique_ptr<TempDir> folder_;
  inline static FakeDocuments documents_;
  inline static std::unique_ptr<serve::Router> router_;
  inline static std::unique_ptr<serve::HttpServer> server_;
};

}  // namespace lumora::testing
