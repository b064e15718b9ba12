// The host's two plot instances, and the flags that the library's calls take.
#pragma once

#include <afxwin.h>
#include <tavix/tavix.h>

#include "host/pictures/picture_size.h"

namespace fieldhost {

inline constexpr int kPlanSlot = 0;  // the current one, unless a CurrentSlot says otherwise
inline constexpr int kSideSlot = 1;

inline constexpr BYTE kOff = 0;
inline constexpr BYTE kOn = 1;
inline constexpr BYTE kFitView = 0;  // of Tavix_Drw
inline constexpr BYTE kKeepView = 1;

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

// The drawing area of a plot window in pixels: the client area without the column of buttons.
[[nodiscard]] inline PictureSize DrawingArea(const CWnd& plot_window, bool shows_buttons) {
  CRect client;
  plot_window.GetClientRect(&client);
  return {client.Width() - (shows_buttons ? kTavixButtonColumn : 0), client.Height()};
}

}  // namespace fieldhost
