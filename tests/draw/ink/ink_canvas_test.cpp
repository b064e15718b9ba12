// Crowded one-bit pictures of everything, drawn by GDI and into the bits.
#include "draw/ink/ink_canvas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "draw/gdi_canvas.h"
#include "tests/draw/random_scene.h"

namespace tavix::test {
namespace {

constexpr int kWhite = 0x00FFFFFF;
constexpr int kPaletteIndex = 0x01FFFFFF;  // left to GDI

class InkScenes : public testing::TestWithParam<Scene> {
 protected:
  ScreenPoint Place() {
    constexpr int kOutside = 20;
    return dice_.Place(GetParam().width, GetParam().height, kOutside);
  }
  int Color() {
    const int colors[] = {0, 0, 0, kWhite, kWhite, kPaletteIndex};
    return colors[dice_.Between(0, 5)];
  }

  Pen AnyPen() {
    const int width = dice_.Between(0, GetParam().most_width);
    return {width, Color()};
  }

  // Does the same on both canvases.
  template <class Draw>
  void OnBoth(Draw draw) {
    draw(static_cast<PlanCanvas&>(gdi_));
    draw(static_cast<PlanCanvas&>(ink_));
  }

  void DrawLines() {
    const Pen pen = AnyPen();
    OnBoth([&](PlanCanvas& canvas) { canvas.UsePen(pen); });
    for (int i = dice_.Between(1, 4); i > 0; --i) {
      const ScreenPoint start = Place();
      const ScreenPoint end = Place();
      const int radius = dice_.Between(-30, 30);
      OnBoth([&](PlanCanvas& canvas) {
        canvas.Line({start, end});
        canvas.Circle(end, radius);
      });
    }
  }

  void DrawPoints() {
    const PointSymbol symbol{
        dice_.Between(0, 12), dice_.Between(0, GetParam().most_size),
        dice_.Between(0, 3) == 0 ? dice_.Between(0, 100) : dice_.Between(9, 12),
        LabelContent::kName, AnyPen()};
    const int text_color = dice_.Between(0, 5) == 0 ? kWhite : 0;
    OnBoth([&](PlanCanvas& canvas) {
      canvas.UsePointSymbol(symbol);
      canvas.UseTextColor(static_cast<std::uint32_t>(text_color));
    });
    for (int i = dice_.Between(1, 8); i > 0; --i) {
      const ScreenPoint at = Place();
      const char16_t* name = dice_.Label();
      OnBoth([&](PlanCanvas& canvas) {
        if (symbol.size > 0) canvas.Mark(at);
        if (symbol.label_height > 0) canvas.Label(at, name);
      });
    }
  }

  [[nodiscard]] testing::AssertionResult AreSame() const {
    const std::size_t bytes = gdi_picture_.Stride() * static_cast<std::size_t>(GetParam().height);
    const std::uint8_t* gdi = gdi_picture_.Bits();
    const auto [first, second] = std::mismatch(gdi, gdi + bytes, ink_picture_.Bits());
    if (first == gdi + bytes) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "GDI has " << int{*first} << " and not " << int{*second}
                                       << " in byte " << first - gdi;
  }

  [[nodiscard]] bool ShowsSomething() const {
    const std::size_t bytes = gdi_picture_.Stride() * static_cast<std::size_t>(GetParam().height);
    const std::uint8_t* gdi = gdi_picture_.Bits();
    return std::any_of(gdi, gdi + bytes, [](std::uint8_t byte) { return byte != 0; });
  }

  Dice dice_{GetParam().seed};
  OneBitBitmap gdi_picture_{GetParam().width, GetParam().height};
  OneBitBitmap ink_picture_{GetParam().width, GetParam().height};
  GdiCanvas gdi_{gdi_picture_.Dc()};
  InkCache cache_;
  InkCanvas ink_{ink_picture_, GetParam().width, GetParam().height, cache_};
};

TEST_P(InkScenes, MatchGdi) {
  for (int i = 0; i < GetParam().entities; ++i) {
    if (dice_.Between(0, 9) < 2) {
      DrawLines();
    } else {
      DrawPoints();
    }
    ASSERT_TRUE(AreSame()) << i;
  }
  EXPECT_TRUE(ShowsSomething());
}

INSTANTIATE_TEST_SUITE_P(
    Dice, InkScenes,
    testing::Values(Scene{1, 240, 320, 700, 40, 3}, Scene{2, 64, 48, 700, 40, 3},
                    Scene{3, 645, 480, 500, 16, 1}, Scene{4, 101, 1, 200, 12, 1},
                    Scene{5, 1, 77, 200, 12, 2}, Scene{6, 240, 320, 700, 90, 9},
                    Scene{7, 33, 30, 700, 10, 1}, Scene{8, 240, 320, 400, 100, 100}));

}  // namespace
}  // namespace tavix::test
