#include "platform/tdialog/placement.h"

#include <algorithm>

namespace tdialog {
namespace {

PixelRect WithMargin(const PixelRect& rect, int margin) {
  return {rect.left - margin, rect.top - margin, rect.right + margin, rect.bottom + margin};
}

bool Overlap(const PixelRect& one, const PixelRect& other) {
  return std::max(one.left, other.left) < std::min(one.right, other.right) &&
         std::max(one.top, other.top) < std::min(one.bottom, other.bottom);
}

bool IsClear(const PixelRect& wanted, PixelSize client, const std::vector<PixelRect>& items) {
  const bool inside = wanted.left >= 0 && wanted.top >= 0 && wanted.right <= client.width &&
                      wanted.bottom <= client.height;
  return inside && std::none_of(items.begin(), items.end(),
                                [&](const PixelRect& item) { return Overlap(wanted, item); });
}

}  // namespace

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

OkButtonPlace PlaceOkButton(PixelSize client, PixelSize button, int margin,
                            const std::vector<PixelRect>& items) {
  const int left = client.width - margin - button.width;
  const auto at = [&](int top) {
    return PixelRect{left, top, left + button.width, top + button.height};
  };
  for (const PixelRect& corner : {at(client.height - margin - button.height), at(margin)}) {
    if (IsClear(WithMargin(corner, margin), client, items)) return {corner, 0};
  }
  return {at(client.height + margin), button.height + 2 * margin};
}

}  // namespace tdialog
