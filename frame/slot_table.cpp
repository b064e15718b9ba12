#include "frame/slot_table.h"

#include <algorithm>
#include <cassert>
#include <new>
#include <utility>

namespace tavix {
namespace {

// An object there is no memory for stays null and is not reported.
template <class T, class... Arguments>
std::unique_ptr<T> TryMake(Arguments&&... arguments) {
  try {
    return std::make_unique<T>(std::forward<Arguments>(arguments)...);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

template <class Store>
std::unique_ptr<Store> TryOpen(int index) {
  auto store = TryMake<Store>(index);
  if (store) store->Open();
  return store;
}

template <class Store>
void CloseAndDestroy(std::unique_ptr<Store>& store) {
  if (store) store->Close();
  store.reset();
}

template <class Store>
int ClearStore(std::unique_ptr<Store>& store) {
  return store ? store->Clear() : 0;
}

}  // namespace

void TavixSlot::Create(int index) {
  in_use = true;
  window.reset();
  show_buttons = true;
  view = TryMake<CViewState>();
  points = TryOpen<CPntList>(index);
  points3 = TryOpen<CPnt3List>(index);
  memos = TryOpen<CMemDb>(index);
  lines = TryOpen<CLinDb>(index);
  figures = TryOpen<CFigList>(index);
  selected_point_legend = kNoLegend;
  selected_line_legend = kNoLegend;
  legend = TryMake<CHanrei>();
  auto_redraw = false;
}

void TavixSlot::Destroy() {
  if (window) {
    window->DestroyWindow();
    window.reset();
  }
  view.reset();
  CloseAndDestroy(points);
  CloseAndDestroy(points3);
  CloseAndDestroy(memos);
  CloseAndDestroy(lines);
  CloseAndDestroy(figures);
  legend.reset();
  in_use = false;
}

int TavixSlot::Clear() {
  if (!in_use) return -1;
  if (const int code = ClearStore(points); code != 0) return code;
  if (const int code = ClearStore(points3); code != 0) return code;
  if (const int code = ClearStore(memos); code != 0) return code;
  if (const int code = ClearStore(lines); code != 0) return code;
  return ClearStore(figures);
}

void SlotTable::SetIndex(int index) {
  if (index >= 0 && index < kSlots) index_ = index;
}

void SlotTable::SelectHighestInUse() {
  for (int index = kSlots - 1; index >= 0; --index) {
    if (slots_[static_cast<std::size_t>(index)].in_use) {
      index_ = index;
      return;
    }
  }
}

bool SlotTable::IsOnItsThread() {
  const bool in_use =
      std::any_of(slots_.begin(), slots_.end(), [](const TavixSlot& slot) { return slot.in_use; });
  if (!in_use) thread_ = ::GetCurrentThreadId();
  return thread_ == ::GetCurrentThreadId();
}

SlotTable& Slots() {
  // Never destroyed: what an ending process leaves behind is not saved, and at that time neither
  // the framework nor the windows may be called any more.
  static SlotTable& slots = *new SlotTable;
  assert(slots.IsOnItsThread() && "a call from another thread than the instances'");
  return slots;
}

}  // namespace tavix
