// Content roots for the frame's tests: Content.ini text and description indexes written with
// the library's own writers, and a test base that closes the library after every test so that
// each one starts with an empty registry.
#pragma once

#include <lumora/frame/discipline.h>
#include <lumora/frame/library_state.h>
#include <lumora/lumora.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>

#include "fixtures/temp_dir.h"

namespace lumora::testing {

// Writes the description index (type 2000) into `data_folder`, one entry per attribute, keyed
// 10, 11, ... in list order.
void WriteDescriptions(const std::string& data_folder, std::initializer_list<uint8_t> attributes);

// The registered disciplines' identifiers, in registry order.
std::vector<uint32_t> RegisteredIds();

class LibraryTest : public ::testing::Test {
 protected:
  void TearDown() override { lmClose(); }

  // Writes Content.ini into the temporary root.
  void WriteIni(const std::string& text) const { dir.Write("Content.ini", text); }
  const std::string& root() const { return dir.path(); }

  TempDir dir;
};

}  // namespace lumora::testing
