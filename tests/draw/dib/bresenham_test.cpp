#include "draw/dib/bresenham.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "tests/draw/dib/block_picture.h"

namespace tavix::test {
namespace {

constexpr std::uint32_t kInk = 0x00123456;

TieRule RuleWithAll(bool at_once) {
  TieRule rule;
  for (int octant = 0; octant < TieRule::kOctants; ++octant) rule.SetStepsAtOnce(octant, at_once);
  return rule;
}

TEST(LineOctant, IsOneOfEightDirections) {
  std::set<int> octants;
  for (const int dx : {-3, -2, 2, 3}) {
    for (const int dy : {-3, -2, 2, 3}) octants.insert(TieRule::OctantOf(dx, dy));
  }
  EXPECT_EQ(8u, octants.size());
  EXPECT_EQ(0, *octants.begin());
  EXPECT_EQ(7, *octants.rbegin());
}

TEST(StepLine, LeavesItsEndOut) {
  const struct {
    ScreenPoint start;
    ScreenPoint end;
    const char* picture;
  } rows[] = {
      {{1, 1}, {4, 1}, ".....\n.###.\n.....\n"}, {{4, 1}, {1, 1}, ".....\n..###\n.....\n"},
      {{2, 0}, {2, 2}, "..#..\n..#..\n.....\n"}, {{2, 2}, {2, 0}, ".....\n..#..\n..#..\n"},
      {{0, 0}, {2, 2}, "#....\n.#...\n.....\n"}, {{3, 2}, {1, 0}, ".....\n..#..\n...#.\n"},
      {{2, 1}, {2, 1}, ".....\n.....\n.....\n"},
  };
  for (const auto& [start, end, picture] : rows) {
    const BlockPicture drawn(5, 3);
    StepLine(drawn.Block(), RuleWithAll(true), {start, end}, kInk);
    EXPECT_EQ(picture, drawn.Text()) << start.x << ", " << start.y;
  }
}

TEST(StepLine, BreaksTiesByItsRule) {
  const struct {
    bool at_once;
    const char* picture;
  } rows[] = {{true, "#....\n.##..\n...#.\n"}, {false, "##...\n..##.\n.....\n"}};
  for (const auto& [at_once, picture] : rows) {
    TieRule rule = RuleWithAll(!at_once);
    rule.SetStepsAtOnce(TieRule::OctantOf(4, 2), at_once);
    const BlockPicture drawn(5, 3);
    StepLine(drawn.Block(), rule, {{0, 0}, {4, 2}}, kInk);
    EXPECT_EQ(picture, drawn.Text()) << at_once;
  }
}

// Whichever way ties go, a pixel is never more than half a pixel off the true course.
TEST(StepLine, KeepsToTheCourse) {
  for (const bool at_once : {false, true}) {
    for (int dx = -9; dx <= 9; ++dx) {
      for (int dy = -9; dy <= 9; ++dy) {
        const BlockPicture drawn(19, 19);
        StepLine(drawn.Block(), RuleWithAll(at_once), {{9, 9}, {9 + dx, 9 + dy}}, kInk);
        const int longer = std::max(std::abs(dx), std::abs(dy));
        int pixels = 0;
        for (int y = 0; y < 19; ++y) {
          for (int x = 0; x < 19; ++x) {
            if (drawn.At(x, y) != kInk) continue;
            ++pixels;
            EXPECT_LE(2 * std::abs((x - 9) * dy - (y - 9) * dx), longer) << dx << ", " << dy;
          }
        }
        EXPECT_EQ(longer, pixels) << dx << ", " << dy;
      }
    }
  }
}

TEST(StepLine, IsCutAtTheEdges) {
  constexpr int kMargin = 40;
  const ScreenSegment lines[] = {{{-7, 3}, {20, 9}},    {{3, -9}, {5, 30}}, {{15, 15}, {-3, -8}},
                                 {{10, 5}, {-30, -30}}, {{-5, 4}, {-1, 9}}, {{2, 8}, {30, 8}},
                                 {{0, 0}, {12, 10}},    {{12, 0}, {0, 10}}};
  for (const ScreenSegment& line : lines) {
    const BlockPicture cut(12, 10);
    StepLine(cut.Block(), RuleWithAll(true), line, kInk);
    const BlockPicture whole(12 + 2 * kMargin, 10 + 2 * kMargin);
    StepLine(whole.Block(), RuleWithAll(true),
             {{line.start.x + kMargin, line.start.y + kMargin},
              {line.end.x + kMargin, line.end.y + kMargin}},
             kInk);
    for (int y = 0; y < 10; ++y) {
      for (int x = 0; x < 12; ++x) {
        EXPECT_EQ(whole.At(x + kMargin, y + kMargin), cut.At(x, y)) << x << ", " << y;
      }
    }
  }
}

TEST(StepLine, ReachesAsFarAsItMay) {
  const BlockPicture drawn(4, 3);
  StepLine(drawn.Block(), RuleWithAll(true), {{-kFarthestStep, 1}, {kFarthestStep, 1}}, kInk);
  StepLine(drawn.Block(), RuleWithAll(true),
           {{kFarthestStep, kFarthestStep}, {-kFarthestStep, -kFarthestStep}}, kInk);
  EXPECT_EQ("#...\n####\n..#.\n", drawn.Text());
}

}  // namespace
}  // namespace tavix::test
