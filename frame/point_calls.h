// What the exported point calls do to an instance.
#pragma once

#include <cstdint>

#include "frame/slot_table.h"

namespace tavix {

// All return 0, -1 for an unknown key, or the result of the redraw that a change brings about while
// auto-redraw is on. A change to the value that is there already is none then, and draws nothing.

// Enters a point with the slot's selected legend, or replaces the one with this key. With
// auto-redraw on a new point is drawn on its own, without a full redraw. `point.legend` is not
// read.
int EnterPoint(TavixSlot& slot, Point point);

int ChangePointLegend(TavixSlot& slot, std::int32_t key, std::int16_t legend);
int ChangePointNumberAndName(TavixSlot& slot, std::int32_t key, std::int32_t number, NameView name);
int ChangePointPlace(TavixSlot& slot, std::int32_t key, GroundPoint at);

}  // namespace tavix
