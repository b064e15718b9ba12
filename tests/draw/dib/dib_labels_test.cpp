// Labels of every kind drawn both ways. The program runs a second time where text is smoothed in
// colours.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "tests/draw/dib/canvas_pair.h"

namespace tavix::test {
namespace {

constexpr int kWidth = 300;
constexpr int kHeight = 200;

using enum LabelContent;

class DibLabels : public testing::TestWithParam<int> {
 protected:
  // Up to eight characters of those that surveys are full of, now and then with an '&'.
  std::u16string AnyText() {
    static const std::u16string kPool =
        u"0123456789PQTfjgy-. "
        u"測量基準点道路境界建物樹木電柱水準三角街区公共図根ｱｲｳｶﾞﾊﾟﾝアイウ（）①㎡";
    std::u16string text;
    for (int length = dice_.Between(1, 8); length > 0; --length) {
      if (dice_.Between(0, 15) == 0) text += u'&';
      text += kPool[static_cast<std::size_t>(dice_.Between(0, static_cast<int>(kPool.size()) - 1))];
    }
    if (dice_.Between(0, 9) == 0) text += u"&";
    return text;
  }

  RasterCache cache_;
  Dice dice_{static_cast<unsigned>(GetParam())};
};

TEST_P(DibLabels, MatchGdi) {
  constexpr std::uint32_t kGrey = 0x00808080;
  CanvasPair pair(kWidth, kHeight, cache_);
  for (const std::uint32_t color : {0U, kGrey, 0U}) {
    pair.UsePointSymbol({2, 8, GetParam(), kName, {1, 0x00C00000}});
    pair.UseTextColor(color);
    for (int i = 0; i < 150; ++i) pair.Label(dice_.Place(kWidth, kHeight, 20), AnyText());
    EXPECT_TRUE(pair.AreSame()) << color;
  }
  EXPECT_TRUE(pair.ShowSomething());
}

INSTANTIATE_TEST_SUITE_P(Height, DibLabels, testing::Values(1, 7, 10, 12, 16, 21, 40, 41));

// Otherwise the second run would show nothing that the first one does not.
TEST(DibLabelsInColours, AreSmoothedSo) {
  if (!std::getenv("FONTCONFIG_FILE")) GTEST_SKIP() << "text is smoothed as the system has it";
  ReferenceBitmap reference(100, 40);
  reference.Fill(0x00FFFFFF);
  GdiCanvas gdi(reference.Dc());
  gdi.UsePointSymbol({0, 0, 14, kName, {}});
  gdi.Label({5, 5}, u"基準点12");
  const PixelBlock& shown = reference.Pixels();
  EXPECT_TRUE(std::any_of(shown.pixels, shown.pixels + shown.Count(), [](std::uint32_t pixel) {
    const auto [red, green, blue] = LevelsOf(pixel);
    return red != green || green != blue;
  }));
}

}  // namespace
}  // namespace tavix::test
