// What the plan view and the side view are drawn on.
#pragma once

#include <cstdint>

#include "draw/screen_box.h"
#include "store/legend_table.h"
#include "store/name_pool.h"
#include "view/coordinates.h"

namespace tavix {

// The few drawing operations the views' passes need, in pixels. Whatever implements them gives
// the pixels of GdiCanvas, which draws each by the system's own call. Later drawings cover
// earlier ones.
//
// A style is in use until the next one is. Its sizes are those to be drawn, see DrawnPointStyle.
// Before the first one lines and circles are drawn with the pen that is there, the black one of a
// bitmap's device context.
class PlanCanvas {
 public:
  PlanCanvas() = default;
  virtual ~PlanCanvas() = default;
  PlanCanvas(const PlanCanvas&) = delete;
  PlanCanvas& operator=(const PlanCanvas&) = delete;

  // What can show: all else is cut off.
  [[nodiscard]] virtual ScreenBox Visible() const = 0;

  // The look of the lines and circles that follow.
  virtual void UseLineStyle(const LegendStyle& style) = 0;

  // A solid line from its start up to its end, its end pixel left out.
  virtual void Line(const ScreenSegment& segment) = 0;

  // A hollow circle; a negative radius is the same as a positive one.
  virtual void Circle(ScreenPoint centre, int radius) = 0;

  // The look of the marks and labels that follow.
  virtual void UsePointStyle(const LegendStyle& style) = 0;

  // The mark of the style in use, its size above 0.
  virtual void Mark(ScreenPoint at) = 0;

  // The colour of the labels that follow, 0x00BBGGRR; at first that of the device context.
  virtual void UseTextColor(std::uint32_t color) = 0;

  // The label of the point at `at`, the style's text height above 0. The text is not empty.
  virtual void Label(ScreenPoint at, NameView text) = 0;
};

}  // namespace tavix
