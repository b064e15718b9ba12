// What the exported line calls do to an instance.
#pragma once

#include "frame/slot_table.h"

namespace tavix {

// Enters a line with the slot's selected legend; a line that is there already stays as it is. With
// auto-redraw on it is drawn on its own, without a full redraw. 0, or -1 when it cannot be added.
int EnterLine(TavixSlot& slot, LineKeys keys);

// 0, a code of the store, or with auto-redraw on the result of the redraw that a change brings
// about.
int ChangeLineLegend(TavixSlot& slot, LineKeys keys, std::int16_t legend);

}  // namespace tavix
