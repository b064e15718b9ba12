#include "draw/group_picture.h"

#include <afxwin.h>
#include <framework/scoped_select.h>

#include <array>

#include "draw/gdi_canvas.h"
#include "draw/ink/ink_canvas.h"
#include "view/coordinates.h"

namespace tavix {
namespace {

// The instance's view at the picture's size and scale.
CViewState PictureView(const CViewState& window_view, const PaperFrame& frame, int height,
                       int width, bool& cut) {
  int window_width = 0;
  int window_height = 0;
  window_view.GetScreenSize(&window_width, &window_height);
  CViewState view = window_view;
  view.SetScreenSize(width, height);
  if (frame.IsOn()) {
    cut = view.SetFitScale(width, frame.SheetWidth(), frame.ScaleFactor());
  } else if (width != window_width) {
    cut = view.ZoomIn(static_cast<double>(width) / window_width);
  }
  return view;
}

// Turns every colour but white to black: a one-bit bitmap would map light colours to white, and
// what is drawn in them would be lost.
template <class Canvas>
class BlackInk : public Canvas {
 public:
  using Canvas::Canvas;

  void UsePen(const Pen& pen) override { Canvas::UsePen(InBlack(pen)); }
  void UsePointSymbol(const PointSymbol& symbol) override {
    PointSymbol ink = symbol;
    ink.pen = InBlack(symbol.pen);
    Canvas::UsePointSymbol(ink);
  }

 private:
  static Pen InBlack(const Pen& pen) { return {pen.width, InkColor(pen.color)}; }
};

// A bar across and a one-sided arrow along north, turned with the view.
void DrawArrow(CDC& dc, ScreenPoint centre, const CViewState& view) {
  const CScopedSelect black(dc, BLACK_PEN);
  const double c = view.CosA();
  const double s = view.SinA();
  // An offset from the centre, in pixels.
  const auto at = [=](double dx, double dy) {
    return POINT{TruncateToInt(centre.x + dx), TruncateToInt(centre.y + dy)};
  };
  dc.MoveTo(at(-25 * c, -25 * s));
  dc.LineTo(at(25 * c, 25 * s));
  const std::array<POINT, 4> arrow{at(-60 * s, 60 * c), at(60 * s, -60 * c),
                                   at(-10 * c + 40 * s, -10 * s - 40 * c),
                                   at(2 * c + 12 * s, 2 * s - 12 * c)};
  dc.Polyline(arrow.data(), static_cast<int>(arrow.size()));
}

}  // namespace

bool GroupPicture::IsTooLarge(int height, int width) {
  constexpr std::size_t kMostBytes = std::size_t{1} << 28;
  if (height < 1 || width < 1) return false;
  return static_cast<std::size_t>(height) > kMostBytes / OneBitBitmap::StrideOf(width);
}

bool GroupPicture::Build(const PlotData& data, const PaperFrame& frame, int height, int width) {
  Release();
  bool cut = false;
  const CViewState view = PictureView(data.view, frame, height, width, cut);
  auto bitmap = std::make_unique<OneBitBitmap>(width, height);
  if (!bitmap->IsMade()) return cut;
  const PlotData seen{view, data.legend, data.points, data.lines, data.figures, data.draws_lines};
  if (way_ == DrawingWay::kFast) {
    BlackInk<InkCanvas> ink(*bitmap, width, height, InkCache::OfProcess());
    DrawPlanView(ink, seen);
  } else {
    BlackInk<GdiCanvas> ink(bitmap->Dc());
    DrawPlanView(ink, seen);
  }

  height_ = height;
  width_ = width;
  stride_ = bitmap->Stride();
  bits_ = bitmap->Bits();
  DrawArrow(bitmap->Dc(), FindFreeCorner(frame), view);
  bits_ = bitmap->Bits();
  bitmap_ = std::move(bitmap);
  return cut;
}

void GroupPicture::Release() {
  height_ = 0;
  width_ = 0;
  bits_ = nullptr;
  bitmap_.reset();
}

// Compatibility: the square whose one base comes from the width is scanned with that base as its
// row, while the arrow is drawn with it as its column: on a picture that is not square the two are
// mirrored.
ScreenPoint GroupPicture::FindFreeCorner(const PaperFrame& frame) const {
  constexpr int kMargin = 10;
  constexpr int kFar = 130;
  constexpr int kToMiddle = 60;
  const std::array<std::array<int, 2>, 4> bases{{{kMargin, kMargin},
                                                 {width_ - kFar, height_ - kFar},
                                                 {width_ - kFar, kMargin},
                                                 {kMargin, height_ - kFar}}};
  for (const auto& [first, second] : bases) {
    if (!HasInk(frame, first, second)) return {first + kToMiddle, second + kToMiddle};
  }
  return {kMargin + kToMiddle, kMargin + kToMiddle};
}

bool GroupPicture::HasInk(const PaperFrame& frame, int first_row, int first_column) const {
  constexpr int kRoom = 120;  // pixels, the side of the square that the arrow needs
  for (int row = first_row; row < first_row + kRoom; ++row) {
    for (int column = first_column; column < first_column + kRoom; ++column) {
      if (IsInk(frame, row, column)) return true;
    }
  }
  return false;
}

}  // namespace tavix
