// The plain canvas behind one that draws into bits itself.
#pragma once

#include <afxwin.h>

#include "draw/plain_canvas.h"

namespace tavix {

// Makes the system's objects of a style only when something is left to the system, and waits for
// the system only when bits are reached for after that.
class LazyPlain {
 public:
  explicit LazyPlain(CDC& dc) : plain_(dc) {}

  [[nodiscard]] ScreenBox Visible() const { return plain_.Visible(); }

  void UseLineStyle(const LegendStyle& style) { Use(style, Pending::kLineStyle); }
  void UsePointStyle(const LegendStyle& style) { Use(style, Pending::kPointStyle); }
  void UseTextColor(std::uint32_t color) { plain_.UseTextColor(color); }

  // Of the lines or the points, whichever was taken into use last.
  [[nodiscard]] const LegendStyle& Style() const { return style_; }

  // The canvas with the style in use.
  [[nodiscard]] PlanCanvas& Canvas() {
    if (pending_ == Pending::kLineStyle) plain_.UseLineStyle(style_);
    if (pending_ == Pending::kPointStyle) plain_.UsePointStyle(style_);
    pending_ = Pending::kNothing;
    may_lag_ = true;
    return plain_;
  }

  // To be called before the bits are reached: the system may hold back what it has been told to
  // draw.
  void Settle() {
    if (may_lag_) ::GdiFlush();
    may_lag_ = false;
  }

 private:
  enum class Pending { kNothing, kLineStyle, kPointStyle };

  void Use(const LegendStyle& style, Pending pending) {
    style_ = style;
    pending_ = pending;
  }

  PlainCanvas plain_;
  LegendStyle style_;
  Pending pending_ = Pending::kNothing;
  bool may_lag_ = true;
};

}  // namespace tavix
