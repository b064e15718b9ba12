#include "frame/slot_table.h"

#include <afxwin.h>

#include <algorithm>
#include <new>

namespace tavix {

void SlotTable::SetIndex(int index) {
  if (index >= 0 && index < kSlots) index_ = index;
}

bool SlotTable::Create() {
  if (CurrentSlot()) return false;
  try {
    CurrentSlot() = std::make_unique<Instance>(index_);
  } catch (const std::bad_alloc&) {
    // Compatibility: a lack of memory is not reported. The slot stays empty, and its calls refuse.
  }
  return true;
}

void SlotTable::Delete() {
  CurrentSlot().reset();
  for (int index = kSlots - 1; index >= 0; --index) {
    if (!slots_[static_cast<std::size_t>(index)]) continue;
    index_ = index;
    return;
  }
}

bool SlotTable::IsOnItsThread() {
  const bool in_use =
      std::any_of(slots_.begin(), slots_.end(), [](const auto& slot) { return slot != nullptr; });
  if (!in_use) thread_ = ::GetCurrentThreadId();
  return thread_ == ::GetCurrentThreadId();
}

constinit LastingSlotTable g_slots;

}  // namespace tavix
