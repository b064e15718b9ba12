#include "draw/point_painter.h"

#include <algorithm>

#include "draw/label_font.h"
#include "draw/point_label.h"
#include "draw/point_mark.h"
#include "platform/wide_text.h"

namespace tavix {
namespace {

// Larger than any screen, and small enough that no sum of pixels leaves the 32-bit range and that
// the system, which walks along an ellipse pixel by pixel, is done with it at once.
constexpr int kMostPixels = 1 << 16;

void DrawLabel(CDC& dc, const LegendStyle& style, ScreenPoint at, NameView text) {
  const int length = static_cast<int>(text.size());
  const LabelBox box = PlaceLabel(at, style.prm1, style.prm2, length);
  RECT rect{box.left, box.top, box.right, box.bottom};
  dc.DrawText(AsWide(text.data()), length, &rect, DT_NOCLIP);
}

}  // namespace

PointLook::PointLook(CDC& dc, const CViewState& view, const LegendTable& legend)
    : dc_(dc), view_(view), pen_(dc, legend) {}

PointLook::~PointLook() { DropObjects(); }

void PointLook::Use(std::int16_t legend) {
  if (!pen_.Use(legend)) return;
  style_ = pen_.Style();
  style_.prm1 = std::min(style_.prm1, kMostPixels);
  style_.prm2 = std::min(style_.prm2, kMostPixels);
  DropObjects();
  MakeObjects();
  margin_ = view_.PixelsToLength(style_.prm1);
}

void PointLook::MakeObjects() {
  if (style_.kind < kFirstFilledMark) {
    old_brush_ = static_cast<CBrush*>(dc_.SelectStockObject(NULL_BRUSH));
  } else {
    brush_.CreateSolidBrush(static_cast<COLORREF>(style_.color));
    old_brush_ = dc_.SelectObject(&brush_);
  }
  if (style_.prm2 > 0) {
    const LOGFONTW font = LabelFont(style_.prm2);
    font_.CreateFontIndirect(&font);
    old_font_ = dc_.SelectObject(&font_);
  }
}

void PointLook::DropObjects() {
  if (old_brush_) dc_.SelectObject(old_brush_);
  if (old_font_) dc_.SelectObject(old_font_);
  old_brush_ = nullptr;
  old_font_ = nullptr;
  brush_.DeleteObject();
  font_.DeleteObject();
}

void DrawPlanPoint(CDC& dc, const CViewState& view, PointLook& look, const Point& point) {
  look.Use(point.legend);
  ScreenPoint at;
  if (!view.CircleOnScreen(point.at, look.Margin(), at)) return;
  const LegendStyle& style = look.Style();
  if (style.prm1 > 0) DrawMark(dc, style.kind, style.prm1, at);
  if (style.prm2 > 0) {
    const LabelText label(style, point.number, point.name);
    if (!label.Text().empty()) DrawLabel(dc, style, at, label.Text());
  }
}

}  // namespace tavix
