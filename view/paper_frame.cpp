#include "view/paper_frame.h"

#include <cmath>

namespace tavix {
namespace {

constexpr double kMetresPerInch = 0.0254;
constexpr double kMargin = 10.0;  // pixels, both sides together

// The far edge of a stretch of whole pixels; in range even for a sheet without a size.
int FarEdge(int near_edge, double length) {
  return TruncateToInt(static_cast<double>(near_edge) + TruncateToInt(length));
}

}  // namespace

void PaperFrame::TurnOn(const CViewState& view, int height_per_inch, int height_units,
                        int width_per_inch, int width_units) {
  on_ = true;
  sheet_height_ = kMetresPerInch / height_per_inch * height_units;
  sheet_width_ = kMetresPerInch / width_per_inch * width_units;
  Layout(view);
  origin_ = view.ScreenToGround(BottomLeft());
  scale_ = ScaleIn(view);
}

void PaperFrame::Layout(const CViewState& view) {
  int w = 0;
  int h = 0;
  view.GetScreenSize(&w, &h);
  int left = 5;
  int top = 5;
  int right = 0;
  int bottom = 0;
  const double full_height_width = (h - kMargin) * sheet_width_ / sheet_height_;
  if (w >= full_height_width) {  // the height limits
    bottom = FarEdge(top, h - kMargin);
    left = TruncateToInt(w * 0.5 - full_height_width * 0.5);
    right = FarEdge(left, full_height_width);
  } else {
    const double full_width_height = (w - kMargin) * sheet_height_ / sheet_width_;
    right = FarEdge(left, w - kMargin);
    top = TruncateToInt(h * 0.5 - full_width_height * 0.5);
    bottom = FarEdge(top, full_width_height);
  }
  outline_ = {{{left, top}, {right, top}, {right, bottom}, {left, bottom}, {left, top}}};
}

double PaperFrame::ScaleIn(const CViewState& view) const {
  const GroundPoint bottom = view.ScreenToGround(BottomLeft());
  const GroundPoint top = view.ScreenToGround(TopLeft());
  return sheet_height_ / std::hypot(top.north - bottom.north, top.east - bottom.east);
}

bool PaperFrame::SetScale(CViewState& view, int n) {
  const bool cut = view.SetFitScale(Width(), sheet_width_, 1.0 / n);
  const GroundPoint bottom_left = view.ScreenToGround(BottomLeft());
  const GroundPoint top_right = view.ScreenToGround(TopRight());
  view.SetCentre({(top_right.north + bottom_left.north) * 0.5 + (origin_.north - bottom_left.north),
                  (top_right.east + bottom_left.east) * 0.5 + (origin_.east - bottom_left.east)});
  scale_ = 1.0 / n;
  return cut;
}

int PaperFrame::Scale() const { return TruncateToInt(1.0 / scale_); }

void PaperFrame::SetOrigin(CViewState& view, GroundPoint origin) {
  const GroundPoint top_right = view.ScreenToGround(TopRight());
  const GroundPoint middle{(origin_.north + top_right.north) * 0.5,
                           (origin_.east + top_right.east) * 0.5};
  view.SetCentre(
      {origin.north - origin_.north + middle.north, origin.east - origin_.east + middle.east});
  origin_ = origin;
}

void PaperFrame::Follow(const CViewState& view) {
  if (!on_) return;
  origin_ = view.ScreenToGround(BottomLeft());
  if (scale_ < 0.0) scale_ = ScaleIn(view);
}

}  // namespace tavix
