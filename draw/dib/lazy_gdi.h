// The GDI canvas behind a canvas that draws into a bitmap.
#pragma once

#include <afxwin.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>

#include "draw/dib/dib_section.h"
#include "draw/dib/painted_area.h"
#include "draw/gdi_canvas.h"

namespace tavix {

// Has GDI draw at the least cost: the objects of a symbol are made when they are first needed, what
// would only paint over its own colour is not drawn, and GDI is flushed when the bitmap is reached
// for after it has drawn.
template <class Block>
class LazyGdi {
 public:
  // `block` is what `dc` draws into.
  LazyGdi(CDC& dc, const Block& block) : gdi_(dc), block_(block), painted_(block_) {}

  [[nodiscard]] ScreenBox Visible() const { return gdi_.Visible(); }

  void UsePen(const Pen& pen) { Use(pen, Pending::kPen); }
  void UsePointSymbol(const PointSymbol& symbol) {
    symbol_ = symbol;
    Use(symbol.pen, Pending::kPointSymbol);
  }
  void UseTextColor(std::uint32_t color) { gdi_.UseTextColor(color); }

  // Of the marks and labels.
  [[nodiscard]] const PointSymbol& Symbol() const { return symbol_; }

  void Line(const ScreenSegment& segment) {
    const auto [start, end] = segment;
    const auto [left, right] = std::minmax(start.x, end.x);
    const auto [top, bottom] = std::minmax(start.y, end.y);
    if (!IsPainted({left, top}, {right, bottom}, 0)) Ready().Line(segment);
  }

  void Circle(ScreenPoint centre, int radius) {
    if (PassesBy(centre, radius) || IsPainted(centre, centre, std::abs(radius))) return;
    Ready().Circle(centre, radius);
  }

  void Mark(ScreenPoint at) {
    if (!IsPainted(at, at, symbol_.size)) Ready().Mark(at);
  }

  void Label(ScreenPoint at, NameView text) {
    painted_.Forget();
    Ready().Label(at, text);
  }

  // Others may have drawn into the bitmap, by GDI too.
  void Resume() {
    painted_.Forget();
    needs_flush_ = true;
  }

  // The bitmap with all that has been drawn, to be drawn into in the pen's colour or, after a call
  // of PaintsText, in any.
  [[nodiscard]] const Block& Bits() {
    Flush();
    return block_;
  }
  void PaintsText() { painted_.Forget(); }

 private:
  enum class Pending { kNothing, kPen, kPointSymbol };

  void Use(const Pen& pen, Pending pending) {
    pen_ = pen;
    pending_ = pending;
    if (const auto value = Block::ValueOf(pen.color)) {
      painted_.Use(*value);
    } else {
      painted_.Forget();
    }
  }

  // Whether a circle's outline, all that is drawn of it, runs beside the picture or all around it.
  // GDI would walk along it pixel by pixel.
  [[nodiscard]] bool PassesBy(ScreenPoint centre, int radius) const {
    const double r = std::fabs(static_cast<double>(radius));
    const double slack = std::abs(pen_.width) + 3.0;
    const double left = centre.x;  // from the picture's edges to the centre
    const double top = centre.y;
    const double right = block_.width - left;
    const double bottom = block_.height - top;
    const double nearest =
        std::hypot(std::max({-left, -right, 0.0}), std::max({-top, -bottom, 0.0}));
    const double farthest = std::hypot(std::max(left, right), std::max(top, bottom));
    return nearest > r + slack || farthest < r - slack;
  }

  // Whether what is drawn around the box between two corners, `reach` pixels and a pen's width
  // away, is there already.
  [[nodiscard]] bool IsPainted(ScreenPoint low, ScreenPoint high, int reach) {
    constexpr int kFar = 1 << 28;  // no sum of pixels leaves the 32-bit range
    const int around = std::min(reach, kFar) + std::abs(pen_.width) + 2;
    const auto held = [=](int pixel) { return std::clamp(pixel, -kFar, kFar); };
    Flush();
    return painted_.Covers(
        {held(low.x) - around, held(low.y) - around, held(high.x) + around, held(high.y) + around});
  }

  void Flush() {
    if (needs_flush_) ::GdiFlush();
    needs_flush_ = false;
  }

  // The canvas with the symbol in use, to be drawn on.
  [[nodiscard]] PlanCanvas& Ready() {
    if (pending_ == Pending::kPen) gdi_.UsePen(pen_);
    if (pending_ == Pending::kPointSymbol) gdi_.UsePointSymbol(symbol_);
    pending_ = Pending::kNothing;
    needs_flush_ = true;
    return gdi_;
  }

  GdiCanvas gdi_;
  Block block_;
  PaintedArea<Block> painted_;
  PointSymbol symbol_;
  Pen pen_;  // of the lines or of the points, whichever came into use last
  Pending pending_ = Pending::kNothing;
  bool needs_flush_ = true;  // GDI batches calls
};

}  // namespace tavix
