#include "frame/redraw.h"

namespace tavix {

int RedrawSlot(TavixSlot& slot, bool keep_view) {
  if (!slot.window) return -1;
  if (!keep_view) slot.window->FitView();  // nothing to fit: the view stays, and is drawn
  return slot.window->ViewChanged();
}

int RedrawAfterChange(TavixSlot& slot, int code) {
  return code == 0 && slot.auto_redraw ? RedrawSlot(slot, true) : code;
}

}  // namespace tavix
