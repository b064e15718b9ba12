// The redraw that Tavix_Drw and the entity calls share.
#pragma once

#include "frame/slot_table.h"

namespace tavix {

// Redraws the slot's window, after fitting the view to the data unless `keep_view`. 0, or -1 when
// the slot has no window.
int RedrawSlot(TavixSlot& slot, bool keep_view);

// The redraw after a change: `code` is the change's result, returned as it is when the change
// failed or auto-redraw is off.
int RedrawAfterChange(TavixSlot& slot, int code);

}  // namespace tavix
