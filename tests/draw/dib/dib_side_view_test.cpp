// The side view drawn both ways, with points of every kind before and behind its front face.
#include <gtest/gtest.h>

#include <string>

#include "draw/side_view.h"
#include "tests/draw/dib/canvas_pair.h"

namespace tavix::test {
namespace {

constexpr int kWidth = 320;
constexpr int kHeight = 240;

class DibSideView : public testing::TestWithParam<unsigned> {
 protected:
  DibSideView() {
    view_.SetScreenSize(kWidth, kHeight);
    view_.SetRatio(1.0);
  }

  std::int16_t AddLegend() {
    std::int16_t number = 0;
    legend_.Add(true,
                {dice_.Between(0, 12), dice_.Between(0, 20), dice_.Between(0, 14),
                 dice_.Between(0, 1), dice_.Between(0, 3), dice_.Color()},
                &number);
    return number;
  }

  Dice dice_{GetParam()};
  CViewState view_;
  LegendTable legend_;
  CPnt3List points_;
};

TEST_P(DibSideView, MatchesGdi) {
  std::int16_t legend = AddLegend();
  for (int key = 1; key <= 600; ++key) {
    if (dice_.Between(0, 9) == 0) legend = AddLegend();
    const ScreenPoint plan = dice_.Place(kWidth, kHeight, 15);
    const std::u16string name = key % 7 == 0 ? u"点" : u"Point";
    points_.Add({key, dice_.Between(-5, 999), name, view_.ScreenToGround(plan),
                 static_cast<double>(dice_.Between(-60, 60)), legend});
  }
  RasterCache cache;
  CanvasPair pair(kWidth, kHeight, cache);
  DrawSideView(pair, {view_, legend_, points_, kWidth, kHeight, 0.0});
  EXPECT_TRUE(pair.AreSame());
  EXPECT_TRUE(pair.ShowSomething());
}

INSTANTIATE_TEST_SUITE_P(Dice, DibSideView, testing::Values(1U, 2U, 3U, 4U));

}  // namespace
}  // namespace tavix::test
