#include "window/plot_display.h"

#include "draw/dib/dib_canvas.h"
#include "draw/gdi_canvas.h"

namespace tavix {

PlotDisplay::PlotDisplay(CWnd& window, const PlotLinks& links, const RatioSetting& ratio)
    : surfaces_{window, buffer_.Dc(), links.view},
      band_(window),
      plan_(links, surfaces_, ratio, band_),
      side_(links, buffer_, band_) {}

void PlotDisplay::ShowSideView(bool on) {
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
  buffer_.Fill();
  plan_.Trace().ForgetSegments();
  DrawWhatCanBe([&] {
    if (buffer_.Pixels().pixels) {
      DibCanvas canvas(buffer_.Dc(), buffer_.Pixels(), raster_cache_);
      shown_->Draw(canvas);
    } else {
      GdiCanvas canvas(buffer_.Dc());
      shown_->Draw(canvas);
    }
  });
  for (Overlay* overlay : shown_->Overlays()) {
    DrawWhatCanBe([&] { overlay->DrawInto(buffer_.Dc()); });
  }
  surfaces_.window.InvalidateRect(&buffer_.Rect(), TRUE);
  return 0;
}

int PlotDisplay::ViewChanged() {
  plan_.Frame().FollowView();
  return Redraw();
}

void PlotDisplay::Paint(CDC& paint, const CRect& clip) {
  paint.BitBlt(clip.left, clip.top, clip.Width(), clip.Height(), &buffer_.Dc(), clip.left, clip.top,
               SRCCOPY);
  for (Overlay* overlay : shown_->Overlays()) {
    DrawWhatCanBe([&] { overlay->PutBack(paint); });
  }
}

}  // namespace tavix
