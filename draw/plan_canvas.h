// What the plan view and the side view are drawn on.
#pragma once

#include <cstdint>

#include "draw/screen.h"
#include "store/name_pool.h"
#include "store/symbols.h"
#include "view/coordinates.h"

namespace tavix {

// The few drawing operations the views' passes need, in pixels. Every implementation gives the
// pixels of GdiCanvas. Later drawings cover earlier ones.
//
// A pen or a symbol is in use until the next one is. Before the first one lines and circles are
// drawn with the pen that is there, the black one of a bitmap's device context.
class PlanCanvas {
 public:
  PlanCanvas() = default;
  virtual ~PlanCanvas() = default;
  PlanCanvas(const PlanCanvas&) = delete;
  PlanCanvas& operator=(const PlanCanvas&) = delete;

  // What can show: all else is cut off.
  [[nodiscard]] virtual ScreenBox Visible() const = 0;

  // The pen of the lines and circles that follow.
  virtual void UsePen(const Pen& pen) = 0;

  // A solid line from its start up to its end, its end pixel left out.
  virtual void Line(const ScreenSegment& segment) = 0;

  // A hollow circle; a negative radius is the same as a positive one.
  virtual void Circle(ScreenPoint centre, int radius) = 0;

  // The symbol of the marks and labels that follow.
  virtual void UsePointSymbol(const PointSymbol& symbol) = 0;

  // The mark of the symbol in use, its size above 0.
  virtual void Mark(ScreenPoint at) = 0;

  // The colour of the labels that follow, 0x00BBGGRR; at first that of the device context.
  virtual void UseTextColor(std::uint32_t color) = 0;

  // The label of the point at `at`, the symbol's label height above 0. The text is not empty.
  virtual void Label(ScreenPoint at, NameView text) = 0;
};

}  // namespace tavix
