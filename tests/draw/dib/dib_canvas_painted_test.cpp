// Wide strokes and large circles where their own colour is everything already.
#include <gtest/gtest.h>

#include "draw/dib/dib_canvas.h"
#include "draw/dib/system_sample.h"
#include "draw/ink/ink_canvas.h"

namespace tavix::test {
namespace {

constexpr int kWidth = 150;
constexpr int kHeight = 90;
constexpr ScreenSegment kAcross{{-20, 45}, {170, 45}};
constexpr Pen kWide{100, 0};

// From now on each stroke that the system draws turns colours over.
void ShowEveryStroke(CDC& dc) { dc.SetROP2(R2_NOT); }

TEST(PaintedBits, AreNotPaintedAgain) {
  SystemSample sample(kWidth, kHeight);
  sample.Fill(0x00FFFFFF);
  LearntDrawing learnt;
  DibCanvas canvas(sample.Dc(), sample.Pixels(), learnt);
  canvas.UsePen(kWide);
  canvas.Line(kAcross);
  const OwnSample painted(sample);
  EXPECT_TRUE(sample.Pixels().Has(0, 0, 0));
  ShowEveryStroke(sample.Dc());
  canvas.Line(kAcross);
  canvas.Circle({70, 40}, 30);
  EXPECT_TRUE(painted.Equals(sample));
  canvas.UsePen({100, 255});
  canvas.Line(kAcross);
  EXPECT_FALSE(painted.Equals(sample)) << "another colour is drawn";
}

TEST(PaintedBits, ArePaintedAgainAfterALabel) {
  SystemSample sample(kWidth, kHeight);
  sample.Fill(0);
  LearntDrawing learnt;
  DibCanvas canvas(sample.Dc(), sample.Pixels(), learnt);
  canvas.UsePointSymbol({2, 300, 10, LabelContent::kName, {1, 0}});
  const OwnSample painted(sample);
  ShowEveryStroke(sample.Dc());
  canvas.Mark({70, 40});
  EXPECT_TRUE(painted.Equals(sample));
  canvas.Label({70, 40}, u" ");
  canvas.Mark({70, -100});
  EXPECT_FALSE(painted.Equals(sample));
}

TEST(CirclesThatPassBy, AreNotDrawn) {
  SystemSample sample(kWidth, kHeight);
  sample.Fill(0x00FFFFFF);
  LearntDrawing learnt;
  DibCanvas canvas(sample.Dc(), sample.Pixels(), learnt);
  canvas.UsePen({3, 0});
  canvas.Line({{10, 10}, {20, 20}});
  const OwnSample before(sample);
  // From now on a circle that the system draws is filled.
  ::SelectObject(sample.Dc().m_hDC, ::GetStockObject(BLACK_BRUSH));
  canvas.Circle({75, 45}, 5000);
  canvas.Circle({75, 45}, -100);
  canvas.Circle({400, 45}, 200);
  EXPECT_TRUE(before.Equals(sample));
  canvas.Circle({75, 45}, 60);
  EXPECT_FALSE(before.Equals(sample)) << "one that shows is drawn";
}

TEST(PaintedInk, IsNotPaintedAgain) {
  OneBitCanvas picture(kWidth, kHeight);
  InkCanvas canvas(picture, kWidth, kHeight);
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
