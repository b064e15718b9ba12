#include "host/plot/side_fit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace fieldhost {
namespace {

using Points = std::vector<HighPoint>;

constexpr SideProjection kProjection = {0.9, 0.7, 0.8660254037844387, 0.5};

struct Pixel {
  double x = 0.0;
  double y = 0.0;  // down
};

// What the library makes of a zoom to a square: scale, plan pixels, side view.
class Picture {
 public:
  Picture(const GroundSquare& square, const SideWindow& window) : square_(square), window_(window) {
    const double angle = window.degrees * std::numbers::pi / 180;
    c_ = std::cos(angle);
    s_ = std::sin(angle);
    const double turned = square.side * (std::fabs(c_) + std::fabs(s_));
    scale_ = std::min(window.width, window.height) / turned;
  }

  [[nodiscard]] double Scale() const { return scale_; }

  [[nodiscard]] Pixel Plan(const HighPoint& point) const {
    const double east = point.east - square_.east;
    const double north = point.north - square_.north;
    return {window_.width / 2.0 + scale_ * (c_ * east + s_ * north),
            window_.height / 2.0 - scale_ * (c_ * north - s_ * east)};
  }

  [[nodiscard]] Pixel Foot(const HighPoint& point) const {
    const Pixel plan = Plan(point);
    const double a = (window_.height - plan.y) * kProjection.up;
    const double b = plan.x * kProjection.right;
    return {(a + b) * kProjection.across,
            window_.height - ((a - b) * kProjection.rise + window_.height * 0.5)};
  }

  [[nodiscard]] Pixel Mark(const HighPoint& point) const {
    const Pixel foot = Foot(point);
    return {foot.x, foot.y - scale_ * (point.height - window_.height_base)};
  }

 private:
  GroundSquare square_;
  SideWindow window_;
  double c_ = 1.0;
  double s_ = 0.0;
  double scale_ = 1.0;
};

const Points kSite = {{-35171, 12306, 13},
                      {-35076, 12342, 20},
                      {-35128, 12284, 14.5},
                      {-35134, 12349, 18},
                      {-35148, 12285, 16}};
const Points kRoad = {{0, 0, 100}, {10, 400, 101}, {-5, 900, 103}};
const Points kTower = {{50, 50, 0}, {52, 51, 30}};

TEST(SideFit, BringsAllPointsIntoTheWindow) {
  constexpr double kRounding = 1e-6;
  for (const Points& points : {kSite, kRoad, kTower}) {
    double lowest = points[0].height;
    for (const HighPoint& point : points) lowest = std::min(lowest, point.height);
    for (const auto& [width, height] : {std::pair{216, 260}, {460, 555}, {900, 300}, {300, 300}}) {
      for (const int degrees : {0, 30, 90, 200, 315}) {
        const SideWindow window{width, height, degrees, std::floor(lowest)};
        const std::optional<GroundSquare> square = FitSideView(points, window, kProjection);
        ASSERT_TRUE(square);
        const Picture picture(*square, window);
        double slack = width;
        for (const HighPoint& point : points) {
          const Pixel plan = picture.Plan(point);
          const Pixel foot = picture.Foot(point);
          const Pixel mark = picture.Mark(point);
          for (const double room : {plan.x, width - plan.x, plan.y, height - plan.y, width - foot.x,
                                    height - foot.y, mark.y}) {
            EXPECT_GE(room, 20 - kRounding) << width << 'x' << height << ' ' << degrees;
          }
          slack =
              std::min({slack, width - plan.x, plan.y, width - foot.x, height - foot.y, mark.y});
        }
        EXPECT_NEAR(20, slack, kRounding) << "a larger scale would fit too: " << degrees;
      }
    }
  }
}

TEST(SideFit, HasNothingToZoomToWithoutAnExtentOrRoom) {
  const SideWindow window{460, 555, 0, 0};
  const struct {
    Points points;
    SideWindow window;
  } rows[] = {
      {{}, window},
      {{{5, 6, 0}}, window},
      {{{5, 6, 7.5}}, window},
      {{{5, 6, 0}, {5, 6, 0}}, window},
      {kSite, {40, 555, 0, 13}},
      {kSite, {460, 30, 0, 13}},
      {kSite, {0, 0, 0, 13}},
  };
  for (const auto& row : rows) EXPECT_FALSE(FitSideView(row.points, row.window, kProjection));
}

}  // namespace
}  // namespace fieldhost
