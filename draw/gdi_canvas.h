// The plan view and the side view drawn by GDI.
#pragma once

#include <afxwin.h>
#include <framework/scoped_select.h>

#include <optional>

#include "draw/gdi_scopes.h"
#include "draw/plan_canvas.h"

namespace tavix {

// Makes the pen, brush and font of one symbol at a time and selects them into the device context.
// Until the first one its own pen draws, and shapes are hollow. The destructor puts back what was
// selected before. Entities of one legend in a row, as they mostly come, share the objects: a pen
// and a brush stay until others are in use, and so does a font, which takes the longest to make.
class GdiSymbol {
 public:
  explicit GdiSymbol(CDC& dc) : dc_(dc), hollow_(dc, NULL_BRUSH) {}
  ~GdiSymbol() {
    DropPenAndBrush();
    DropFont();
  }
  GdiSymbol(const GdiSymbol&) = delete;
  GdiSymbol& operator=(const GdiSymbol&) = delete;

  // A pen and no brush.
  void Use(const Pen& pen) { Use(pen, false); }

  // A pen, a brush for the filled marks, and a font where there is a label height.
  void Use(const PointSymbol& symbol);

 private:
  void Use(const Pen& pen, bool is_filled);
  void SelectFont(int height);
  void DropPenAndBrush();
  void DropFont();

  CDC& dc_;
  CScopedSelect hollow_;
  std::optional<Pen> pen_in_use_;
  bool is_filled_ = false;
  CPen pen_;
  CBrush brush_;
  CFont font_;
  int font_height_ = 0;  // pixels; 0 while there is none
  HGDIOBJ old_pen_ = nullptr;
  HGDIOBJ old_brush_ = nullptr;
  HGDIOBJ old_font_ = nullptr;
};

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
