// The pieces are compared, to the last bit, with those of a walk that skips nothing.
#include "draw/line_styles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>
#include <random>
#include <stdexcept>
#include <vector>

#include "tests/draw/full_walk.h"

namespace tavix {
namespace {

constexpr ScreenBox kEverything{std::numeric_limits<int>::min(), std::numeric_limits<int>::min(),
                                std::numeric_limits<int>::max(), std::numeric_limits<int>::max()};
constexpr ScreenBox kClient{-2, -2, 242, 322};

CViewState ViewAt(GroundPoint centre, double scale, int angle = 0, double ratio = 1.0) {
  CViewState view;
  view.SetScreenSize(240, 320);
  EXPECT_FALSE(view.SetFitScale(1, 1.0, scale));
  view.SetRatio(ratio);
  view.SetCentre(centre);
  EXPECT_EQ(0, view.SetAngle(angle));
  return view;
}

LinePattern Pattern(int style, int dash = 4, int gap = 2, int short_dash = 3) {
  return PatternOf({style, dash, gap, short_dash, {}}).value();
}

// Every piece given is one of the full walk, in its order, and none that shows is missing. Returns
// how many show.
std::size_t ExpectTheVisiblePieces(const CViewState& view, const Pieces& full, const Pieces& given,
                                   const ScreenBox& visible) {
  std::size_t showing = 0;
  std::size_t next = 0;
  for (const LinePiece& piece : full) {
    const bool is_given = next < given.size() && SamePiece(piece, given[next]);
    if (is_given) ++next;
    if (!Touches(view, piece, visible)) continue;
    ++showing;
    EXPECT_TRUE(is_given) << "piece " << &piece - full.data() << " of " << full.size();
    if (!is_given) return showing;
  }
  EXPECT_EQ(given.size(), next) << "a piece that the full walk does not have";
  return showing;
}

void ExpectSamePieces(const Pieces& given, const Pieces& expected) {
  ASSERT_EQ(expected.size(), given.size());
  for (std::size_t i = 0; i < given.size(); ++i) {
    ASSERT_TRUE(SamePiece(given[i], expected[i])) << i;
  }
}

// ---- The patterns

TEST(PatternOf, RepeatsThePiecesOfItsStyle) {
  const struct {
    int style;
    std::vector<int> lengths;
  } rows[] = {{102, {7, 5}},
              {103, {2, 2}},  // whatever the symbol says
              {104, {7, 5, 3, 5}},
              {105, {7, 5, 3, 5, 3, 5}}};
  for (const auto& row : rows) {
    const LinePattern pattern = Pattern(row.style, 7, 5, 3);
    EXPECT_EQ(row.lengths,
              std::vector<int>(pattern.lengths.begin(),
                               pattern.lengths.begin() + static_cast<int>(pattern.count)))
        << row.style;
  }
}

TEST(PatternOf, OtherStylesHaveNone) {
  for (const int style : {0, 1, 100, 101, 106, -102, 1020}) {
    EXPECT_FALSE(PatternOf({style, 4, 2, 2, {}}).has_value()) << style;
  }
}

// ---- One metre is one pixel, the line runs east from (0, 0): pieces as pairs of eastings

TEST(WalkPattern, LaysThePatternAndShortensTheLastDash) {
  using Ends = std::vector<std::pair<double, double>>;
  const struct {
    const char* what;
    LinePattern pattern;
    double length;
    Ends ends;
  } rows[] = {
      {"a dash cut short", Pattern(102), 20, {{0, 4}, {6, 10}, {12, 16}, {18, 20}}},
      {"the end in a gap", Pattern(102), 17, {{0, 4}, {6, 10}, {12, 16}}},
      {"the end at a dash's end", Pattern(102), 16, {{0, 4}, {6, 10}, {12, 16}}},
      {"the end at a dash's start", Pattern(102), 18, {{0, 4}, {6, 10}, {12, 16}, {18, 18}}},
      {"shorter than a dash", Pattern(102), 3, {{0, 3}}},
      {"dots", Pattern(103), 9, {{0, 2}, {4, 6}, {8, 9}}},
      {"long and short", Pattern(104), 24, {{0, 4}, {6, 9}, {11, 15}, {17, 20}, {22, 24}}},
      {"a short dash cut short", Pattern(104), 8, {{0, 4}, {6, 8}}},
      {"the end in the gap after it", Pattern(104), 10, {{0, 4}, {6, 9}}},
      {"two short ones",
       Pattern(105),
       33,
       {{0, 4}, {6, 9}, {11, 14}, {16, 20}, {22, 25}, {27, 30}, {32, 33}}},
      {"no gaps", Pattern(102, 4, 0), 10, {{0, 4}, {4, 8}, {8, 10}}},
      {"dashes without length", Pattern(102, 0, 3), 7, {{0, 0}, {3, 3}, {6, 6}}},
      {"short dashes without length", Pattern(104, 4, 2, 0), 9, {{0, 4}, {6, 6}, {8, 9}}},
      // A length counts as a distance.
      {"a negative dash", Pattern(102, -4, 2), 8, {{0, 4}, {6, 8}}},
      {"a negative gap", Pattern(102, 4, -2), 8, {{0, 4}, {6, 8}}},
      {"all negative", Pattern(104, -4, -2, -3), 12, {{0, 4}, {6, 9}, {11, 12}}},
      {"the longest", Pattern(102, std::numeric_limits<int>::max(), 1), 8, {{0, 8}}},
      {"the lowest", Pattern(102, std::numeric_limits<int>::min(), 1), 8, {{0, 8}}}};
  const CViewState view = ViewAt({0, 0}, 1.0);
  for (const auto& row : rows) {
    Ends ends;
    for (const LinePiece& piece : Walk(view, row.pattern, {0, 0}, {0, row.length}, kEverything)) {
      EXPECT_EQ(0.0, piece.start.north) << row.what;
      EXPECT_EQ(0.0, piece.end.north) << row.what;
      ends.emplace_back(piece.start.east, piece.end.east);
    }
    EXPECT_EQ(row.ends, ends) << row.what;
  }
}

TEST(WalkPattern, APatternOrSegmentWithoutLengthGivesOnePieceWithoutLength) {
  const GroundPoint start{10, 20};
  const GroundPoint end{15, 25};
  constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const struct {
    const char* what;
    LinePattern pattern;
    GroundPoint end;
  } rows[] = {
      {"two zeros", Pattern(102, 0, 0), end},      {"four zeros", Pattern(104, 0, 0, 0), end},
      {"six zeros", Pattern(105, 0, 0, 0), end},   {"no segment", Pattern(102), start},
      {"no segment, dotted", Pattern(103), start}, {"no number", Pattern(102), {kNoNumber, 3}},
      {"infinite", Pattern(102), {3, kInfinity}}};
  const CViewState view = ViewAt({10, 20}, 5.0);
  for (const auto& row : rows) {
    const Pieces pieces = Walk(view, row.pattern, start, row.end, kEverything);
    ASSERT_EQ(1U, pieces.size()) << row.what;
    EXPECT_TRUE(SamePiece(pieces[0], {start, start})) << row.what;
  }
}

TEST(WalkPattern, ASegmentTooSmallToShowStillEnds) {
  const CViewState view = ViewAt({0, 0}, 1e-9);
  const Pieces pieces = Walk(view, Pattern(102), {0, 0}, {30, 40}, kEverything);
  ASSERT_EQ(1U, pieces.size());
  EXPECT_TRUE(SamePiece(pieces[0], {{0, 0}, {30, 40}}));
}

TEST(WalkPattern, LengthsArePixelsOfTheViewWhateverItsTurnAndRatio) {
  for (const int angle : {0, 30, 90, 137, 180, 270, 359}) {
    for (const double ratio : {1.0, 2.5, 0.3}) {
      for (const GroundPoint way : {GroundPoint{50, 0}, {0, 50}, {-30, 40}, {-20, -50}}) {
        const CViewState view = ViewAt({-42000, 25900}, 3.0, angle, ratio);
        const GroundPoint start{-42010, 25890};
        const GroundPoint end{start.north + way.north, start.east + way.east};
        const Pieces pieces = Walk(view, Pattern(104, 9, 5, 2), start, end, kEverything);
        ASSERT_GE(pieces.size(), 2U);
        const auto pixels = [&](GroundPoint a, GroundPoint b) {
          const RealScreenPoint from = view.GroundToRealScreen(a);
          const RealScreenPoint to = view.GroundToRealScreen(b);
          return std::hypot(to.x - from.x, to.y - from.y);
        };
        EXPECT_NEAR(9.0, pixels(pieces[0].start, pieces[0].end), 1e-7);
        EXPECT_NEAR(5.0, pixels(pieces[0].end, pieces[1].start), 1e-7);
        EXPECT_NEAR(2.0, pixels(pieces[1].start, pieces[1].end), 1e-7);
      }
    }
  }
}

// ---- Against the walk that skips nothing

struct Scene {
  CViewState view;
  LinePattern pattern;
  GroundPoint start;
  GroundPoint end;
};

Scene RandomScene(std::mt19937_64& random) {
  const auto in = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  const auto one_of = [&](std::initializer_list<double> values) {
    return values.begin()[std::uniform_int_distribution<std::size_t>(0, values.size() - 1)(random)];
  };
  const double scale = one_of({0.01, 0.7, 1.0, 13.3, 1000.0, 100000.0});
  const double far = one_of({0.0, 1e3, 1e5, 1e7, 1e9});
  const GroundPoint centre{in(-far, far), in(-far, far)};
  const int angle = static_cast<int>(one_of({0, 0, 90, 180, 270, 1, 30, 45, 137, 359}));
  const double pixels = one_of({30, 300, 3000, 30000});
  const double direction = one_of({0, 90, 180, 270, 45, 225, in(0, 360), in(0, 360)});
  // The right angles are exact, so that lines along an axis are among the scenes.
  const auto exact = [](double value) { return std::fabs(value) < 1e-9 ? 0.0 : value; };
  const GroundPoint way{exact(std::cos(direction * 0.017453292519943295)) * pixels / scale,
                        exact(std::sin(direction * 0.017453292519943295)) * pixels / scale};
  const double before = in(0, 1);
  const double aside = in(-100, 100) / scale;
  const GroundPoint start{centre.north - way.north * before + aside,
                          centre.east - way.east * before};
  return {ViewAt(centre, scale, angle, one_of({1, 1, 0.5, 4})),
          Pattern(102 + static_cast<int>(one_of({0, 1, 2, 3})), static_cast<int>(in(0, 9)),
                  static_cast<int>(in(1, 9)), static_cast<int>(in(0, 9))),
          start,
          {start.north + way.north, start.east + way.east}};
}

TEST(WalkPattern, WithEverythingVisibleIsTheFullWalk) {
  std::mt19937_64 random(81);
  for (int i = 0; i < 400; ++i) {
    const Scene scene = RandomScene(random);
    ExpectSamePieces(Walk(scene.view, scene.pattern, scene.start, scene.end, kEverything),
                     FullWalk(scene.view, scene.pattern, scene.start, scene.end));
    if (HasFatalFailure()) FAIL() << "scene " << i;
  }
}

TEST(WalkPattern, GivesEveryPieceThatShows) {
  std::mt19937_64 random(82);
  std::size_t showing = 0;
  std::size_t given = 0;
  std::size_t all = 0;
  for (int i = 0; i < 3000; ++i) {
    const Scene scene = RandomScene(random);
    const Pieces full = FullWalk(scene.view, scene.pattern, scene.start, scene.end);
    const Pieces pieces = Walk(scene.view, scene.pattern, scene.start, scene.end, kClient);
    showing += ExpectTheVisiblePieces(scene.view, full, pieces, kClient);
    given += pieces.size();
    all += full.size();
    if (HasFailure()) FAIL() << "scene " << i;
  }
  EXPECT_LT(given, showing + std::size_t{3000} * 40);
  EXPECT_LT(given, all / 4);
}

// The pieces of a curve seen from afar, down to less than the spacing of its coordinates.
TEST(WalkPattern, ShortSegmentsAreTheFullWalk) {
  std::mt19937_64 random(83);
  const auto in = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  std::size_t single = 0;
  constexpr int kSegments = 20000;
  for (int i = 0; i < kSegments; ++i) {
    const double scale = std::pow(10, in(-3, 5));
    const double far = std::pow(10, in(0, 9));
    const GroundPoint start{in(-far, far), in(-far, far)};
    const double pixels = std::pow(10, in(-6, 1.2));
    const GroundPoint end{start.north + in(-pixels, pixels) / scale,
                          start.east + (i % 3 == 0 ? 0 : in(-pixels, pixels)) / scale};
    if (SamePoint(start, end)) continue;
    const CViewState view = ViewAt(start, scale, i % 360, i % 2 == 0 ? 1 : 3);
    const LinePattern pattern = Pattern(102 + i % 4, i % 7, 1 + i % 3, i % 2);
    const Pieces full = FullWalk(view, pattern, start, end);
    ExpectSamePieces(Walk(view, pattern, start, end, kEverything), full);
    if (HasFatalFailure()) FAIL() << "segment " << i;
    single += full.size() == 1 ? 1 : 0;
  }
  EXPECT_GT(single, std::size_t{kSegments} / 2);
}

// Where a step is only a few times the spacing of the numbers it is added to, each addition rounds
// the same way: the pattern drifts off the line, far over many steps. It shows where it is laid.
TEST(WalkPattern, FollowsThePatternWhereRoundingCarriesItOffTheLine) {
  const GroundPoint start{1e9 + 0.1, 1.2e9 + 0.3};
  const GroundPoint end{start.north + 60.03, start.east + 33.01};
  const CViewState from_start = ViewAt(start, 100000.0);
  const Pieces full = FullWalk(from_start, Pattern(102, 5, 4), start, end);
  ASSERT_GT(full.size(), 100000U);
  for (const std::size_t part : {1U, 3U, 5U, 7U}) {
    const LinePiece& piece = full[full.size() / 8 * part];
    const CViewState view = ViewAt(piece.start, 100000.0);
    const Pieces laid = FullWalk(view, Pattern(102, 5, 4), start, end);
    const Pieces pieces = Walk(view, Pattern(102, 5, 4), start, end, kClient);
    EXPECT_GT(ExpectTheVisiblePieces(view, laid, pieces, kClient), 0U) << part;
    EXPECT_LT(pieces.size(), 400U);
  }
}

// The full walk has up to a thousand million pieces.
TEST(WalkPattern, ALineOfTenKilometresAtTheLargestScaleCostsWhatShows) {
  constexpr double kHalf = 5000;
  for (const GroundPoint centre : {GroundPoint{0, 0}, {-35321.7, 12987.4}}) {
    for (const double direction : {0.0, 90.0, 180.0, 270.0, 45.0, 33.0}) {
      for (const int angle : {0, 30, 90}) {
        for (const int kind : {102, 103, 104, 105}) {
          const double radians = direction * 0.017453292519943295;
          const auto along = [&](double unit) {
            return std::fabs(unit) < 1e-9 ? 0.0 : unit * kHalf;
          };
          const GroundPoint half{along(std::cos(radians)), along(std::sin(radians))};
          const CViewState view = ViewAt(centre, 100000.0, angle);
          const Pieces pieces = Walk(view, Pattern(kind, 1, 1, 1),
                                     {centre.north - half.north, centre.east - half.east},
                                     {centre.north + half.north, centre.east + half.east}, kClient);
          EXPECT_LT(pieces.size(), 600U) << direction << ' ' << angle << ' ' << kind;
          const bool on_axis =
              direction == 0.0 || direction == 90.0 || direction == 180.0 || direction == 270.0;
          if (on_axis) {  // rounding cannot carry it aside, so it crosses the window
            EXPECT_GT(pieces.size(), 50U) << direction << ' ' << angle << ' ' << kind;
          }
        }
      }
    }
  }
}

TEST(WalkPattern, ALineThatPassesByGivesNothing) {
  const CViewState view = ViewAt({0, 0}, 100000.0);
  EXPECT_TRUE(Walk(view, Pattern(102), {1, -5000}, {1, 5000}, kClient).empty());
  EXPECT_TRUE(Walk(view, Pattern(102), {-5000, 10}, {5000, 10}, kClient).empty());
  EXPECT_TRUE(Walk(view, Pattern(102), {-5000, -4000}, {4000, 5000}, kClient).empty());
}

TEST(WalkPattern, APatternTooFineForItsCoordinatesEnds) {
  // A step of a pixel is far below the spacing of such numbers: the walk cannot leave its place.
  const GroundPoint start{1e15, 1e15};
  const GroundPoint end{1e15 + 100, 1e15 + 50};
  for (const GroundPoint centre : {start, end, GroundPoint{0, 0}}) {
    const CViewState view = ViewAt(centre, 100000.0);
    for (const ScreenBox& visible : {kClient, kEverything}) {
      EXPECT_LE(Walk(view, Pattern(105, 1, 1, 1), start, end, visible).size(), 3U);
    }
  }
}

// At 1e17 m neighbouring coordinates are 16 m apart: each step of 4 m to the north is lost, the
// tiny one to the east is not. There are 1e11 pieces in one pixel.
TEST(WalkPattern, IsPassedOverWhereItStaysInAPixel) {
  CViewState view;
  view.SetScreenSize(200, 200);
  view.SetCentre({1e17, 0.0});
  LinePattern pattern;
  pattern.count = 2;
  pattern.lengths = {4, 2};
  constexpr std::size_t kMany = 10000;
  Pieces pieces;
  WalkPattern(view, pattern, {1e17, 0.0}, {1e17 + 1e12, 0.5}, {0, 0, 200, 200},
              [&](const LinePiece& piece) {
                pieces.push_back(piece);
                if (pieces.size() > kMany) throw std::length_error("a walk without end");
              });
  EXPECT_FALSE(pieces.empty());
  for (const LinePiece& piece : pieces) {
    EXPECT_EQ((ScreenPoint{100, 100}), view.GroundToScreen(piece.start));
    EXPECT_EQ((ScreenPoint{100, 100}), view.GroundToScreen(piece.end));
  }
}

}  // namespace
}  // namespace tavix
