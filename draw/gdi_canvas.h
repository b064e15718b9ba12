// The plan view drawn by the system's own calls.
#pragma once

#include <afxwin.h>

#include "draw/plan_canvas.h"
#include "draw/style_objects.h"
#include "draw/transparent_background.h"

namespace tavix {

// Draws into any device context, one call of the system an operation. It is what every other canvas
// is measured by. What it changes of the device context the destructor puts back.
class GdiCanvas : public PlanCanvas {
 public:
  explicit GdiCanvas(CDC& dc)
      : dc_(dc), transparent_(dc), objects_(dc), old_text_color_(dc.GetTextColor()) {}
  ~GdiCanvas() override { dc_.SetTextColor(old_text_color_); }

  [[nodiscard]] ScreenBox Visible() const override;
  void UseLineStyle(const LegendStyle& style) override;
  void Line(const ScreenSegment& segment) override;
  void Circle(ScreenPoint centre, int radius) override;
  void UsePointStyle(const LegendStyle& style) override;
  void Mark(ScreenPoint at) override;
  void UseTextColor(std::uint32_t color) override { dc_.SetTextColor(color); }
  void Label(ScreenPoint at, NameView text) override;

 private:
  CDC& dc_;
  TransparentBackground transparent_;
  StyleObjects objects_;
  COLORREF old_text_color_;
  LegendStyle style_;  // of the points
};

}  // namespace tavix
