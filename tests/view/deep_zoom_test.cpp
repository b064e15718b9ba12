// The deepest zoom far from the origin: at eight digits before the point, what is a millimetre
// apart on the ground is a hundred pixels apart on the screen, and moves as one. Told by the
// pixels.
#include <tavix/tavix.h>

#include <cmath>
#include <optional>

#include "tests/support/interaction_test.h"

namespace tavix::test {
namespace {

constexpr double kMillimetre = 0.001;
constexpr double kPixels = 100.0;      // that it takes on the screen
constexpr double kPixel = 1.0 + 1e-9;  // what truncation takes, and the expectation's rounding
constexpr Ground kPlace{6783000.1234, 21530000.5678};
// Colours that nothing else has, the north arrow of a turned view neither.
constexpr std::uint32_t kRed = 0xC80A64;
constexpr std::uint32_t kBlue = 0x0A64C8;

struct OnScreen {
  double x;
  double y;
};

// The middle of all pixels of a colour; nothing where there is none.
std::optional<OnScreen> MiddleOf(const Picture& picture, std::uint32_t color) {
  double x_sum = 0.0;
  double y_sum = 0.0;
  int count = 0;
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      if (picture.At(x, y) != color) continue;
      x_sum += x;
      y_sum += y;
      ++count;
    }
  }
  if (count == 0) return std::nullopt;
  return OnScreen{x_sum / count, y_sum / count};
}

// How a way on the ground lies on the screen of a view turned clockwise.
OnScreen Turned(Ground way, int degrees) {
  const double angle = degrees * 3.141592653589793 / 180;
  const double x = way.y / kMillimetre * kPixels;
  const double y = -way.x / kMillimetre * kPixels;
  return {x * std::cos(angle) - y * std::sin(angle), x * std::sin(angle) + y * std::cos(angle)};
}

class DeepZoom : public PlotTest {
 protected:
  void SetUp() override {
    MakePlot(500, 400);
    red_ = AddLegend({4, 9, 0, 0, 1, RGB(0xC8, 0x0A, 0x64)});
    blue_ = AddLegend({4, 9, 0, 0, 1, RGB(0x0A, 0x64, 0xC8)});
  }

  // Two points a way apart, in a turned view about the middle between them.
  void Show(Ground way, int degrees) {
    ASSERT_EQ(0, Enter(1, kPlace, red_));
    ASSERT_EQ(0, Enter(2, {kPlace.x + way.x, kPlace.y + way.y}, blue_));
    Tavix_SetAng(degrees);
    constexpr double kBox = 1e-5;  // smaller than the deepest zoom shows
    centre_ = {kPlace.x + way.x / 2, kPlace.y + way.y / 2};
    ASSERT_EQ(0, Tavix_Zom(centre_.x - kBox, centre_.y - kBox, centre_.x + kBox, centre_.y + kBox));
    Look();
  }

  void PanBy(Ground way) {
    centre_ = {centre_.x + way.x, centre_.y + way.y};
    ASSERT_EQ(0, Tavix_Pan(centre_.x, centre_.y));
    Look();
  }

  void ExpectApart(Ground way, int degrees) const {
    const OnScreen expected = Turned(way, degrees);
    EXPECT_NEAR(expected.x, blue_at_.x - red_at_.x, kPixel);
    EXPECT_NEAR(expected.y, blue_at_.y - red_at_.y, kPixel);
  }

  OnScreen red_at_{};
  OnScreen blue_at_{};

 private:
  void Look() {
    const Picture picture = Shown();
    const std::optional<OnScreen> red = MiddleOf(picture, kRed);
    const std::optional<OnScreen> blue = MiddleOf(picture, kBlue);
    ASSERT_TRUE(red && blue);
    red_at_ = *red;
    blue_at_ = *blue;
  }

  short red_ = 0;
  short blue_ = 0;
  Ground centre_{};
};

constexpr Ground kWays[] = {
    {kMillimetre, 0.0}, {0.0, kMillimetre}, {0.0006, -0.0008},  // a millimetre across
};

TEST_F(DeepZoom, PointsAMillimetreApartAreAHundredPixelsApart) {
  for (const int degrees : {0, 30, 45, 90, 133, 180, 270, 359}) {
    for (const Ground way : kWays) {
      SCOPED_TRACE(testing::Message() << degrees << " degrees, " << way.x << ' ' << way.y);
      ASSERT_NO_FATAL_FAILURE(Show(way, degrees));
      ExpectApart(way, degrees);
    }
  }
}

TEST_F(DeepZoom, PanningByAMillimetreMovesBothByAHundredPixels) {
  constexpr Ground kWay{0.0, kMillimetre};
  for (const int degrees : {0, 37, 90, 200}) {
    for (const Ground pan : {Ground{kMillimetre, 0.0}, Ground{-kMillimetre, 0.0},
                             Ground{0.0, kMillimetre}, Ground{0.0, -kMillimetre}}) {
      SCOPED_TRACE(testing::Message() << degrees << " degrees, " << pan.x << ' ' << pan.y);
      ASSERT_NO_FATAL_FAILURE(Show(kWay, degrees));
      const OnScreen red = red_at_;
      const OnScreen blue = blue_at_;
      ASSERT_NO_FATAL_FAILURE(PanBy(pan));
      const OnScreen moved = Turned({-pan.x, -pan.y}, degrees);
      EXPECT_NEAR(moved.x, red_at_.x - red.x, kPixel);
      EXPECT_NEAR(moved.y, red_at_.y - red.y, kPixel);
      EXPECT_NEAR(moved.x, blue_at_.x - blue.x, kPixel);
      EXPECT_NEAR(moved.y, blue_at_.y - blue.y, kPixel);
      ExpectApart(kWay, degrees);
    }
  }
}

TEST_F(DeepZoom, SmallStepsNeitherJumpNorAddUp) {
  constexpr Ground kWay{0.0, kMillimetre};
  constexpr Ground kStep{0.00003, 0.00004};  // five pixels
  for (const int degrees : {0, 37}) {
    ASSERT_NO_FATAL_FAILURE(Show(kWay, degrees));
    const OnScreen begin = red_at_;
    for (int step = 1; step <= 30; ++step) {
      SCOPED_TRACE(testing::Message() << degrees << " degrees, step " << step);
      ASSERT_NO_FATAL_FAILURE(PanBy(kStep));
      const OnScreen moved = Turned({-kStep.x * step, -kStep.y * step}, degrees);
      EXPECT_NEAR(moved.x, red_at_.x - begin.x, kPixel);
      EXPECT_NEAR(moved.y, red_at_.y - begin.y, kPixel);
      ExpectApart(kWay, degrees);
    }
  }
}

}  // namespace
}  // namespace tavix::test
