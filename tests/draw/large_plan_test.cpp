// Zoomed views of a large survey in use: what redraws keep from one to the next must not show. Each
// picture is compared with that of a new instance, which has kept nothing.
#include <tavix/tavix.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"

namespace tavix::test {
namespace {

constexpr int kPoints = 70000;
constexpr int kLines = 4000;
constexpr int kLineKeys = 3000;  // the first points; records have room for 16 bits of a key
constexpr double kSide = 5000.0;

struct View {
  double side;
  Ground middle;
  int angle;
};

constexpr View kViews[] = {
    {40, {2500, 2500}, 15}, {300, {900, 4100}, 231}, {kSide, {2500, 2500}, 0}};

class LargePlan : public PlotTest {
 protected:
  struct PlanPoint {
    int key;
    Ground at;
    short legend;
  };
  using Line = std::array<int, 2>;

  LargePlan() {
    for (int key = 1; key <= kPoints; ++key) points_.push_back({key, SomePlace(), SomeLegend()});
    while (lines_.size() < kLines) {
      const Line line{SomeKey(), SomeKey()};
      if (line[0] < line[1] && !Has(line)) lines_.push_back(line);
    }
  }

  // A new instance with all of it.
  void EnterAll() {
    MakePlot(240, 180);
    AddLegend({2, 10, 10, 0, 1, RGB(0, 0, 255)});
    AddLegend({10, 60, 0, 0, 1, RGB(0, 160, 0)});
    for (const PlanPoint& point : points_) {
      Enter(point.key, point.at, point.legend, L"P" + std::to_wstring(point.key % 1000));
    }
    for (const Line& line : lines_) EXPECT_EQ(0, Tavix_EntLin(line[0], line[1]));
  }

  void ChangeSome() {
    for (int i = 0; i < 40; ++i) {
      PlanPoint& moved = points_[random_() % points_.size()];
      moved.at = SomePlace();
      EXPECT_EQ(0, Tavix_ChgPntCrd(moved.key, moved.at.x, moved.at.y));
      const auto gone = points_.begin() + static_cast<std::ptrdiff_t>(random_() % points_.size());
      EXPECT_EQ(0, Tavix_DelEntPnt(gone->key));
      const PlanPoint again{gone->key, SomePlace(), SomeLegend()};
      points_.erase(gone);
      if (i % 3 == 0) continue;
      points_.push_back(again);
      Enter(again.key, again.at, again.legend, L"P" + std::to_wstring(again.key % 1000));
    }
    const auto line = lines_.begin() + static_cast<std::ptrdiff_t>(random_() % lines_.size());
    EXPECT_EQ(0, Tavix_DelEntLin((*line)[0], (*line)[1]));
    lines_.erase(line);
    const Line other{kLineKeys + 1, SomeKey()};
    if (Has(other)) return;
    lines_.push_back(other);
    EXPECT_EQ(0, Tavix_EntLin(other[0], other[1]));
  }

  static Picture PictureOf(const View& view) {
    Tavix_SetAng(0);
    const double half = view.side / 2;
    Tavix_Zom(view.middle.x - half, view.middle.y - half, view.middle.x + half,
              view.middle.y + half);
    Tavix_SetAng(view.angle);
    return Redrawn();
  }

 private:
  double SomeCoordinate() { return std::uniform_real_distribution<double>(0.0, kSide)(random_); }
  Ground SomePlace() {
    const double x = SomeCoordinate();
    return {x, SomeCoordinate()};
  }
  // A small mark with a label, a large mark, or a number that no legend entry has.
  short SomeLegend() {
    const std::array<short, 8> numbers{201, 201, 201, 201, 202, 3, 999, -1};
    return numbers[random_() % numbers.size()];
  }
  int SomeKey() { return 1 + static_cast<int>(random_() % kLineKeys); }
  [[nodiscard]] bool Has(const Line& line) const {
    return std::ranges::any_of(
        lines_, [&](const Line& other) { return std::ranges::is_permutation(other, line); });
  }

  std::mt19937 random_{8};
  std::vector<PlanPoint> points_;  // in the order of drawing
  std::vector<Line> lines_;
};

TEST_F(LargePlan, IsDrawnAsThatOfANewInstance) {
  EnterAll();
  for (int round = 0; round < 8; ++round) {
    for (const View& view : kViews) PictureOf(view);
    ChangeSome();
  }
  std::vector<Picture> actual;
  for (const View& view : kViews) actual.push_back(PictureOf(view));
  for (std::size_t i = 0; i < actual.size(); ++i) {
    ASSERT_EQ(0, Tavix_Del());
    ASSERT_NO_FATAL_FAILURE(EnterAll());
    EXPECT_TRUE(SamePicture(PictureOf(kViews[i]), actual[i])) << "view " << i;
  }
}

}  // namespace
}  // namespace tavix::test
