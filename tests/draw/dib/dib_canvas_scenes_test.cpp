// Crowded pictures of everything, drawn both ways.
#include <gtest/gtest.h>

#include "tests/draw/dib/canvas_pair.h"

namespace tavix::test {
namespace {

constexpr std::uint32_t kGrey = 0x00808080;  // of labels in the side view

class DibScenes : public testing::TestWithParam<Scene> {
 protected:
  void DrawLine(CanvasPair& pair) {
    const Scene& scene = GetParam();
    pair.UsePen(dice_.AnyPen(scene.most_width));
    for (int i = dice_.Between(1, 4); i > 0; --i) {
      const ScreenPoint start = dice_.Place(scene.width, scene.height, 5);
      pair.Line({start, dice_.Place(scene.width, scene.height, 5)});
    }
  }

  void DrawPoints(CanvasPair& pair) {
    const Scene& scene = GetParam();
    const PointSymbol symbol{dice_.Between(0, 12), dice_.Between(0, scene.most_size),
                             dice_.Between(0, 3) == 0 ? dice_.Between(1, 40) : dice_.Between(9, 12),
                             LabelContent::kName, dice_.AnyPen(scene.most_width)};
    pair.UsePointSymbol(symbol);
    pair.UseTextColor(dice_.Between(0, 3) == 0 ? kGrey : 0);
    for (int i = dice_.Between(1, 6); i > 0; --i) {
      const ScreenPoint at = dice_.Place(scene.width, scene.height, 20);
      if (symbol.size > 0) pair.Mark(at);
      pair.Label(at, dice_.Label());
    }
  }

  Dice dice_{GetParam().seed};
};

TEST_P(DibScenes, MatchGdi) {
  const Scene& scene = GetParam();
  RasterCache cache;
  CanvasPair pair(scene.width, scene.height, cache);
  for (int i = 0; i < scene.entities; ++i) {
    switch (dice_.Between(0, 9)) {
      case 0:
        pair.UsePen({1, dice_.Color()});
        pair.Circle(dice_.Place(scene.width, scene.height, 9), dice_.Between(-30, 30));
        break;
      case 1:
      case 2:
      case 3:
        DrawLine(pair);
        break;
      default:
        DrawPoints(pair);
    }
    if (i % 50 == 49) {
      ASSERT_TRUE(pair.AreSame()) << i;
    }
  }
  EXPECT_TRUE(pair.ShowSomething());
}

INSTANTIATE_TEST_SUITE_P(
    Dice, DibScenes,
    testing::Values(Scene{1, 240, 320, 600, 40, 3}, Scene{2, 64, 48, 600, 40, 3},
                    Scene{3, 640, 480, 400, 16, 1}, Scene{4, 101, 1, 200, 12, 1},
                    Scene{5, 1, 77, 200, 12, 2}, Scene{6, 240, 320, 600, 90, 9},
                    Scene{7, 30, 30, 600, 10, 1}, Scene{8, 240, 320, 300, 100, 100}));

}  // namespace
}  // namespace tavix::test
