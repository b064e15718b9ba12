#include "host/pictures/one_bit_picture.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace fieldhost {
namespace {

using Ink = std::vector<std::pair<int, int>>;  // row, column

std::string BytesOf(int width, int height, const Ink& ink) {
  OneBitPicture picture(width, height);
  for (const auto& [row, column] : ink) picture.SetInk(row, column);
  return PortableBitmap(picture);
}

TEST(PortableBitmap, HasItsRowsPaddedToBytes) {
  using namespace std::string_literals;
  const struct {
    int width;
    int height;
    Ink ink;
    std::string bytes;
  } rows[] = {
      {8, 1, {}, "P4\n8 1\n\x00"s},
      {8, 1, {{0, 0}}, "P4\n8 1\n\x80"s},
      {8, 1, {{0, 7}}, "P4\n8 1\n\x01"s},
      {9, 1, {{0, 0}, {0, 8}}, "P4\n9 1\n\x80\x80"s},
      {1, 3, {{0, 0}, {2, 0}}, "P4\n1 3\n\x80\x00\x80"s},
      {10, 2, {{0, 9}, {1, 1}, {1, 2}}, "P4\n10 2\n\x00\x40\x60\x00"s},
      {16, 1, {{0, 15}}, "P4\n16 1\n\x00\x01"s},
      {17, 1, {{0, 16}}, "P4\n17 1\n\x00\x00\x80"s},
      {0, 0, {}, "P4\n0 0\n"s},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.bytes, BytesOf(row.width, row.height, row.ink)) << row.width << 'x' << row.height;
  }
}

TEST(PortableBitmap, KeepsEachPixelApart) {
  constexpr int kWidth = 13;
  constexpr int kHeight = 3;
  constexpr std::size_t kHeader = 8;  // "P4\n13 3\n"
  for (int row = 0; row < kHeight; ++row) {
    for (int column = 0; column < kWidth; ++column) {
      const std::string bytes = BytesOf(kWidth, kHeight, {{row, column}});
      ASSERT_EQ(kHeader + 6, bytes.size());
      for (std::size_t i = kHeader; i < bytes.size(); ++i) {
        const bool here = i - kHeader == static_cast<std::size_t>(row * 2 + column / 8);
        EXPECT_EQ(static_cast<unsigned char>(bytes[i]), here ? 0x80U >> (column % 8) : 0U);
      }
    }
  }
}

TEST(PortableBitmap, SameInkTwiceStaysInk) {
  EXPECT_EQ(BytesOf(8, 1, {{0, 3}, {0, 3}}), BytesOf(8, 1, {{0, 3}}));
}

TEST(OneBitFormatOf, GoesByTheEnding) {
  const struct {
    std::string_view name;
    std::optional<OneBitFormat> format;
  } rows[] = {
      {"a.png", OneBitFormat::kPng},    {"A.PNG", OneBitFormat::kPng},
      {"現場.Pbm", OneBitFormat::kPbm}, {"C:\\x.y\\plan.pbm", OneBitFormat::kPbm},
      {"a.pbm.txt", std::nullopt},      {"pbm", std::nullopt},
      {"a.bmp", std::nullopt},          {"", std::nullopt},
  };
  for (const auto& row : rows) EXPECT_EQ(row.format, OneBitFormatOf(row.name)) << row.name;
}

}  // namespace
}  // namespace fieldhost
