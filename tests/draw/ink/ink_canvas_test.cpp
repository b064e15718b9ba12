// Crowded one-bit pictures of everything, drawn by the system and into the bits.
#include "draw/ink/ink_canvas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "draw/gdi_canvas.h"

namespace tavix::test {
namespace {

constexpr int kWhite = 0x00FFFFFF;
constexpr int kPaletteIndex = 0x01FFFFFF;  // the system's own business

const char16_t* const kNames[] = {
    u"P1",
    u"P20931",
    u"T-7 (east)",
    u"基準点12",
    u"ｱｲｳ",
    u"a&b",
    u"two\nlines",
    u"two\tparts",
    u" ",
    u"~!@#$%^*()_+|`-=\\{}[]:\";'<>?,./",
    u"ABCDEFGHIJKLMNOPQRSTUVWXYZ",
    u"abcdefghijklmnopqrstuvwxyz",
    u"fjfjjJgypqWWMiil1||",
    u"a name that is a good deal longer than any other name of a point that is in use",
    u"P1\x7F",
};

struct Scene {
  unsigned seed;
  int width;
  int height;
  int entities;
  int most_size;
  int most_width;
};

class InkScenes : public testing::TestWithParam<Scene> {
 protected:
  // low..high, both included.
  int Between(int low, int high) {
    return low + static_cast<int>(random_() % static_cast<unsigned>(high - low + 1));
  }
  ScreenPoint Place() {
    constexpr int kOutside = 20;
    const int x = Between(-kOutside, GetParam().width + kOutside);
    return {x, Between(-kOutside, GetParam().height + kOutside)};
  }
  int Color() {
    const int colors[] = {0, 0, 0, kWhite, kWhite, kPaletteIndex};
    return colors[Between(0, 5)];
  }

  Pen AnyPen() {
    const int width = Between(0, GetParam().most_width);
    return {width, Color()};
  }

  // Does the same on both canvases.
  template <class Draw>
  void OnBoth(Draw draw) {
    draw(static_cast<PlanCanvas&>(plain_));
    draw(static_cast<PlanCanvas&>(ink_));
  }

  void DrawLines() {
    const Pen pen = AnyPen();
    OnBoth([&](PlanCanvas& canvas) { canvas.UsePen(pen); });
    for (int i = Between(1, 4); i > 0; --i) {
      const ScreenPoint start = Place();
      const ScreenPoint end = Place();
      const int radius = Between(-30, 30);
      OnBoth([&](PlanCanvas& canvas) {
        canvas.Line({start, end});
        canvas.Circle(end, radius);
      });
    }
  }

  void DrawPoints() {
    const PointSymbol symbol{Between(0, 12), Between(0, GetParam().most_size),
                             Between(0, 3) == 0 ? Between(0, 100) : Between(9, 12),
                             LabelContent::kName, AnyPen()};
    const int text_color = Between(0, 5) == 0 ? kWhite : 0;
    OnBoth([&](PlanCanvas& canvas) {
      canvas.UsePointSymbol(symbol);
      canvas.UseTextColor(static_cast<std::uint32_t>(text_color));
    });
    for (int i = Between(1, 8); i > 0; --i) {
      const ScreenPoint at = Place();
      const char16_t* name = kNames[Between(0, static_cast<int>(std::size(kNames)) - 1)];
      OnBoth([&](PlanCanvas& canvas) {
        if (symbol.size > 0) canvas.Mark(at);
        if (symbol.label_height > 0) canvas.Label(at, name);
      });
    }
  }

  [[nodiscard]] testing::AssertionResult AreSame() const {
    const std::size_t bytes = plain_picture_.Stride() * static_cast<std::size_t>(GetParam().height);
    const std::uint8_t* plain = plain_picture_.Bits();
    const auto [first, second] = std::mismatch(plain, plain + bytes, ink_picture_.Bits());
    if (first == plain + bytes) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "the system has " << int{*first} << " and not "
                                       << int{*second} << " in byte " << first - plain;
  }

  [[nodiscard]] bool ShowsSomething() const {
    const std::size_t bytes = plain_picture_.Stride() * static_cast<std::size_t>(GetParam().height);
    const std::uint8_t* plain = plain_picture_.Bits();
    return std::any_of(plain, plain + bytes, [](std::uint8_t byte) { return byte != 0; });
  }

  std::mt19937 random_{GetParam().seed};
  OneBitCanvas plain_picture_{GetParam().width, GetParam().height};
  OneBitCanvas ink_picture_{GetParam().width, GetParam().height};
  GdiCanvas plain_{plain_picture_.Dc()};
  InkCanvas ink_{ink_picture_, GetParam().width, GetParam().height};
};

TEST_P(InkScenes, AreTheSystems) {
  for (int i = 0; i < GetParam().entities; ++i) {
    if (Between(0, 9) < 2) {
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
