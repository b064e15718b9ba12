// The plan drawn straight into the bits of a one-bit picture.
#pragma once

#include <cstdint>

#include "draw/dib/lazy_gdi.h"
#include "draw/ink/ink_cache.h"
#include "draw/ink/ink_mask.h"
#include "draw/ink/one_bit_bitmap.h"
#include "draw/plan_canvas.h"

namespace tavix {

// The pixels of GdiCanvas in a fraction of its time: lines, and marks and labels that have been
// read back from GDI, are drawn here. All else goes through GDI, in the order it comes.
class InkCanvas : public PlanCanvas {
 public:
  // `picture` has been made and is `width` by `height` pixels. Both outlive the canvas.
  InkCanvas(OneBitBitmap& picture, int width, int height, InkCache& cache);

  [[nodiscard]] ScreenBox Visible() const override { return gdi_.Visible(); }
  void UsePen(const Pen& pen) override;
  void Line(const ScreenSegment& segment) override;
  void Circle(ScreenPoint centre, int radius) override { gdi_.Circle(centre, radius); }
  void UsePointSymbol(const PointSymbol& symbol) override;
  void UseTextColor(std::uint32_t color) override;
  void Mark(ScreenPoint at) override;
  void Label(ScreenPoint at, NameView text) override;

 private:
  LazyGdi<InkBlock> gdi_;
  InkCache& cache_;
  bool text_is_black_ = true;

  // Null: GDI draws it.
  const TieRule* lines_ = nullptr;
  const InkMark* mark_ = nullptr;
  InkLabels* labels_ = nullptr;
  std::uint32_t line_value_ = 0;
};

}  // namespace tavix
