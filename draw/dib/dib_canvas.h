// The plan and the side view drawn straight into the pixels of a DIB section.
#pragma once

#include <afxwin.h>

#include <cstdint>

#include "draw/dib/dib_section.h"
#include "draw/dib/lazy_gdi.h"
#include "draw/dib/raster_cache.h"
#include "draw/plan_canvas.h"

namespace tavix {

// The pixels of GdiCanvas in a fraction of its time. What the raster cache has is drawn here; all
// else goes through GDI, in the order it comes.
class DibCanvas : public PlanCanvas {
 public:
  // `block` is what `dc` draws into, with neither clipping nor a mapping of its own. All outlive
  // the canvas.
  DibCanvas(CDC& dc, const PixelBlock& block, RasterCache& cache);

  // False once another canvas has been made with the same cache: what this one has of it may be
  // gone, and nothing may be drawn on it any more.
  [[nodiscard]] bool IsCurrent() const { return redraw_ == cache_.Redraws(); }

  // To be called before more is drawn where GDI may have drawn into the block meanwhile.
  void Resume() { gdi_.Resume(); }

  [[nodiscard]] ScreenBox Visible() const override { return gdi_.Visible(); }
  void UsePen(const Pen& pen) override;
  void Line(const ScreenSegment& segment) override;
  void Circle(ScreenPoint centre, int radius) override;
  void UsePointSymbol(const PointSymbol& symbol) override;
  void Mark(ScreenPoint at) override;
  void UseTextColor(std::uint32_t color) override;
  void Label(ScreenPoint at, NameView text) override;

 private:
  void FindLabels();

  LazyGdi<PixelBlock> gdi_;
  RasterCache& cache_;
  unsigned redraw_;  // of the cache, that the pointers below are of

  // Null: GDI draws it.
  const TieRule* lines_ = nullptr;
  Strokes* strokes_ = nullptr;
  const MarkMask* mark_ = nullptr;
  SmoothLabels* labels_ = nullptr;
  std::uint32_t line_color_ = 0;
  std::uint32_t text_color_;
};

}  // namespace tavix
