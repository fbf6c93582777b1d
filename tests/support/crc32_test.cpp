#include <lumora/support/crc32.h>
#include <lumora/support/crc32_paths.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace lumora {
namespace {

constexpr char kCheckInput[] = "123456789";
constexpr uint32_t kCheckValue = 0x89A1897F;

std::vector<uint8_t> RandomBytes(size_t n, uint32_t seed) {
  std::mt19937 gen(seed);
  std::vector<uint8_t> bytes(n);
  for (auto& b : bytes) b = static_cast<uint8_t>(gen());
  return bytes;
}

TEST(Crc32Test, CheckValueAndItsSignedDecimalForm) {
  uint32_t value = Crc32(kCheckInput, 9);
  EXPECT_EQ(value, kCheckValue);
  // The checksum list records the value as a signed 32-bit decimal number.
  EXPECT_EQ(std::to_string(static_cast<int32_t>(value)), "-1985902209");
}

TEST(Crc32Test, EmptyInputAndZeroLengthUpdatesChangeNothing) {
  EXPECT_EQ(Crc32(nullptr, 0), 0u);
  EXPECT_EQ(Crc32(kCheckInput, 0, 0x12345678), 0x12345678u);

  CrcAccumulator crc;
  crc.Update(nullptr, 0);
  EXPECT_EQ(crc.value(), 0u);
  crc.Update(kCheckInput, 9);
  crc.Update(kCheckInput, 0);
  EXPECT_EQ(crc.value(), kCheckValue);
}

TEST(Crc32Test, PiecewiseUpdatesEqualOneUpdate) {
  // Long enough that some pieces take the folding path and others the table paths.
  std::vector<uint8_t> data = RandomBytes(20000, 1);
  uint32_t whole = Crc32Bytewise(data.data(), data.size(), 0);
  std::mt19937 gen(2);
  for (int round = 0; round < 50; ++round) {
    CrcAccumulator crc;
    size_t pos = 0;
    while (pos < data.size()) {
      size_t piece = std::min<size_t>(gen() % (round < 25 ? 40 : 3000), data.size() - pos);
      crc.Update(data.data() + pos, piece);
      pos += piece;
    }
    ASSERT_EQ(crc.value(), whole) << "round " << round;
  }
}

struct CrcPath {
  const char* name;
  uint32_t (*crc)(const void*, size_t, uint32_t);
  bool needs_folding;
};

// Names the path in test output instead of dumping the struct's bytes.
void PrintTo(const CrcPath& path, std::ostream* os) { *os << path.name; }

uint32_t AutoChosen(const void* data, size_t n, uint32_t start) { return Crc32(data, n, start); }

class Crc32PathTest : public ::testing::TestWithParam<CrcPath> {
 protected:
  void SetUp() override {
    if (GetParam().needs_folding && !FoldingAvailable()) {
      GTEST_SKIP() << "no carry-less multiplication on this processor";
    }
  }
};

TEST_P(Crc32PathTest, GivesTheCheckValue) {
  EXPECT_EQ(GetParam().crc(kCheckInput, 9, 0), kCheckValue);
}

// Every length up to a few folding steps, from every alignment and with several start values,
// so that block loops, lane merging and tails are all exercised.
TEST_P(Crc32PathTest, MatchesBytewiseForAllShortLengths) {
  constexpr size_t kMaxLength = 600;
  constexpr size_t kMaxOffset = 16;
  std::vector<uint8_t> data = RandomBytes(kMaxLength + kMaxOffset, 3);
  for (uint32_t start : {0u, 0xFFFFFFFFu, 0x89A1897Fu}) {
    for (size_t offset = 0; offset < kMaxOffset; offset += 3) {
      for (size_t n = 0; n <= kMaxLength; ++n) {
        const uint8_t* p = data.data() + offset;
        ASSERT_EQ(GetParam().crc(p, n, start), Crc32Bytewise(p, n, start))
            << "length " << n << " offset " << offset << " start " << start;
      }
    }
  }
}

TEST_P(Crc32PathTest, MatchesBytewiseForLargeBuffers) {
  std::vector<uint8_t> data = RandomBytes((1 << 20) + 100, 4);
  for (size_t n : {size_t{4096 + 13}, size_t{65536 + 64 + 7}, size_t{1 << 20}}) {
    for (size_t offset : {0, 5}) {
      const uint8_t* p = data.data() + offset;
      ASSERT_EQ(GetParam().crc(p, n, 0xDEADBEEF), Crc32Bytewise(p, n, 0xDEADBEEF))
          << "length " << n << " offset " << offset;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(AllPaths, Crc32PathTest,
                         ::testing::Values(CrcPath{"slicing", &Crc32Slicing, false},
                                           CrcPath{"folding", &Crc32Folding, true},
                                           CrcPath{"auto", &AutoChosen, false}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace lumora
