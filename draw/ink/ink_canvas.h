// The plan drawn straight into the bits of a one-bit picture.
#pragma once

#include <cstdint>
#include <optional>

#include "draw/dib/bounded_cache.h"
#include "draw/dib/lazy_gdi.h"
#include "draw/ink/ink_mask.h"
#include "draw/ink/ink_probe.h"
#include "draw/ink/one_bit_bitmap.h"
#include "draw/plan_canvas.h"

namespace tavix {

// The pixels of GdiCanvas in a fraction of its time: marks and labels that have been read back from
// GDI are drawn here. All else goes through GDI, in the order it comes.
class InkCanvas : public PlanCanvas {
 public:
  // `picture` has been made, is `width` by `height` pixels and outlives the canvas.
  InkCanvas(OneBitBitmap& picture, int width, int height);

  [[nodiscard]] ScreenBox Visible() const override { return gdi_.Visible(); }
  void UsePen(const Pen& pen) override { gdi_.UsePen(pen); }
  void Line(const ScreenSegment& segment) override { gdi_.Line(segment); }
  void Circle(ScreenPoint centre, int radius) override { gdi_.Circle(centre, radius); }
  void UsePointSymbol(const PointSymbol& symbol) override;
  void UseTextColor(std::uint32_t color) override;
  void Mark(ScreenPoint at) override;
  void Label(ScreenPoint at, NameView text) override;

 private:
  struct CachedMark {
    explicit CachedMark(const PointSymbol& symbol) : mark(InkMark::Probe(symbol)) {}
    std::optional<InkMark> mark;
  };

  LazyGdi<InkBlock> gdi_;
  BoundedCache<PointSymbol, CachedMark, kMostMarks> marks_;
  MemoryBudget glyph_memory_{std::size_t{16} << 20};
  BoundedCache<int, InkLabels, kMostFonts> fonts_;  // by height
  bool text_is_black_ = true;

  // Null: GDI draws it.
  const InkMark* mark_ = nullptr;
  InkLabels* labels_ = nullptr;
};

}  // namespace tavix
