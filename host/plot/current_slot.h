// Which instance of the library the calls go to.
#pragma once

#include <tavix/tavix.h>

namespace fieldhost {

// Makes a slot current for as long as it lives.
class CurrentSlot {
 public:
  explicit CurrentSlot(int slot) {
    Tavix_GetIdx(&old_slot_);
    Tavix_SetIdx(slot);
  }
  ~CurrentSlot() { Tavix_SetIdx(old_slot_); }
  CurrentSlot(const CurrentSlot&) = delete;
  CurrentSlot& operator=(const CurrentSlot&) = delete;

 private:
  int old_slot_ = 0;
};

}  // namespace fieldhost
