#include "draw/ink/ink_mask.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace tavix::test {
namespace {

// A one-bit picture with bytes of its own.
class Sheet {
 public:
  Sheet(int width, int height)
      : stride_((static_cast<std::size_t>(width) + 31) / 32 * 4),
        bytes_(stride_ * static_cast<std::size_t>(height)),
        block_{bytes_.data(), width, height, stride_} {}

  [[nodiscard]] const InkBlock& Block() const { return block_; }

  void Scatter(std::mt19937& random) {
    for (std::uint8_t& byte : bytes_) byte = static_cast<std::uint8_t>(random());
  }

  // Rows from the top, '#' for ink.
  [[nodiscard]] std::vector<std::string> Rows() const {
    std::vector<std::string> rows;
    for (int y = 0; y < block_.height; ++y) {
      std::string& row = rows.emplace_back();
      for (int x = 0; x < block_.width; ++x) row += block_.IsInk(x, y) ? '#' : '.';
    }
    return rows;
  }

  // The bytes with the bits beyond the right edge, which belong to no pixel.
  [[nodiscard]] const std::vector<std::uint8_t>& Bytes() const { return bytes_; }

 private:
  std::size_t stride_;
  std::vector<std::uint8_t> bytes_;
  InkBlock block_;
};

TEST(InkColor, IsBlackForEveryColourButWhite) {
  const struct {
    const char* what;
    std::int32_t color;
    std::int32_t ink;
  } rows[] = {{"black", 0, 0},
              {"red", 0x0000FF, 0},
              {"yellow", 0x00FFFF, 0},
              {"cyan", 0xFFFF00, 0},
              {"light grey", 0xC0C0C0, 0},
              {"nearly white", 0xFEFFFF, 0},
              {"white", 0xFFFFFF, 0xFFFFFF},
              {"white with the unused byte set", 0x01FFFFFF, 0x01FFFFFF},
              {"yellow with the unused byte set", -0xFF0001, 0}};
  for (const auto& row : rows) EXPECT_EQ(row.ink, InkColor(row.color)) << row.what;
}

TEST(InkBlock, HasItsRowsFromTheBottomUpAndTheFirstPixelInTheHighestBit) {
  const Sheet sheet(33, 2);
  sheet.Block().Fill(1, 0, 2, true);
  sheet.Block().Fill(32, 1, 1, true);
  const std::vector<std::uint8_t> expected{0, 0, 0, 0, 0x80, 0, 0, 0, 0x60, 0, 0, 0, 0, 0, 0, 0};
  EXPECT_EQ(expected, sheet.Bytes());
}

TEST(InkBlock, FillsEveryRunOfPixelsAndNoOther) {
  constexpr int kWidth = 35;
  std::mt19937 random(1);
  for (int x = 0; x < kWidth; ++x) {
    for (int count = 1; x + count <= kWidth; ++count) {
      for (const bool ink : {true, false}) {
        Sheet sheet(kWidth, 3);
        sheet.Scatter(random);
        std::vector<std::string> expected = sheet.Rows();
        expected[1].replace(static_cast<std::size_t>(x), static_cast<std::size_t>(count),
                            static_cast<std::size_t>(count), ink ? '#' : '.');
        sheet.Block().Fill(x, 1, count, ink);
        ASSERT_EQ(expected, sheet.Rows()) << x << ", " << count << ", " << ink;
      }
    }
  }
}

TEST(InkMask, IsTheInkOfItsPictureAtAnyPlaceCutAtTheEdges) {
  constexpr int kSide = 19;
  std::mt19937 random(2);
  Sheet picture(kSide, kSide);
  picture.Scatter(random);
  const ScreenPoint origin{7, 4};
  const InkMask shape = InkMask::FromPicture(picture.Block(), origin);
  const std::vector<std::string> source = picture.Rows();
  for (int y = -kSide; y < 30; y += 3) {
    for (int x = -kSide; x < 60; x += 2) {
      for (const bool ink : {true, false}) {
        Sheet sheet(41, 13);
        sheet.Scatter(random);
        std::vector<std::string> expected = sheet.Rows();
        for (int v = 0; v < kSide; ++v) {
          for (int u = 0; u < kSide; ++u) {
            const int to_x = x + u - origin.x;
            const int to_y = y + v - origin.y;
            if (to_x < 0 || to_y < 0 || to_x >= 41 || to_y >= 13) continue;
            if (source[static_cast<std::size_t>(v)][static_cast<std::size_t>(u)] == '.') continue;
            expected[static_cast<std::size_t>(to_y)][static_cast<std::size_t>(to_x)] =
                ink ? '#' : '.';
          }
        }
        shape.Draw(sheet.Block(), {x, y}, ink);
        ASSERT_EQ(expected, sheet.Rows()) << x << ", " << y << ", " << ink;
      }
    }
  }
}

}  // namespace
}  // namespace tavix::test
