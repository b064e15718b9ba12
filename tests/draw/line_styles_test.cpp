// The line styles against a walk that draws every piece, by raw calls.
#include "tests/support/line_plot_test.h"

namespace tavix::test {
namespace {

struct PixelLine {
  double from_x;
  double from_y;
  double to_x;
  double to_y;
};

// Pixels from the middle of the window, in the unturned view of one pixel a metre.
constexpr PixelLine kInside[] = {
    {-100, -80, 97, -80}, {97, -70, -100, -70},  {-110, -60, -110, 70},  {-105, 70, -105, -60},
    {-90, -60, 0, 30},    {90, 75, -20, -35},    {-90, 80, -3, -33.5},   {10, 5.25, 80, -64.75},
    {-80, 60, 95, 77.3},  {-50, -10, 70.5, -21}, {3, 9, 7, 11},          {20, 20, 20.4, 20.3},
    {30, 30, 30, 30},     {-60, 20, -57.9, 20},  {-60, 25, -54.1, 25.2}, {50, -30, 71.4, 41.7},
};
constexpr PixelLine kCrossing[] = {
    {-500, -40, 600, 31},     {600, 55, -500, 12},      {-40, 700, 33, -900},
    {0, 0, 4000.5, 611.25},   {-3000, -2900, 100, 77},  {-30, -20, -31.5, -3000},
    {-117.5, 0, -400, -3.25}, {-700, 200, 300, -200.5},
};
constexpr PixelLine kOutside[] = {
    {-500, -400, 600, -310}, {-600, -80, -130, 80}, {140, -500, 3000, 500}, {-100, 95, 100, 400}};

struct ViewRow {
  double radius;  // of the circle zoomed to, metres
  int angle;
  int vertical;
  int horizontal;
};

constexpr ViewRow kViews[] = {
    {90.0, 0, 1, 1},   {45.0, 0, 1, 1},   {61.7, 0, 1, 1},   {90.0, 90, 1, 1},
    {90.0, 180, 1, 1}, {33.1, 270, 1, 1}, {90.0, 30, 1, 1},  {250.0, 137, 1, 1},
    {90.0, 0, 3, 1},   {70.0, 0, 1, 2},   {52.3, 211, 5, 2}, {0.09, 301, 1, 1},
};

// Widths of two and three pixels are drawn as polygons by GDI: worth a row each.
constexpr LineLegend kStyles[] = {
    {101, 0, 0, 0, 1, RGB(255, 0, 0)},   {102, 4, 2, 0, 1, RGB(0, 0, 255)},
    {102, 11, 5, 0, 2, RGB(0, 0, 255)},  {103, 9, 9, 9, 1, RGB(255, 0, 0)},
    {104, 4, 2, 2, 1, RGB(0, 128, 0)},   {104, 17, 3, 6, 3, RGB(0, 128, 0)},
    {105, 4, 2, 2, 1, RGB(128, 0, 128)}, {105, 13, 4, 5, 1, RGB(128, 0, 128)},
};

// Keeps those lines in the window however it is turned and stretched: a solid line is cut there.
constexpr double kInEveryView = 0.2;

class LineStyles : public LinePlotTest {
 protected:
  static RawView SetView(const ViewRow& row) {
    EXPECT_EQ(0, Tavix_Zom1(0.0, 0.0, row.radius));
    EXPECT_EQ(0, Tavix_SetAng(row.angle));
    EXPECT_EQ(0, Tavix_SetTatYok(row.vertical, row.horizontal));
    const double scale = kHeight * (1.0 / (row.radius * 2.0));
    return {kWidth, kHeight, scale, row.angle, static_cast<double>(row.vertical) / row.horizontal};
  }

  static void ResetView() {
    Tavix_SetAng(0);
    Tavix_SetTatYok(1, 1);
  }

  // A turned view has a north arrow over its lines: what shows of the arrow in a window without
  // any, laid over the lines.
  static Picture UnderArrow(Picture lines, const Picture& arrow) {
    const std::uint32_t background = arrow.At(kWidth - 1, 0);
    for (std::size_t i = 0; i < lines.pixels.size(); ++i) {
      if (arrow.pixels[i] != background) lines.pixels[i] = arrow.pixels[i];
    }
    return lines;
  }

  static Ground ToGround(double x, double y, const RawView& view) {
    return {-y / view.scale, x / view.scale};
  }

  // Enters the lines, which are as long on every scale, and draws them on the canvas.
  template <std::size_t count>
  void Both(const RawCanvas& canvas, const RawView& view, const LineLegend& look,
            const PixelLine (&lines)[count], double shrink = 1.0) {
    Tavix_SelLinHan(AddLineLegend(look));
    for (const PixelLine& line : lines) {
      const Ground start = ToGround(line.from_x * shrink, line.from_y * shrink, view);
      const Ground end = ToGround(line.to_x * shrink, line.to_y * shrink, view);
      Join(start, end);
      if (start.x != end.x || start.y != end.y) {
        DrawRawLine(canvas.Dc(), view, look, start, end);
      } else {
        const RawSelection pen(canvas.Dc(), ::CreatePen(PS_SOLID, look.width, look.color));
        DrawRawSegment(canvas.Dc(), view.Pixel(start), view.Pixel(start));
      }
    }
  }

