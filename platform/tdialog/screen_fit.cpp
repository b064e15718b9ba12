#include "platform/tdialog/screen_fit.h"

#include <algorithm>

namespace tdialog {

int FittingPoints(int points, PixelSize room,
                  const std::function<PixelSize(int points)>& size_with) {
  constexpr int kFewestPoints = 5;
  for (; points > kFewestPoints; --points) {
    const PixelSize size = size_with(points);
    if (size.width <= room.width && size.height <= room.height) break;
  }
  return points;
}

PixelRect MovedInside(PixelRect window, PixelRect area) {
  const int width = window.right - window.left;
  const int height = window.bottom - window.top;
  const int left = std::max(area.left, std::min(window.left, area.right - width));
  const int top = std::max(area.top, std::min(window.top, area.bottom - height));
  return {left, top, left + width, top + height};
}

}  // namespace tdialog
