#include "view/clip.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>
#include <ostream>
#include <random>
#include <utility>
#include <vector>

#include "view/view_state.h"

namespace tavix {

void PrintTo(ScreenPoint point, std::ostream* out) {
  *out << '(' << point.x << ", " << point.y << ')';
}

namespace {

ScreenQuad QuadOf(int width, int height) {
  return {{{0, 0}, {width, 0}, {width, height}, {0, height}}};
}

// The rules of the crossing, written down once more with plain integers: good for every input whose
// products stay in range.
std::optional<ScreenPoint> PlainCrossing(const ScreenSegment& edge, const ScreenSegment& segment) {
  const std::int64_t dx_a = edge.end.x - edge.start.x;
  const std::int64_t dy_a = edge.end.y - edge.start.y;
  const std::int64_t dx_b = segment.end.x - segment.start.x;
  const std::int64_t dy_b = segment.end.y - segment.start.y;
  if (dy_a * dx_b == dy_b * dx_a) return std::nullopt;
  const std::int64_t den = dx_b * dy_a - dy_b * dx_a;
  const std::int64_t sign = den < 1 ? -1 : 1;
  const std::int64_t d = sign * den;
  const std::int64_t dx_0 = edge.start.x - segment.start.x;
  const std::int64_t dy_0 = edge.start.y - segment.start.y;
  const std::int64_t t = sign * (dx_0 * dy_b - dy_0 * dx_b);
  const std::int64_t u = sign * (dx_0 * dy_a - dy_0 * dx_a);
  if (t < 0 || t > d || u < 0 || u > d) return std::nullopt;
  return ScreenPoint{
      edge.start.x + static_cast<int>(static_cast<double>(dx_a * t) / static_cast<double>(d)),
      edge.start.y + static_cast<int>(static_cast<double>(dy_a * t) / static_cast<double>(d))};
}

std::vector<ScreenPoint> PlainCrossings(const ScreenQuad& quad, const ScreenSegment& segment) {
  std::vector<ScreenPoint> points;
  for (std::size_t i = 0; i < 4; ++i) {
    const auto point = PlainCrossing({quad[i], quad[(i + 1) % 4]}, segment);
    if (point && std::find(points.begin(), points.end(), *point) == points.end()) {
      points.push_back(*point);
    }
  }
  return points;
}

std::optional<ScreenSegment> PlainClip(const ScreenQuad& quad, ScreenSegment segment) {
  const bool start_inside = PointInQuad(quad, segment.start);
  const bool end_inside = PointInQuad(quad, segment.end);
  if (start_inside && end_inside) return segment;
  const std::vector<ScreenPoint> points = PlainCrossings(quad, segment);
  if (points.size() == 2) return ScreenSegment{points[0], points[1]};
  if (points.size() != 1) return std::nullopt;
  if (start_inside) {
    if (points[0] == segment.start) return std::nullopt;
    return ScreenSegment{segment.start, points[0]};
  }
  if (!end_inside || points[0] == segment.end) return std::nullopt;
  return ScreenSegment{points[0], segment.end};
}

void ExpectClipsAsPlainly(const ScreenQuad& quad, const ScreenSegment& segment) {
  ScreenSegment clipped = segment;
  const bool kept = ClipToQuad(quad, clipped);
  const auto expected = PlainClip(quad, segment);
  ASSERT_EQ(kept, expected.has_value())
      << segment.start.x << ',' << segment.start.y << ' ' << segment.end.x << ',' << segment.end.y;
  if (!expected) return;
  ASSERT_EQ(clipped.start, expected->start);
  ASSERT_EQ(clipped.end, expected->end);
}

TEST(PointInQuad, BordersAreInside) {
  const ScreenQuad quad = QuadOf(240, 180);
  const struct {
    ScreenPoint point;
    bool inside;
  } rows[] = {{{0, 0}, true},      {{240, 0}, true},    {{240, 180}, true}, {{0, 180}, true},
              {{120, 90}, true},   {{-1, 90}, false},   {{241, 90}, false}, {{120, -1}, false},
              {{120, 181}, false}, {{241, 181}, false}, {{-1, -1}, false}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.inside, PointInQuad(quad, row.point)) << row.point.x << ' ' << row.point.y;
  }
}

struct ClipRow {
  const char* what;
  ScreenSegment given;
  std::optional<ScreenSegment> clipped;
};

TEST(ClipToQuad, GivesTheUsualEnds) {
  constexpr auto kRefused = std::nullopt;
  const ScreenQuad quad = QuadOf(240, 180);
  const ClipRow rows[] = {
      {"inside", {{10, 20}, {230, 170}}, ScreenSegment{{10, 20}, {230, 170}}},
      {"corner to corner", {{240, 180}, {0, 0}}, ScreenSegment{{240, 180}, {0, 0}}},
      {"a single pixel inside", {{7, 7}, {7, 7}}, ScreenSegment{{7, 7}, {7, 7}}},
      // Two borders: their order and not the direction decides.
      {"left to right", {{-10, 90}, {250, 90}}, ScreenSegment{{240, 90}, {0, 90}}},
      {"right to left", {{250, 90}, {-10, 90}}, ScreenSegment{{240, 90}, {0, 90}}},
      {"top to bottom", {{120, -10}, {120, 190}}, ScreenSegment{{120, 0}, {120, 180}}},
      {"bottom to top", {{120, 190}, {120, -10}}, ScreenSegment{{120, 0}, {120, 180}}},
      {"left to top", {{-20, 40}, {40, -20}}, ScreenSegment{{20, 0}, {0, 20}}},
      {"right to bottom", {{260, 140}, {200, 200}}, ScreenSegment{{240, 160}, {220, 180}}},
      {"along the top border", {{-10, 0}, {250, 0}}, ScreenSegment{{240, 0}, {0, 0}}},
      {"along the left border", {{0, 200}, {0, -20}}, ScreenSegment{{0, 0}, {0, 180}}},
      {"from the border through", {{0, 90}, {300, 90}}, ScreenSegment{{240, 90}, {0, 90}}},
      // One border: the end outside moves, the direction stays.
      {"outward", {{120, 90}, {300, 90}}, ScreenSegment{{120, 90}, {240, 90}}},
      {"inward", {{300, 90}, {120, 90}}, ScreenSegment{{240, 90}, {120, 90}}},
      {"outward at a corner", {{220, 160}, {260, 200}}, ScreenSegment{{220, 160}, {240, 180}}},
      {"inward at a corner", {{-20, -20}, {30, 30}}, ScreenSegment{{0, 0}, {30, 30}}},
      // The only crossing is the inside end.
      {"outward from the border", {{240, 90}, {300, 90}}, kRefused},
      {"inward to the border", {{120, -50}, {120, 0}}, kRefused},
      {"outward from a corner", {{0, 0}, {-5, -9}}, kRefused},
      // Nothing inside.
      {"past a corner", {{-10, 5}, {5, -10}}, kRefused},
      {"touching a corner", {{-10, 10}, {10, -10}}, kRefused},
      {"left", {{-10, 10}, {-10, 100}}, kRefused},
      {"a single pixel outside", {{-3, 7}, {-3, 7}}, kRefused},
  };
  for (const ClipRow& row : rows) {
    ScreenSegment clipped = row.given;
    ASSERT_EQ(row.clipped.has_value(), ClipToQuad(quad, clipped)) << row.what;
    if (!row.clipped) continue;
    EXPECT_EQ(row.clipped->start, clipped.start) << row.what;
    EXPECT_EQ(row.clipped->end, clipped.end) << row.what;
  }
}

TEST(ClipToQuad, ThroughTwoCornersCrossesFourBordersInTwoPoints) {
  ScreenSegment diagonal{{-10, -10}, {110, 110}};
  ASSERT_TRUE(ClipToQuad(QuadOf(100, 100), diagonal));
  EXPECT_EQ((ScreenPoint{0, 0}), diagonal.start);
  EXPECT_EQ((ScreenPoint{100, 100}), diagonal.end);
  ScreenSegment one_corner{{-50, -100}, {150, 300}};  // corner (0, 0), then the bottom at x = 50
  ASSERT_TRUE(ClipToQuad(QuadOf(100, 100), one_corner));
  EXPECT_EQ((ScreenPoint{0, 0}), one_corner.start);
  EXPECT_EQ((ScreenPoint{50, 100}), one_corner.end);
}

TEST(ClipToQuad, EverySegmentAroundSmallRectanglesFollowsThePlainRules) {
  std::size_t most_crossings = 0;
  for (const auto& [width, height] : {std::pair{4, 3}, {1, 5}, {3, 0}, {0, 0}}) {
    const ScreenQuad quad = QuadOf(width, height);
    constexpr int kReach = 3;
    for (int x1 = -kReach; x1 <= width + kReach; ++x1) {
      for (int y1 = -kReach; y1 <= height + kReach; ++y1) {
        for (int x2 = -kReach; x2 <= width + kReach; ++x2) {
          for (int y2 = -kReach; y2 <= height + kReach; ++y2) {
            const ScreenSegment segment{{x1, y1}, {x2, y2}};
            ExpectClipsAsPlainly(quad, segment);
            most_crossings = std::max(most_crossings, PlainCrossings(quad, segment).size());
          }
        }
      }
    }
  }
  EXPECT_EQ(2U, most_crossings);  // a corner is one point, however many borders meet there
}

TEST(ClipToQuad, RandomSegmentsFollowThePlainRules) {
  std::mt19937 random(20);
  const auto in = [&](int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(random);
  };
  for (int i = 0; i < 50000; ++i) {
    const ScreenQuad quad = QuadOf(in(1, 1000), in(1, 1000));
    ExpectClipsAsPlainly(quad,
                         {{in(-9000, 9000), in(-9000, 9000)}, {in(-900, 1900), in(-900, 1900)}});
  }
}

TEST(IntersectSegments, ParallelSegmentsDoNotCross) {
  const ScreenSegment edge{{0, 0}, {100, 0}};
  const ScreenSegment rows[] = {{{0, 10}, {100, 10}},   // apart
                                {{20, 0}, {80, 0}},     // on the edge
                                {{-20, 0}, {120, 0}},   // over both ends
                                {{100, 0}, {200, 0}},   // end to end
                                {{50, 0}, {50, 0}},     // a point on the edge
                                {{50, 10}, {50, 10}}};  // a point beside it
  for (const ScreenSegment& segment : rows) {
    ScreenPoint crossing{-7, -7};
    EXPECT_FALSE(IntersectSegments(edge, segment, crossing)) << segment.start.x;
    EXPECT_EQ((ScreenPoint{-7, -7}), crossing);
  }
  ScreenPoint crossing;
  EXPECT_FALSE(IntersectSegments({{50, 0}, {50, 0}}, {{0, -9}, {100, 9}}, crossing));
}

TEST(IntersectSegments, EndsCount) {
  const ScreenSegment edge{{0, 0}, {100, 0}};
  const struct {
    ScreenSegment segment;
    std::optional<ScreenPoint> crossing;
  } rows[] = {
      {{{0, 0}, {0, 50}}, ScreenPoint{0, 0}},    {{{100, -50}, {100, 0}}, ScreenPoint{100, 0}},
      {{{0, -50}, {0, 50}}, ScreenPoint{0, 0}},  {{{100, 50}, {100, -50}}, ScreenPoint{100, 0}},
      {{{30, 50}, {30, 0}}, ScreenPoint{30, 0}}, {{{-1, -50}, {-1, 50}}, std::nullopt},
      {{{101, -50}, {101, 50}}, std::nullopt},   {{{30, 50}, {30, 1}}, std::nullopt},
      {{{30, -1}, {30, -50}}, std::nullopt}};
  for (const auto& row : rows) {
    ScreenPoint crossing;
    ASSERT_EQ(row.crossing.has_value(), IntersectSegments(edge, row.segment, crossing))
        << row.segment.start.x;
    if (row.crossing) {
      EXPECT_EQ(*row.crossing, crossing);
    }
  }
}

TEST(IntersectSegments, TruncatesTheWayAlongTheEdgeAndNotThePosition) {
  const ScreenSegment segment{{0, -1}, {1, 1}};  // meets y = 0 at x = 0.5
  ScreenPoint crossing;
  ASSERT_TRUE(IntersectSegments({{0, 0}, {10, 0}}, segment, crossing));
  EXPECT_EQ((ScreenPoint{0, 0}), crossing);
  ASSERT_TRUE(IntersectSegments({{10, 0}, {0, 0}}, segment, crossing));
  EXPECT_EQ((ScreenPoint{1, 0}), crossing);  // 9.5 along: 9
}

#if defined(__SIZEOF_INT128__)
__extension__ using Wide = __int128;

// The crossing without any rounding: `exact` pixels along the edge, as a fraction.
struct WideCrossing {
  bool crosses;
  Wide t;
  Wide d;
};

WideCrossing CrossWide(const ScreenSegment& edge, const ScreenSegment& segment) {
  const Wide dx_a = Wide{edge.end.x} - edge.start.x;
  const Wide dy_a = Wide{edge.end.y} - edge.start.y;
  const Wide dx_b = Wide{segment.end.x} - segment.start.x;
  const Wide dy_b = Wide{segment.end.y} - segment.start.y;
  const Wide den = dx_b * dy_a - dy_b * dx_a;
  if (den == 0) return {false, 0, 1};
  const Wide sign = den < 1 ? -1 : 1;
  const Wide dx_0 = Wide{edge.start.x} - segment.start.x;
  const Wide dy_0 = Wide{edge.start.y} - segment.start.y;
  const Wide d = sign * den;
  const Wide t = sign * (dx_0 * dy_b - dy_0 * dx_b);
  const Wide u = sign * (dx_0 * dy_a - dy_0 * dx_a);
  return {t >= 0 && t <= d && u >= 0 && u <= d, t, d};
}

TEST(IntersectSegments, ExtremeCoordinatesNeitherOverflowNorMissACrossing) {
  constexpr int kMax = std::numeric_limits<int>::max();
  constexpr int kMin = std::numeric_limits<int>::min();
  std::mt19937 random(21);
  const auto coordinate = [&] {
    constexpr int kCorners[] = {kMin, kMin + 1, -1, 0, 1, 240, 180, kMax - 1, kMax};
    const int choice = std::uniform_int_distribution<int>(0, 15)(random);
    if (choice < 9) return kCorners[choice];
    return std::uniform_int_distribution<int>(kMin, kMax)(random);
  };
  int crossed = 0;
  const ScreenQuad quad = QuadOf(240, 180);
  for (int i = 0; i < 200000; ++i) {
    const ScreenSegment segment{{coordinate(), coordinate()}, {coordinate(), coordinate()}};
    const std::size_t side = static_cast<std::size_t>(i % 4);
    const ScreenSegment edge{quad[side], quad[(side + 1) % 4]};
    ScreenPoint crossing;
    const bool crosses = IntersectSegments(edge, segment, crossing);
    const WideCrossing exact = CrossWide(edge, segment);
    ASSERT_EQ(crosses, exact.crosses);
    if (!crosses) continue;
    ++crossed;
    ASSERT_TRUE(PointInQuad(quad, crossing));
    // Fractions of such numbers are rounded: at a whole pixel the truncation may fall short of it.
    const Wide along_x = (Wide{edge.end.x} - edge.start.x) * exact.t / exact.d;
    const Wide along_y = (Wide{edge.end.y} - edge.start.y) * exact.t / exact.d;
    ASSERT_LE(std::abs(crossing.x - edge.start.x - static_cast<int>(along_x)), 1);
    ASSERT_LE(std::abs(crossing.y - edge.start.y - static_cast<int>(along_y)), 1);
  }
  EXPECT_GT(crossed, 1000);
}
#endif

TEST(ClipGroundSegment, RefusesWhatLiesOnOneSide) {
  CViewState view;
  view.SetScreenSize(240, 180);  // the pixel of (x, y) is (120 + y, 90 - x)
  const struct {
    const char* what;
    GroundPoint start;
    GroundPoint end;
    bool visible;
  } rows[] = {{"above", {91, -50}, {120, 50}, false},
              {"below", {-91, -50}, {-91, 50}, false},
              {"left", {-300, -121}, {300, -130}, false},
              {"right", {-300, 121}, {300, 121}, false},
              {"on the top border", {90, -50}, {90, 50}, true},
              {"on the bottom border", {-90, -50}, {-90, 50}, true},
              {"on the left border", {-50, -120}, {50, -120}, true},
              {"on the right border", {-50, 120}, {50, 120}, true},
              {"past a corner on no one side", {100, 115}, {85, 130}, false},
              {"across", {100, -130}, {-100, 130}, true}};
  for (const auto& row : rows) {
    ScreenSegment clipped{{-7, -7}, {-7, -7}};
    EXPECT_EQ(row.visible, view.ClipGroundSegment(row.start, row.end, clipped)) << row.what;
    EXPECT_EQ(clipped.start == (ScreenPoint{-7, -7}), !row.visible) << row.what;
  }
}

TEST(ClipGroundSegment, EndsBeyondThePixelRangeAreClippedLikeNearOnes) {
  CViewState view;
  view.SetScreenSize(240, 180);
  ScreenSegment clipped;
  ASSERT_TRUE(view.ClipGroundSegment({0, -1e200}, {0, 1e200}, clipped));
  EXPECT_EQ((ScreenPoint{240, 90}), clipped.start);
  EXPECT_EQ((ScreenPoint{0, 90}), clipped.end);
  ASSERT_TRUE(view.ClipGroundSegment({30, 20}, {-1e200, 20}, clipped));
  EXPECT_EQ((ScreenPoint{140, 60}), clipped.start);
  EXPECT_EQ((ScreenPoint{140, 180}), clipped.end);
  EXPECT_FALSE(view.ClipGroundSegment({std::nan(""), 0}, {std::nan(""), 1}, clipped));
}

TEST(ClipGroundSegment, TheFirstGroundEndGetsTheFirstClippedEnd) {
  CViewState view;
  view.SetScreenSize(240, 180);
  GroundPoint west{0, -1000};
  GroundPoint east{0, 1000};
  ScreenSegment clipped;
  ASSERT_TRUE(view.ClipGroundSegmentInPlace(west, east, clipped));
  EXPECT_EQ((ScreenPoint{240, 90}), clipped.start);  // the right border comes before the left one
  EXPECT_EQ(120.0, west.east);
  EXPECT_EQ(-120.0, east.east);
}

}  // namespace
}  // namespace tavix
