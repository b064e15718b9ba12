#include "draw/legend_pen.h"

namespace tavix {

bool LegendPen::Use(std::int16_t number) {
  if (number == entry_.number) return false;
  if (legend_.Get(number, &entry_) != 0) entry_ = {number, true, {}};
  DropPen();
  const LegendStyle& style = entry_.style;
  LOGPEN pen{PS_SOLID, {style.width, style.width}, static_cast<COLORREF>(style.color)};
  pen_.CreatePenIndirect(&pen);
  old_pen_ = dc_.SelectObject(&pen_);
  return true;
}

void LegendPen::DropPen() {
  if (old_pen_) dc_.SelectObject(old_pen_);
  old_pen_ = nullptr;
  pen_.DeleteObject();
}

}  // namespace tavix
