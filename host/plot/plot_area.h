// The drawing area of a plot window.
#pragma once

#include <afxwin.h>

#include "host/pictures/picture_size.h"

namespace fieldhost {

// Pixels: the client area without the column of buttons.
[[nodiscard]] inline PictureSize PlotArea(const CWnd& plot_window, bool shows_buttons) {
  constexpr int kButtonColumn = 20;
  CRect client;
  plot_window.GetClientRect(&client);
  return {client.Width() - (shows_buttons ? kButtonColumn : 0), client.Height()};
}

}  // namespace fieldhost
