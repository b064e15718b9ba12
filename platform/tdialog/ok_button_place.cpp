#include "platform/tdialog/ok_button_place.h"

#include <algorithm>

namespace tdialog {
namespace {

RECT WithMargin(RECT rect, int margin) {
  ::InflateRect(&rect, margin, margin);
  return rect;
}

bool IsClear(const RECT& wanted, SIZE client, const std::vector<RECT>& items) {
  const bool inside = wanted.left >= 0 && wanted.top >= 0 && wanted.right <= client.cx &&
                      wanted.bottom <= client.cy;
  return inside && std::none_of(items.begin(), items.end(), [&](const RECT& item) {
           RECT common;
           return ::IntersectRect(&common, &wanted, &item) != FALSE;
         });
}

}  // namespace

OkButtonPlace PlaceOkButton(SIZE client, SIZE button, int margin, const std::vector<RECT>& items) {
  const LONG left = client.cx - margin - button.cx;
  const auto at = [&](LONG top) { return RECT{left, top, left + button.cx, top + button.cy}; };
  for (const RECT& corner : {at(client.cy - margin - button.cy), at(margin)}) {
    if (IsClear(WithMargin(corner, margin), client, items)) return {corner, 0};
  }
  return {at(client.cy + margin), static_cast<int>(button.cy) + 2 * margin};
}

}  // namespace tdialog