  // Shows nothing but these lines, in this style and view.
  template <std::size_t count>
  void ExpectLaid(const ViewRow& row, const LineLegend& look, const PixelLine (&lines)[count],
                  double shrink = 1.0) {
    Tavix_DrwClr();
    next_key_ = 1000;
    ResetView();
    const RawView view = SetView(row);
    const Picture arrow = Redrawn();
    const RawCanvas canvas(Window());
    Both(canvas, view, look, lines, shrink);
    EXPECT_TRUE(SamePicture(UnderArrow(canvas.Take(), arrow), Redrawn()))
        << "kind " << look.kind << " width " << look.width << " radius " << row.radius << " angle "
        << row.angle << " ratio " << view.ratio;
  }
};

TEST_F(LineStyles, AreLaidInEveryDirectionAndView) {
  for (const ViewRow& row : kViews) {
    for (const LineLegend& look : kStyles) {
      ExpectLaid(row, look, kInside, look.kind == 101 ? kInEveryView : 1.0);
    }
  }
}

// Patterned lines are not cut: their dashes keep their place when the start is far off.
TEST_F(LineStyles, KeepTheirDashesWhereTheLineLeavesTheWindow) {
  for (const ViewRow& row : kViews) {
    for (const LineLegend& look : kStyles) {
      if (look.kind != 101) ExpectLaid(row, look, kCrossing);
    }
  }
}

TEST_F(LineStyles, DrawNothingOfLinesOutside) {
  for (const LineLegend& look : kStyles) {
    Tavix_DrwClr();
    const RawCanvas canvas(Window());
    Tavix_SelLinHan(AddLineLegend(look));
    for (const PixelLine& line : kOutside) {
      Join({-line.from_y, line.from_x}, {-line.to_y, line.to_x});
    }
    EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn())) << look.kind;
  }
}

// A solid line is cut to whole pixels first: ends on the border, in the order of the borders (top,
// right, bottom, left) when both ends lie outside.
TEST_F(LineStyles, CutASolidLineAtTheBorder) {
  const struct {
    PixelLine line;
    POINT from;
    POINT to;
  } rows[] = {
      {{0, 0, 240, 60}, {120, 90}, {240, 120}},     // out to the right
      {{240, 60, 0, 0}, {240, 120}, {120, 90}},     // in from the right
      {{0, 0, 0, -200}, {120, 90}, {120, 0}},       // out over the top
      {{-300, -7, 300, 25}, {240, 105}, {0, 93}},   // across
      {{50, -300, 50, 300}, {170, 0}, {170, 180}},  // down through
      {{-120, -40, 120, 40}, {0, 50}, {240, 130}},  // just from border to border
  };
  const LineLegend look{101, 0, 0, 0, 1, RGB(255, 0, 0)};
  Tavix_SelLinHan(AddLineLegend(look));
  for (const auto& [line, from, to] : rows) {
    Tavix_ClrEntLin();
    Join({-line.from_y, line.from_x}, {-line.to_y, line.to_x});
    const RawCanvas canvas(Window());
    {
      const RawSelection pen(canvas.Dc(), ::CreatePen(PS_SOLID, look.width, look.color));
      DrawRawSegment(canvas.Dc(), from, to);
    }
    EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()))
        << line.from_x << ", " << line.from_y << " to " << line.to_x << ", " << line.to_y;
  }
}

TEST_F(LineStyles, OfOtherKindsDrawNothing) {
  for (const int kind : {0, 1, 11, 100, 106, 201, -101}) {
    Tavix_ClrEntLin();
    Tavix_SelLinHan(AddLineLegend({kind, 4, 2, 2, 1, RGB(255, 0, 0)}));
    Join({0.0, -50.0}, {0.0, 50.0});
    EXPECT_TRUE(SamePicture(RawCanvas(Window()).Take(), Redrawn())) << kind;
  }
}

// Some of a pattern's values may be zero; a sign does not count.
TEST_F(LineStyles, TakePatternsWithZerosAndNegatives) {
  const struct {
    LineLegend look;
    LineLegend like;
  } rows[] = {
      {{102, 0, 3, 0, 1, 255}, {102, 0, 3, 0, 1, 255}},
      {{102, 3, 0, 0, 1, 255}, {102, 3, 0, 0, 1, 255}},
      {{104, 0, 0, 5, 1, 255}, {104, 0, 0, 5, 1, 255}},
      {{104, 5, 3, 0, 1, 255}, {104, 5, 3, 0, 1, 255}},
      {{105, 0, 4, 0, 1, 255}, {105, 0, 4, 0, 1, 255}},
      {{102, -4, -2, 0, 1, 255}, {102, 4, 2, 0, 1, 255}},
      {{104, 6, -3, -2, 1, 255}, {104, 6, 3, 2, 1, 255}},
      {{102, 30000, 2, 0, 1, 255}, {102, 30000, 2, 0, 1, 255}},
      {{102, 4, 30000, 0, 1, 255}, {102, 4, 30000, 0, 1, 255}},
  };
  const RawView view{kWidth, kHeight};
  for (const auto& [look, like] : rows) {
    Tavix_DrwClr();
    const RawCanvas canvas(Window());
    Tavix_SelLinHan(AddLineLegend(look));
    for (const PixelLine& line : kInside) {
      const Ground start{-line.from_y, line.from_x};
      const Ground end{-line.to_y, line.to_x};
      if (start.x == end.x && start.y == end.y) continue;
      Join(start, end);
      DrawRawLine(canvas.Dc(), view, like, start, end);
    }
    EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()))
        << look.kind << ": " << look.dash << ' ' << look.gap << ' ' << look.short_dash;
  }
}

}  // namespace
}  // namespace tavix::test
