// Ground to screen and back, by the cases of tests/cases/transform.txt.
#include <gtest/gtest.h>

#include "tests/support/case_file.h"
#include "tests/view/view_of.h"
#include "view/side_projection.h"
#include "view/view_state.h"

namespace tavix {
namespace {

using test::Case;

std::vector<double> Numbers(ScreenPoint point) {
  return {static_cast<double>(point.x), static_cast<double>(point.y)};
}
std::vector<double> Numbers(RealScreenPoint point) { return {point.x, point.y}; }
std::vector<double> Numbers(GroundPoint point) { return {point.north, point.east}; }

// With "scale", pixels a metre, and "centre" too.
CViewState PlacedViewOf(const Case& given) {
  CViewState view = test::ViewOf(given);
  EXPECT_FALSE(view.SetFitScale(1, 1.0, given.Number("scale", 1.0)));
  if (given.Has("centre")) view.SetCentre(given.Ground("centre"));
  return view;
}

void ToPixel(const Case& given) {
  const CViewState view = PlacedViewOf(given);
  const GroundPoint ground = given.Ground("ground");
  const ScreenPoint pixel = view.GroundToScreen(ground);
  given.Expect(Numbers(pixel));
  given.ExpectBack(Numbers(view.ScreenToGround(pixel)), Numbers(ground));
}

void ToGround(const Case& given) {
  const CViewState view = PlacedViewOf(given);
  const ScreenPoint pixel = given.Screen("pixel");
  const GroundPoint ground = view.ScreenToGround(pixel);
  given.Expect(Numbers(ground));
  given.ExpectBack(Numbers(view.GroundToRealScreen(ground)), Numbers(pixel));
}

void LengthToPixels(const Case& given) {
  const CViewState view = PlacedViewOf(given);
  const int pixels = view.LengthToPixels(given.Number("length"));
  EXPECT_EQ(pixels, view.LengthToPixelsAxis(false, given.Number("length")));
  EXPECT_EQ(view.PixelsToLength(pixels), view.PixelsToLengthAxis(false, pixels));
  given.Expect({static_cast<double>(pixels)});
  given.ExpectBack({view.PixelsToLength(pixels)}, {given.Number("length")});
}

void HeightToPixels(const Case& given) {
  const CViewState view = PlacedViewOf(given);
  const int pixels = view.LengthToPixelsAxis(true, given.Number("length"));
  given.Expect({static_cast<double>(pixels)});
  given.ExpectBack({view.PixelsToLengthAxis(true, pixels)}, {given.Number("length")});
}

void Circle(const Case& given) {
  constexpr ScreenPoint kUntouched{-7, -7};
  ScreenPoint at = kUntouched;
  if (PlacedViewOf(given).CircleOnScreen(given.Ground("ground"), given.Number("radius"), at)) {
    given.Expect(Numbers(at));
  } else {
    given.Expect({}, "none");
    EXPECT_EQ(kUntouched, at);
  }
}

void Rotate(const Case& given) {
  CViewState view = PlacedViewOf(given);
  const bool refused = view.RotateBy(given.Whole("by")) != 0;
  given.Expect({static_cast<double>(view.Angle())}, refused ? "refused" : "");
  if (!given.HasBack()) return;
  EXPECT_EQ(0, view.RotateBy(-given.Whole("by")));
  given.ExpectBack({static_cast<double>(view.Angle())}, {given.Number("angle")});
}

void CosineSine(const Case& given) {
  const CViewState view = PlacedViewOf(given);
  given.Expect({view.CosA(), view.SinA()});
}

void ToSide(const Case& given) {
  const SideProjection projection(given.Whole("height"));
  const ScreenPoint side = projection.Project(given.Screen("plan"));
  given.Expect(Numbers(side));
  given.ExpectBack(Numbers(projection.Unproject(side)), Numbers(given.Screen("plan")));
}

void FromSide(const Case& given) {
  const SideProjection projection(given.Whole("height"));
  const ScreenPoint plan = projection.Unproject(given.Screen("side"));
  given.Expect(Numbers(plan));
  given.ExpectBack(Numbers(projection.Project(plan)), Numbers(given.Screen("side")));
}

TEST(Transform, KeepsToItsCases) {
  test::RunCaseFile("transform.txt", {{"to-pixel", ToPixel},
                                      {"to-ground", ToGround},
                                      {"length-to-pixels", LengthToPixels},
                                      {"height-to-pixels", HeightToPixels},
                                      {"circle", Circle},
                                      {"rotate", Rotate},
                                      {"cosine-sine", CosineSine},
                                      {"to-side", ToSide},
                                      {"from-side", FromSide}});
}

}  // namespace
}  // namespace tavix
