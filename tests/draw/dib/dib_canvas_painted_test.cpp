// Wide strokes and large circles where all is painted in their colour already.
#include <gtest/gtest.h>

#include "draw/dib/dib_canvas.h"
#include "draw/dib/reference_bitmap.h"
#include "draw/ink/ink_canvas.h"

namespace tavix::test {
namespace {

constexpr int kWidth = 150;
constexpr int kHeight = 90;
constexpr ScreenSegment kAcross{{-20, 45}, {170, 45}};
constexpr Pen kWide{100, 0};

// From now on each stroke that GDI draws turns colours over.
void ShowEveryStroke(CDC& dc) { dc.SetROP2(R2_NOT); }

TEST(PaintedDib, AreNotPaintedAgain) {
  ReferenceBitmap reference(kWidth, kHeight);
  reference.Fill(0x00FFFFFF);
  RasterCache cache;
  DibCanvas canvas(reference.Dc(), reference.Pixels(), cache);
  canvas.UsePen(kWide);
  canvas.Line(kAcross);
  const TrialBitmap painted(reference);
  EXPECT_TRUE(reference.Pixels().Has(0, 0, 0));
  ShowEveryStroke(reference.Dc());
  canvas.Line(kAcross);
  canvas.Circle({70, 40}, 30);
  EXPECT_TRUE(painted.Equals(reference));
  canvas.UsePen({100, 255});
  canvas.Line(kAcross);
  EXPECT_FALSE(painted.Equals(reference)) << "another colour is drawn";
}

TEST(PaintedDib, ArePaintedAgainAfterALabel) {
  ReferenceBitmap reference(kWidth, kHeight);
  reference.Fill(0);
  RasterCache cache;
  DibCanvas canvas(reference.Dc(), reference.Pixels(), cache);
  canvas.UsePointSymbol({2, 300, 10, LabelContent::kName, {1, 0}});
  const TrialBitmap painted(reference);
  ShowEveryStroke(reference.Dc());
  canvas.Mark({70, 40});
  EXPECT_TRUE(painted.Equals(reference));
  canvas.Label({70, 40}, u" ");
  canvas.Mark({70, -100});
  EXPECT_FALSE(painted.Equals(reference));
}

TEST(CirclesThatPassBy, AreNotDrawn) {
  ReferenceBitmap reference(kWidth, kHeight);
  reference.Fill(0x00FFFFFF);
  RasterCache cache;
  DibCanvas canvas(reference.Dc(), reference.Pixels(), cache);
  canvas.UsePen({3, 0});
  canvas.Line({{10, 10}, {20, 20}});
  const TrialBitmap before(reference);
  // From now on a circle that GDI draws is filled.
  ::SelectObject(reference.Dc().m_hDC, ::GetStockObject(BLACK_BRUSH));
  canvas.Circle({75, 45}, 5000);
  canvas.Circle({75, 45}, -100);
  canvas.Circle({400, 45}, 200);
  EXPECT_TRUE(before.Equals(reference));
  canvas.Circle({75, 45}, 60);
  EXPECT_FALSE(before.Equals(reference)) << "one that shows is drawn";
}

TEST(PaintedInk, IsNotPaintedAgain) {
  OneBitBitmap picture(kWidth, kHeight);
  InkCache cache;
  InkCanvas canvas(picture, kWidth, kHeight, cache);
  canvas.UsePen(kWide);
  canvas.Line(kAcross);
  const std::vector<std::uint8_t> painted(picture.Bits(),
                                          picture.Bits() + picture.Stride() * kHeight);
  const auto is_painted = [&] {
    return std::equal(painted.begin(), painted.end(), picture.Bits());
  };
  ShowEveryStroke(picture.Dc());
  canvas.Line(kAcross);
  EXPECT_TRUE(is_painted());
  canvas.UsePen({100, 0x00FFFFFF});
  canvas.Line(kAcross);
  EXPECT_FALSE(is_painted());
}

}  // namespace
}  // namespace tavix::test
