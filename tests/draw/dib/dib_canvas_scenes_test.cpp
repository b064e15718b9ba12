// Crowded pictures of everything, drawn both ways.
#include <gtest/gtest.h>

#include "tests/draw/dib/twin_canvases.h"

namespace tavix::test {
namespace {

const char16_t* const kNames[] = {
    u"P1",
    u"P20931",
    u"T-7 (east)",
    u"测",
    u"基準点12",
    u"ｱｲｳ",
    u"a&b",
    u"&",
    u"&&",
    u"two\tparts",
    u"two\nlines",
    u"two\r\nlines",
    u"\x01",
    u" ",
    u"  in  between  ",
    u"~!@#$%^*()_+|`-=\\{}[]:\";'<>?,./",
    u"ABCDEFGHIJKLMNOPQRSTUVWXYZ",
    u"abcdefghijklmnopqrstuvwxyz",
    u"fjfjjJgypqWWMiil1||",
    u"a name that is a good deal longer than any other name of a point that is in use",
    u"0123456789",
    u"é",
    u"P1\x7F",
};

constexpr std::uint32_t kGrey = 0x00808080;  // of labels in the side view

struct Scene {
  unsigned seed;
  int width;
  int height;
  int entities;
  int most_size;
  int most_width;
};

class BitsScenes : public testing::TestWithParam<Scene> {
 protected:
  Pen AnyPen(int most_width) {
    const int width = dice_.Between(0, most_width);
    return {width, dice_.Color()};
  }

  void DrawLine(TwinCanvases& twins) {
    const Scene& scene = GetParam();
    twins.UsePen(AnyPen(scene.most_width));
    for (int i = dice_.Between(1, 4); i > 0; --i) {
      const ScreenPoint start = dice_.Place(scene.width, scene.height, 5);
      twins.Line({start, dice_.Place(scene.width, scene.height, 5)});
    }
  }

  void DrawPoints(TwinCanvases& twins) {
    const Scene& scene = GetParam();
    const PointSymbol symbol{dice_.Between(0, 12), dice_.Between(0, scene.most_size),
                             dice_.Between(0, 3) == 0 ? dice_.Between(1, 40) : dice_.Between(9, 12),
                             LabelContent::kName, AnyPen(scene.most_width)};
    twins.UsePointSymbol(symbol);
    twins.UseTextColor(dice_.Between(0, 3) == 0 ? kGrey : 0);
    for (int i = dice_.Between(1, 6); i > 0; --i) {
      const ScreenPoint at = dice_.Place(scene.width, scene.height, 20);
      if (symbol.size > 0) twins.Mark(at);
      twins.Label(at, kNames[dice_.Between(0, static_cast<int>(std::size(kNames)) - 1)]);
    }
  }

  Dice dice_{GetParam().seed};
};

TEST_P(BitsScenes, AreTheSystems) {
  const Scene& scene = GetParam();
  LearntDrawing learnt;
  TwinCanvases twins(scene.width, scene.height, learnt);
  for (int i = 0; i < scene.entities; ++i) {
    switch (dice_.Between(0, 9)) {
      case 0:
        twins.UsePen({1, dice_.Color()});
        twins.Circle(dice_.Place(scene.width, scene.height, 9), dice_.Between(-30, 30));
        break;
      case 1:
      case 2:
      case 3:
        DrawLine(twins);
        break;
      default:
        DrawPoints(twins);
    }
    if (i % 50 == 49) {
      ASSERT_TRUE(twins.AreSame()) << i;
    }
  }
  EXPECT_TRUE(twins.ShowSomething());
}

INSTANTIATE_TEST_SUITE_P(
    Dice, BitsScenes,
    testing::Values(Scene{1, 240, 320, 600, 40, 3}, Scene{2, 64, 48, 600, 40, 3},
                    Scene{3, 640, 480, 400, 16, 1}, Scene{4, 101, 1, 200, 12, 1},
                    Scene{5, 1, 77, 200, 12, 2}, Scene{6, 240, 320, 600, 90, 9},
                    Scene{7, 30, 30, 600, 10, 1}, Scene{8, 240, 320, 300, 100, 100}));

}  // namespace
}  // namespace tavix::test
