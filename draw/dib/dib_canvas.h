// The plan view drawn straight into the bits of a bitmap section.
#pragma once

#include <afxwin.h>

#include <cstdint>

#include "draw/dib/lazy_plain.h"
#include "draw/dib/learnt_drawing.h"
#include "draw/dib/pixel_block.h"
#include "draw/plan_canvas.h"

namespace tavix {

// The pixels of GdiCanvas in a fraction of its time. What has been learnt of the system's drawing
// is drawn here; all else goes through a plain canvas, in the order it comes.
class DibCanvas : public PlanCanvas {
 public:
  // `block` is what `dc` draws into, with neither clipping nor a mapping of its own. All outlive
  // the canvas.
  DibCanvas(CDC& dc, const PixelBlock& block, LearntDrawing& learnt);

  [[nodiscard]] ScreenBox Visible() const override { return plain_.Visible(); }
  void UsePen(const Pen& pen) override;
  void Line(const ScreenSegment& segment) override;
  void Circle(ScreenPoint centre, int radius) override;
  void UsePointSymbol(const PointSymbol& symbol) override;
  void Mark(ScreenPoint at) override;
  void UseTextColor(std::uint32_t color) override;
  void Label(ScreenPoint at, NameView text) override;

 private:
  void LookUpLabels();

  LazyPlain<PixelBlock> plain_;
  LearntDrawing& learnt_;

  // Null: the system draws it.
  const LineRule* lines_ = nullptr;
  const Stamp* mark_ = nullptr;
  LabelGlyphs* labels_ = nullptr;
  std::uint32_t line_color_ = 0;
  std::uint32_t text_color_;
};

}  // namespace tavix
