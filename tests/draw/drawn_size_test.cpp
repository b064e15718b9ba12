// Pens, marks and labels beyond what is drawn, on everything that is drawn on.
#include <tavix/tavix.h>

#include <functional>
#include <limits>
#include <string>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

constexpr int kLargest = 100;  // pixels
constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kWidth = 360;
constexpr int kHeight = 300;
constexpr POINT kAt{150, 120};

class DrawnSizes : public PlotTest {
 protected:
  void SetUp() override { MakePlot(kWidth, kHeight); }

  static short AddLine(int kind, int width) {
    short number = 0;
    EXPECT_EQ(0, Tavix_AddLinHan(kind, 30, 40, 10, width, RGB(0, 0, 255), &number));
    return number;
  }

  static Picture ReadGroup() {
    Picture picture{kWidth, kHeight, {}};
    EXPECT_EQ(0, Tavix_GrpStt(kHeight, kWidth));
    for (int row = 0; row < kHeight; ++row) {
      for (int column = 0; column < kWidth; ++column) {
        int ink = 0;
        Tavix_GrpGet(row, column, &ink);
        picture.pixels.push_back(ink != 0 ? 0u : 0xFFFFFFu);
      }
    }
    EXPECT_EQ(0, Tavix_GrpEnd());
    return picture;
  }

  static Picture Plan(const PointLegend& symbol) {
    Tavix_DrwClr();
    EXPECT_EQ(0, Enter(1, GroundAt(kAt), AddLegend(symbol), L"Ab"));
    return Redrawn();
  }

  static Picture AtOnce(const PointLegend& symbol) {
    Tavix_DrwClr();
    Redrawn();
    Tavix_DrwFlg(1);
    EXPECT_EQ(0, Enter(1, GroundAt(kAt), AddLegend(symbol), L"Ab"));
    Tavix_DrwFlg(0);
    return TakeClientPicture(Window());
  }

  static Picture Group(const PointLegend& symbol) {
    Plan(symbol);
    return ReadGroup();
  }

  static Picture Side(const PointLegend& symbol) {
    Tavix_DrwClr();
    EXPECT_EQ(0, Tavix_Dsp3D(1));
    Tavix_SelPntHan(AddLegend(symbol));
    const Ground at = GroundAt(kAt);
    EXPECT_EQ(0, Tavix_EntPnt3(1, 1, L"Ab", at.x, at.y, 5.0));
    const Picture picture = Redrawn();
    EXPECT_EQ(0, Tavix_Dsp3D(0));
    return picture;
  }

  static Picture Moved(const PointLegend& symbol) {
    Tavix_DrwClr();
    Redrawn();
    const Ground at = GroundAt(kAt);
    EXPECT_EQ(0, Tavix_MvPntStt(AddLegend(symbol)));
    EXPECT_EQ(0, Tavix_MvPntMov(at.x, at.y));
    const Picture picture = TakeClientPicture(Window());
    EXPECT_EQ(0, Tavix_MvPntEnd());
    return picture;
  }

  static Picture Lines(int kind, int width) {
    Tavix_DrwClr();
    EXPECT_EQ(0, Tavix_FigStt(1, AddLine(kind, width)));
    EXPECT_EQ(0, Tavix_FigMdlLin(-30.0, -90.0, 40.0, 100.0));
    EXPECT_EQ(0, Tavix_FigMdlCir(20.0, -20.0, 60.0));
    EXPECT_EQ(0, Tavix_FigEnd());
    return Redrawn();
  }
};

TEST_F(DrawnSizes, OfMarksPensAndLabelsHaveALimitOnEverythingDrawnOn) {
  const struct {
    const char* what;
    std::function<Picture(const PointLegend&)> draw;
    bool has_label;
  } surfaces[] = {{"plan", Plan, true},
                  {"at once", AtOnce, true},
                  {"one-bit picture", Group, true},
                  {"side view", Side, true},
                  {"moved point", Moved, false}};
  for (const auto& [what, draw, has_label] : surfaces) {
    for (const int kind : {2, 3, 5, 8}) {
      for (const int large : {kLargest + 1, 32767, kMost}) {
        const PointLegend size{kind, large, 12, 0, 1, 0};
        PointLegend drawn = size;
        drawn.size = kLargest;
        EXPECT_TRUE(SamePicture(draw(drawn), draw(size))) << what << ", size " << large;
      }
      for (const int large : {kLargest + 1, 32767, kMost, -kLargest - 1, kLeast}) {
        const PointLegend pen{kind, 20, 12, 0, large, 0};
        PointLegend drawn = pen;
        drawn.width = large < 0 ? -kLargest : kLargest;
        EXPECT_TRUE(SamePicture(draw(drawn), draw(pen))) << what << ", pen " << large;
      }
    }
    if (!has_label) continue;
    for (const int large : {kLargest + 1, 32767, kMost}) {
      const PointLegend label{4, 20, large, 0, 1, 0};
      PointLegend drawn = label;
      drawn.text_height = kLargest;
      EXPECT_TRUE(SamePicture(draw(drawn), draw(label))) << what << ", label " << large;
    }
  }
}

TEST_F(DrawnSizes, UpToTheLimitAreThoseOfTheLegend) {
  for (const int size : {kLargest - 1, kLargest}) {
    for (const PointLegend& symbol :
         {PointLegend{4, size, 12, 0, 1, 0}, PointLegend{8, 20, 12, 0, size, 0},
          PointLegend{4, 20, size, 0, 1, 0}, PointLegend{2, size, size, 0, size, 0}}) {
      RawCanvas canvas(Window());
      DrawRawPoint(canvas.Dc(), symbol, kAt, L"Ab");
      EXPECT_TRUE(SamePicture(canvas.Take(), Plan(symbol))) << size;
    }
  }
}

TEST_F(DrawnSizes, OfLinePensHaveALimit) {
  for (const int kind : {101, 102, 104}) {
    const Picture widest = Lines(kind, kLargest);
    EXPECT_FALSE(widest == Lines(kind, kLargest - 1)) << kind;
    for (const int width : {kLargest + 1, 32767, kMost, -kLargest, kLeast}) {
      EXPECT_TRUE(SamePicture(widest, Lines(kind, width))) << kind << ", " << width;
    }
  }
}

TEST_F(DrawnSizes, AreNotWhatALegendGivesBack) {
  short point = 0;
  ASSERT_EQ(0, Tavix_AddPntHan(2, kLeast, 0, 32767, kMost, 0, &point));
  int kind = 0;
  int width = 0;
  int color = 0;
  int size = 0;
  int text = 0;
  int number = 0;
  ASSERT_EQ(0, Tavix_GetPntHan(point, &kind, &width, &color, &size, &text, &number));
  EXPECT_EQ(32767, size);
  EXPECT_EQ(kMost, text);
  EXPECT_EQ(kLeast, width);
  short prm1 = 0;
  short prm2 = 0;
  short prm3 = 0;
  ASSERT_EQ(0, Tavix_GetLinHan(AddLine(101, 32767), &kind, &prm1, &prm2, &prm3, &width, &color));
  EXPECT_EQ(32767, width);
}

}  // namespace
}  // namespace tavix::test
