// The arrow keys of the plot window: in the plan each press pans by half the drawing area, in the
// side view it turns the view or shifts its height base.
#include "view/scale_bar.h"
#include "window/plot_window.h"

namespace tavix {

BOOL CPlotWnd::PreTranslateMessage(MSG* message) {
  const bool is_arrow =
      message->message == WM_KEYDOWN && message->wParam >= VK_LEFT && message->wParam <= VK_DOWN;
  const bool column_shown = buttons_.IsShown(ButtonColumnLayout::kScrollUp) ||
                            buttons_.IsShown(ButtonColumnLayout::kFirstMain);
  if (!is_arrow || band_zoom_.IsOn() || !column_shown) return CWnd::PreTranslateMessage(message);
  if (display_3d_) {
    TurnByKey(message->wParam);
  } else {
    PanByKey(message->wParam);
  }
  return TRUE;
}

void CPlotWnd::TurnByKey(WPARAM key) {
  const double step = DatumStep(*links_.view);
  switch (key) {
    case VK_LEFT:
      return RotateBy(RotationStep());
    case VK_RIGHT:
      return RotateBy(-RotationStep());
    case VK_UP:
      height_base_ += step;
      break;
    default:
      height_base_ -= step;
      break;
  }
  MarkStale();
  ViewChanged();
}

void CPlotWnd::PanByKey(WPARAM key) {
  CRect client;
  GetClientRect(&client);
  const int width = client.right - ButtonColumnLayout::kWidth;
  const int height = client.bottom;
  ScreenPoint edge;
  switch (key) {
    case VK_LEFT:
      edge = {0, height / 2};
      break;
    case VK_UP:
      edge = {width / 2, 0};
      break;
    case VK_RIGHT:
      edge = {width, height / 2};
      break;
    default:
      edge = {width / 2, height};
      break;
  }
  PanTo(GroundUnder(edge));
}

}  // namespace tavix
