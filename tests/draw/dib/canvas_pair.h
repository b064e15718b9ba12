// The GDI canvas and the DIB canvas side by side.
#pragma once

#include <gtest/gtest.h>

#include "draw/dib/dib_canvas.h"
#include "draw/dib/raster_cache.h"
#include "draw/dib/reference_bitmap.h"
#include "draw/gdi_canvas.h"
#include "tests/draw/random_scene.h"

namespace tavix::test {

// Does the same on both, over the same uneven picture.
class CanvasPair : public PlanCanvas {
 public:
  CanvasPair(int width, int height, RasterCache& cache);

  [[nodiscard]] ScreenBox Visible() const override { return gdi_.Visible(); }
  void UsePen(const Pen& pen) override;
  void Line(const ScreenSegment& segment) override;
  void Circle(ScreenPoint centre, int radius) override;
  void UsePointSymbol(const PointSymbol& symbol) override;
  void Mark(ScreenPoint at) override;
  void UseTextColor(std::uint32_t color) override;
  void Label(ScreenPoint at, NameView text) override;

  // Succeeds when both pictures are the same in every bit.
  [[nodiscard]] testing::AssertionResult AreSame() const;

  // Whether anything was drawn: two pictures of nothing are the same too.
  [[nodiscard]] bool ShowSomething() const { return !before_.Equals(gdi_reference_); }

 private:
  ReferenceBitmap gdi_reference_;
  ReferenceBitmap dib_reference_;
  TrialBitmap before_;
  GdiCanvas gdi_;
  DibCanvas dib_;
};

}  // namespace tavix::test
