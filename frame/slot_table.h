// The library's five slots, the one that is current, and what the exported calls ask of it.
#pragma once

#include <afxwin.h>

#include <array>
#include <cassert>
#include <cstddef>
#include <memory>
#include <new>

#include "frame/instance.h"

namespace tavix {

// A slot holds an instance or nothing.
class SlotTable {
 public:
  static constexpr int kSlots = 5;

  // The current slot's instance, or null.
  [[nodiscard]] Instance* Current() { return CurrentSlot().get(); }

  [[nodiscard]] int Index() const { return index_; }

  // An index outside 0..4 changes nothing.
  void SetIndex(int index);

  // Fills the current slot. False when it holds an instance already.
  bool Create();

  // Empties the current slot. Of the instances that remain the one in the highest slot becomes
  // current; none remaining leaves the index.
  void Delete();

  // Whether this thread is the one that made the instances there are. While there are none, any
  // thread is, and the next to ask becomes the one.
  [[nodiscard]] bool IsOnItsThread();

 private:
  [[nodiscard]] std::unique_ptr<Instance>& CurrentSlot() {
    return slots_[static_cast<std::size_t>(index_)];
  }

  std::array<std::unique_ptr<Instance>, kSlots> slots_;
  int index_ = 0;
  unsigned long thread_ = 0;
};

// The table is never destroyed: what an ending process leaves behind is not saved, and at that time
// neither the framework nor the windows may be called any more.
union LastingSlotTable {
  constexpr LastingSlotTable() : table() {}
  ~LastingSlotTable() {}
  SlotTable table;
};
extern LastingSlotTable g_slots;

// The library's table. To be asked on one thread as long as instances exist; builds with assertions
// stop at a call from another.
[[nodiscard]] inline SlotTable& Slots() {
  assert(g_slots.table.IsOnItsThread() && "a call from another thread than the instances'");
  return g_slots.table;
}

constexpr int kRefused = -1;

// Has `call` answer, and refuses where the system has no memory or no drawing object for it.
template <class Call>
int WithinResources(Call call) {
  try {
    return call();
  } catch (const std::bad_alloc&) {
    return kRefused;
  } catch (CResourceException* exception) {
    exception->Delete();
    return kRefused;
  }
}

// Has `call` answer for the current instance, and refuses where there is none or the system has
// nothing left for the call. A redraw that is pending stays pending: the call changes nothing of
// what is drawn, or knows itself what to do.
template <class Call>
int OnInstance(Call call) {
  Instance* instance = Slots().Current();
  return instance ? WithinResources([&] { return call(*instance); }) : kRefused;
}

// The same for the current instance's window, which has to be linked.
template <class Call>
int OnWindow(Call call) {
  return OnInstance(
      [&](Instance& instance) { return instance.Window() ? call(*instance.Window()) : kRefused; });
}

// The same for calls that change what is drawn and do not redraw: a redraw that is pending is
// drawn first, so that it shows what there was when it was asked for.
template <class Call>
int ChangeInstance(Call call) {
  return OnInstance([&](Instance& instance) {
    instance.FinishRedraw();
    return call(instance);
  });
}
template <class Call>
int ChangeWindow(Call call) {
  return ChangeInstance(
      [&](Instance& instance) { return instance.Window() ? call(*instance.Window()) : kRefused; });
}

}  // namespace tavix
