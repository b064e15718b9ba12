// The lines of a redraw, compared with looking up both ends of every line.
#include "store/drawn_lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "view/view_state.h"

namespace tavix {
namespace {

constexpr int kKeys = 300;

struct PlainLine {
  std::int16_t id;
  LineKeys keys;
  std::int16_t legend;
};

std::string Note(std::int16_t legend, const ScreenSegment& segment) {
  std::string note = std::to_string(legend);
  for (const int each : {segment.start.x, segment.start.y, segment.end.x, segment.end.y}) {
    note += ' ' + std::to_string(each);
  }
  return note;
}

// A list of points and lines between them in random use, and views of all kinds on it.
class LinesTwice {
 public:
  explicit LinesTwice(unsigned seed) : random_(seed) {}

  [[nodiscard]] unsigned Below(unsigned end) { return static_cast<unsigned>(random_() % end); }
  [[nodiscard]] double Between(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random_);
  }

  void EnterPoint() {
    const int key = SomeKey();
    points_.Add({key, 0, u"", PositionOf(key), 1});  // a key may be there already
  }
  void MovePoint() {
    if (points_.Find(SomeKey()) == 0) points_.SetCurCrd(SomePosition());  // anywhere
  }
  void RemovePoint() { points_.Remove(SomeKey()); }
  void ClearPoints() { points_.Clear(); }
  void EnterLine() {
    const int key = last_key_++ % kKeys;
    const int other = Below(100) == 0 ? SomeKey() : key + 1 + static_cast<int>(Below(3));
    if (Below(4) != 0) ++last_id_;  // of another program's lines several may have one id
    const PlainLine line{last_id_, LineKeys::Of(key, other), static_cast<std::int16_t>(Below(5))};
    lines_.Append(line.id, line.keys, line.legend);
    plain_.push_back(line);
  }
  void ChangeLine() {
    if (plain_.empty()) return;
    PlainLine& line = plain_[Below(static_cast<unsigned>(plain_.size()))];
    const auto legend = static_cast<std::int16_t>(Below(5));
    const bool changed = lines_.SetLegend(line.id, Swapped(line.keys), legend);
    EXPECT_EQ(IsOnlyOne(line), changed);
    if (changed) line.legend = legend;
  }
  void RemoveLine() {
    if (plain_.empty()) return;
    const auto line = plain_.begin() + Below(static_cast<unsigned>(plain_.size()));
    const bool removed = lines_.Remove(line->id, line->keys);
    EXPECT_EQ(IsOnlyOne(*line), removed);
    if (removed) plain_.erase(line);
    EXPECT_FALSE(lines_.Remove(static_cast<std::int16_t>(last_id_ + 1), LineKeys::Of(1, 2)));
  }
  void ClearLines() {
    lines_.Clear();
    plain_.clear();
  }

  // The segments that show, in their order; how many there were.
  std::size_t ExpectSameInSomeView() {
    CViewState view;
    view.SetScreenSize(240 + static_cast<int>(Below(900)), 180);
    EXPECT_EQ(0, view.SetAngle(static_cast<int>(Below(3) == 0 ? 90 * Below(4) : Below(360))));
    if (Below(3) == 0) view.SetRatio(Between(-3, 3));
    if (Below(40) == 0) view.SetRatio(std::numeric_limits<double>::quiet_NaN());
    view.SetCentre({Between(-1000, 1000), Between(-1000, 1000)});
    view.ZoomOut(std::exp(Between(-9, 3)));

    std::vector<std::string> expected;
    ScreenSegment clipped;
    for (const PlainLine& line : plain_) {
      GroundPoint start;
      GroundPoint end;
      if (points_.Locate(line.keys.a, &start) && points_.Locate(line.keys.b, &end) &&
          view.ClipGroundSegment(start, end, clipped)) {
        expected.push_back(Note(line.legend, clipped));
      }
    }
    std::vector<std::string> shown;
    lines_.ForEach(points_, view.OutOfView(),
                   [&](std::int16_t legend, GroundPoint start, GroundPoint end) {
                     if (view.ClipGroundSegment(start, end, clipped)) {
                       shown.push_back(Note(legend, clipped));
                     }
                   });
    EXPECT_EQ(expected, shown);
    return shown.size();
  }

 private:
  static LineKeys Swapped(LineKeys keys) { return {keys.b, keys.a}; }
  [[nodiscard]] bool IsOnlyOne(const PlainLine& line) const {
    return std::ranges::count_if(plain_, [&](const PlainLine& other) {
             return other.id == line.id && other.keys.Smaller() == line.keys.Smaller() &&
                    other.keys.Larger() == line.keys.Larger();
           }) == 1;
  }

  int SomeKey() { return static_cast<int>(Below(kKeys)); }
  double SomeCoordinate() {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const double odd[] = {kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN(),
                          1e300,     -1e12,      4e6};
    return Below(400) == 0 ? odd[Below(6)] : Between(-1000, 1000);
  }
  // Points with neighbouring keys are neighbours, so that lines in a row are, too.
  GroundPoint PositionOf(int key) {
    return {2000.0 * key / kKeys - 1000 + Between(-20, 20), Between(-20, 20)};
  }
  GroundPoint SomePosition() {
    const double north = SomeCoordinate();
    return {north, SomeCoordinate()};
  }

  std::mt19937 random_;
  CPntList points_;
  DrawnLines lines_;
  std::vector<PlainLine> plain_;
  int last_key_ = 0;
  std::int16_t last_id_ = 0;
};

TEST(DrawnLines, AreThoseWhoseEndsAreFoundOneByOne) {
  std::size_t shown = 0;
  for (const unsigned seed : {1U, 2U, 3U, 4U}) {
    SCOPED_TRACE(seed);
    LinesTwice lines(seed);
    for (int i = 0; i < 250; ++i) lines.EnterPoint();
    for (int i = 0; i < 400; ++i) lines.EnterLine();
    for (int step = 0; step < 500 && !testing::Test::HasFailure(); ++step) {
      for (unsigned changes = lines.Below(3); changes > 0; --changes) {
        const unsigned choice = lines.Below(100);
        if (choice < 30) lines.EnterPoint();
        if (choice >= 30 && choice < 55) lines.MovePoint();
        if (choice >= 55 && choice < 75) lines.RemovePoint();
        if (choice >= 75 && choice < 88) lines.EnterLine();
        if (choice >= 88 && choice < 93) lines.ChangeLine();
        if (choice >= 93 && choice < 98) lines.RemoveLine();
        if (choice == 98 && lines.Below(10) == 0) lines.ClearPoints();
        if (choice == 99 && lines.Below(10) == 0) lines.ClearLines();
      }
      shown += lines.ExpectSameInSomeView();
    }
  }
  EXPECT_LT(20000U, shown);
}

// A row of lines out of view costs one look at its extents, a line one at its ends.
TEST(DrawnLines, OutOfViewAreLeftOut) {
  CPntList points;
  DrawnLines lines;
  for (std::int16_t key = 1; key <= 1000; ++key) {
    points.Add({key, 0, u"", {key * 10.0, 0.0}, 1});
    if (key > 1) lines.Append(key, {static_cast<std::int16_t>(key - 1), key}, 101);
  }
  CViewState view;
  view.SetScreenSize(100, 100);
  view.SetCentre({5000, 0});
  int visited = 0;
  lines.ForEach(points, view.OutOfView(),
                [&](std::int16_t, GroundPoint, GroundPoint) { ++visited; });
  EXPECT_LE(10, visited);
  EXPECT_GE(14, visited);
}

}  // namespace
}  // namespace tavix
