#include "figure/figure_codec.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <vector>

namespace tavix {
namespace {

TEST(FigureCodec, APointIsTwoLittleEndianDoubles) {
  const FigurePointBytes bytes = EncodeFigurePoint({1.0, -2.5});
  const FigurePointBytes expected{0, 0, 0, 0, 0, 0, 0xF0, 0x3F, 0, 0, 0, 0, 0, 0, 0x04, 0xC0};
  EXPECT_EQ(expected, bytes);
}

TEST(FigureCodec, ARecordIsSixLittleEndianWords) {
  const FigureRecord record{-2, 0x01020304, 7, 1, 0xA0B0C0D0U, 1};
  const FigureRecordBytes expected{0xFE, 0xFF, 0xFF, 0xFF, 4,    3,    2,    1,    7, 0, 0, 0,
                                   1,    0,    0,    0,    0xD0, 0xC0, 0xB0, 0xA0, 1, 0, 0, 0};
  EXPECT_EQ(expected, EncodeFigureRecord(record));
  EXPECT_EQ(record, DecodeFigureRecord(expected.data()));
}

TEST(FigureCodec, PointsComeBackToTheLastBitFromAnyPlace) {
  const std::vector<double> values{0.0,
                                   -0.0,
                                   1.0 / 3.0,
                                   -123456.789,
                                   std::numeric_limits<double>::denorm_min(),
                                   std::numeric_limits<double>::max(),
                                   -std::numeric_limits<double>::infinity(),
                                   std::nan("7")};
  std::vector<GroundPoint> written;
  for (const double x : values) {
    for (const double y : values) written.push_back({x, y});
  }
  for (std::size_t place = 0; place < 9; ++place) {
    std::vector<unsigned char> bytes(place);
    for (const GroundPoint point : written) {
      const FigurePointBytes encoded = EncodeFigurePoint(point);
      bytes.insert(bytes.end(), encoded.begin(), encoded.end());
    }
    std::vector<GroundPoint> read(written.size());
    DecodeFigurePoints(bytes.data() + place, read);
    for (std::size_t i = 0; i < read.size(); ++i) {
      ASSERT_EQ(std::bit_cast<std::uint64_t>(written[i].north),
                std::bit_cast<std::uint64_t>(read[i].north));
      ASSERT_EQ(std::bit_cast<std::uint64_t>(written[i].east),
                std::bit_cast<std::uint64_t>(read[i].east));
    }
  }
}

TEST(FigureCodec, NoPointsNeedNoBytes) { DecodeFigurePoints(nullptr, {}); }

}  // namespace
}  // namespace tavix
