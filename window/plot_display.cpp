#include "window/plot_display.h"

#include <utility>

#include "draw/dib/dib_canvas.h"
#include "draw/gdi_canvas.h"
#include "window/buttons/button_column.h"

namespace tavix {

PlotDisplay::PlotDisplay(CWnd& window, const ButtonColumn& buttons, const PlotLinks& links,
                         const RatioSetting& ratio)
    : buttons_(buttons),
      surfaces_{window, buffer_.Dc(), links.view},
      immediate_(window, buffer_, way_),
      band_(window),
      plan_(links, surfaces_, immediate_, ratio, band_),
      side_(links, buffer_, band_) {}

void PlotDisplay::ShowSideView(bool on) {
  FinishRedraw();
  if (on) {
    plan_.Moved().Hide();
    shown_ = &side_;
  } else {
    shown_ = &plan_;
  }
  surfaces_.plan_shown = !on;
}

int PlotDisplay::Redraw() {
  if (!surfaces_.window.m_hWnd) return 0;
  redraw_pending_ = true;
  plan_.ShowAllFigures();
  buttons_.InvalidateAround(surfaces_.window, buffer_.Rect());
  return 0;
}

void PlotDisplay::FinishRedraw() {
  if (!std::exchange(redraw_pending_, false)) return;
  immediate_.Release();
  buffer_.Fill();
  plan_.Trace().ForgetSegments();
  DrawWhatCanBe([&] {
    if (buffer_.Pixels().pixels && way_ == DrawingWay::kFast) {
      DibCanvas canvas(buffer_.Dc(), buffer_.Pixels(), RasterCache::OfProcess());
      shown_->Draw(canvas);
    } else {
      GdiCanvas canvas(buffer_.Dc());
      shown_->Draw(canvas);
    }
  });
  for (Overlay* overlay : shown_->Overlays()) {
    DrawWhatCanBe([&] { overlay->DrawInto(buffer_.Dc()); });
  }
}

void PlotDisplay::LeaveOutNewFigures() {
  if (redraw_pending_) plan_.LeaveOutNewFigures();
}

int PlotDisplay::ViewChanged() {
  plan_.Frame().FollowView();
  return Redraw();
}

void PlotDisplay::Paint(CDC& paint, const CRect& clip) {
  immediate_.Release();
  paint.BitBlt(clip.left, clip.top, clip.Width(), clip.Height(), &buffer_.Dc(), clip.left, clip.top,
               SRCCOPY);
  for (Overlay* overlay : shown_->Overlays()) {
    DrawWhatCanBe([&] { overlay->PutBack(paint); });
  }
}

}  // namespace tavix
