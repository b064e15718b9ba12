// The plan view drawn straight into the bits of a one-bit picture.
#pragma once

#include <cstdint>
#include <optional>

#include "draw/dib/few_looks.h"
#include "draw/dib/lazy_plain.h"
#include "draw/ink/ink_block.h"
#include "draw/ink/ink_labels.h"
#include "draw/ink/ink_mark.h"
#include "draw/one_bit_canvas.h"
#include "draw/plan_canvas.h"

namespace tavix {

// The pixels of GdiCanvas in a fraction of its time: marks and labels that have been learnt of
// the system are drawn here. All else goes through a plain canvas, in the order it comes.
class InkCanvas : public PlanCanvas {
 public:
  // `picture` has been made, is `width` by `height` pixels and outlives the canvas.
  InkCanvas(OneBitCanvas& picture, int width, int height);

  [[nodiscard]] ScreenBox Visible() const override { return plain_.Visible(); }
  void UsePen(const Pen& pen) override { plain_.UsePen(pen); }
  void Line(const ScreenSegment& segment) override { plain_.Line(segment); }
  void Circle(ScreenPoint centre, int radius) override { plain_.Circle(centre, radius); }
  void UsePointSymbol(const PointSymbol& symbol) override;
  void UseTextColor(std::uint32_t color) override;
  void Mark(ScreenPoint at) override;
  void Label(ScreenPoint at, NameView text) override;

 private:
  struct LearntMark {
    explicit LearntMark(const PointSymbol& symbol) : mark(InkMark::Learn(symbol)) {}
    std::optional<InkMark> mark;
  };

  LazyPlain<InkBlock> plain_;
  FewLooks<PointSymbol, LearntMark, kMostMarks> marks_;
  FewLooks<int, InkLabels, kMostFonts> fonts_;  // by height
  bool text_is_black_ = true;

  // Null: the system draws it.
  const InkMark* mark_ = nullptr;
  InkLabels* labels_ = nullptr;
};

}  // namespace tavix
