// Where the one-bit picture's north arrow stands.
#include <tavix/tavix.h>

#include <vector>

#include "tests/draw/group/group_test.h"
#include "tests/draw/group/raw_ink_picture.h"
#include "tests/support/picture_compare.h"

namespace tavix::test {
namespace {

const PointLegend kPixel{4, 1, 0, 0, 1, RGB(255, 255, 0)};

struct Row {
  const char* what;
  int height;
  int width;
  std::vector<POINT> ink;
  POINT arrow;
};

// A plot of the picture's own size: a pixel of one is a pixel of the other.
class GroupArrow : public GroupTest {
 protected:
  void SetUp() override {}

  void Expect(const Row& row) {
    SetUpPlot(row);
    const RawInkPicture canvas(row.height, row.width);
    for (const POINT& at : row.ink) DrawRawPoint(canvas.Dc(), {4, 1}, at);
    canvas.Arrow(row.arrow);
    EXPECT_TRUE(SamePicture(canvas.Take(), Build(row.height, row.width))) << row.what;
    Tavix_Del();
  }

 private:
  void SetUpPlot(const Row& row) {
    MakePlot(row.width, row.height);
    const short legend = AddLegend(kPixel);
    int key = 0;
    for (const POINT& at : row.ink) ASSERT_EQ(0, Enter(++key, GroundAt(at), legend));
  }
};

// The first base of a square comes from the width. It is scanned as the square's row and drawn as
// the arrow's column: what is scanned is the mirror, across the diagonal, of what is drawn.
TEST_F(GroupArrow, TakesTheFirstOfFourCornersWhoseMirrorIsFree) {
  const Row rows[] = {
      {"free", 400, 400, {}, {70, 70}},
      {"top left", 400, 400, {{20, 20}}, {330, 330}},
      {"bottom right", 400, 400, {{350, 350}}, {70, 70}},
      {"top left, bottom right", 400, 400, {{20, 20}, {350, 350}}, {330, 70}},
      {"and top right, which is drawn on", 400, 400, {{20, 20}, {350, 350}, {330, 30}}, {330, 70}},
      {"and bottom left", 400, 400, {{20, 20}, {350, 350}, {30, 330}}, {70, 330}},
      {"all", 400, 400, {{20, 20}, {350, 350}, {30, 330}, {330, 30}}, {70, 70}},
      {"the middle", 400, 400, {{200, 200}, {5, 5}, {395, 395}}, {70, 70}},
      // 500 wide, 300 high: rows 370 and on are below the picture, so never taken.
      {"wide, top left", 300, 500, {{20, 20}}, {430, 230}},
      {"wide, with ink where the arrow comes", 300, 500, {{20, 20}, {430, 230}}, {430, 230}},
      {"wide, everywhere", 300, 500, {{20, 20}, {430, 30}, {430, 230}, {20, 230}}, {430, 230}},
      // 300 wide, 500 high: rows 170 to 289, columns 370 and on.
      {"high, top left", 500, 300, {{20, 20}}, {230, 430}},
      {"high, bottom right", 500, 300, {{20, 20}, {230, 430}}, {230, 430}},
      // 240 wide, 180 high: the squares overlap.
      {"small, top left", 180, 240, {{20, 20}}, {170, 110}},
      {"small, and the second", 180, 240, {{20, 20}, {160, 170}}, {170, 70}},
      {"small, and the third", 180, 240, {{20, 20}, {160, 170}, {20, 170}}, {70, 110}},
      {"small, common to all", 180, 240, {{60, 120}}, {70, 70}},
      {"140 by 140 has one square", 140, 140, {{60, 60}}, {70, 70}},
  };
  for (const Row& row : rows) Expect(row);
}

TEST_F(GroupArrow, NeedsASquareOf120Pixels) {
  const struct {
    POINT ink;
    bool free;
  } rows[] = {
      {{10, 10}, false},  {{129, 129}, false}, {{10, 129}, false},
      {{129, 10}, false}, {{9, 10}, true},     {{10, 9}, true},
      {{130, 129}, true}, {{129, 130}, true},  {{70, 70}, false},
  };
  for (const auto& row : rows) {
    Expect({"edge", 400, 400, {row.ink}, row.free ? POINT{70, 70} : POINT{330, 330}});
  }
}

// The second square lies below the picture, but its first column is one of the border's.
TEST_F(GroupArrow, TakesTheFramesBorderForInk) {
  constexpr int kHigh = 131;  // the last row but one is the first square's last
  constexpr int kWide = 400;
  MakePlot(240, 180);
  ASSERT_EQ(0, Tavix_SetWak(1, 254, 2970, 254, 2100));
  const RawInkPicture first(kHigh, kWide);
  first.Arrow({70, 70});
  EXPECT_TRUE(SamePicture(first.Take(), Build(kHigh, kWide)));
  ASSERT_EQ(0, Tavix_WakDsp(1));
  ASSERT_EQ(0, Tavix_GrpStt(kHigh, kWide));
  ASSERT_EQ(0, Tavix_WakDsp(0));  // to read without the border
  const RawInkPicture second(kHigh, kWide);
  second.Arrow({330, 70});
  EXPECT_TRUE(SamePicture(second.Take(), Read(kHigh, kWide)));
}

}  // namespace
}  // namespace tavix::test
