// The plan view and the side view drawn by GDI.
#pragma once

#include <afxwin.h>

#include "draw/gdi_scopes.h"
#include "draw/gdi_symbol.h"
#include "draw/plan_canvas.h"

namespace tavix {

// Draws into any device context, one GDI call an operation. Every other canvas has to give its
// pixels. What it changes of the device context the destructor puts back.
class GdiCanvas : public PlanCanvas {
 public:
  explicit GdiCanvas(CDC& dc)
      : dc_(dc), transparent_(dc), gdi_(dc), old_text_color_(dc.GetTextColor()) {}
  ~GdiCanvas() override { dc_.SetTextColor(old_text_color_); }

  [[nodiscard]] ScreenBox Visible() const override;
  void UsePen(const Pen& pen) override { gdi_.Use(pen); }
  void Line(const ScreenSegment& segment) override;
  void Circle(ScreenPoint centre, int radius) override;
  void UsePointSymbol(const PointSymbol& symbol) override;
  void Mark(ScreenPoint at) override;
  void UseTextColor(std::uint32_t color) override { dc_.SetTextColor(color); }
  void Label(ScreenPoint at, NameView text) override;

 private:
  CDC& dc_;
  TransparentBackground transparent_;
  GdiSymbol gdi_;
  COLORREF old_text_color_;
  PointSymbol symbol_;
};

}  // namespace tavix
