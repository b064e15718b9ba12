// Draws points, one after another, each with the symbol of its legend.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "draw/plan_canvas.h"
#include "draw/symbol_in_use.h"
#include "store/point_list.h"
#include "view/view_state.h"

namespace tavix {

// Draws the points of one pass on one canvas: of the plan, where they lie, and of the side view,
// which raises them.
class PointPainter {
 public:
  PointPainter(PlanCanvas& canvas, const CViewState& view, const LegendTable& legend)
      : canvas_(canvas), view_(view), symbol_(legend) {}

  // The point's mark, then its label. A point out of view draws nothing.
  void Draw(const Point& point) {
    ScreenPoint at;
    if (Find(point.legend, point.at, at)) DrawAt(at, point.number, point.name);
  }

  // The same after points that cannot show and were left out.
  void Draw(const Point& point, std::span<const PntRec> passed_over) {
    if (!symbol_.Decides(point.legend)) UseLast(passed_over);
    Draw(point);
  }

  // Takes the symbol of a legend number into use and gives the pixel of the plan of a point at
  // `ground`. False where its mark is out of view.
  [[nodiscard]] bool Find(std::int16_t legend, GroundPoint ground, ScreenPoint& at);

  // Whether the symbol in use has a mark.
  [[nodiscard]] bool HasMark() const { return symbol_.Get().size > 0; }

  // Draws the mark and the label of a point with the symbol in use.
  void DrawAt(ScreenPoint at, std::int32_t number, NameView name);

  // From now on draws with `pen` in place of the symbols' pens; nullopt gives these back.
  void UsePen(std::optional<Pen> pen);

 private:
  void Use(std::int16_t legend);
  // Leaves the symbol in use that is in use after all of these points.
  void UseLast(std::span<const PntRec> points);

  PlanCanvas& canvas_;
  const CViewState& view_;
  SymbolInUse<PointSymbol> symbol_;
  double margin_ = 0.0;  // how far a mark of the symbol reaches on the ground, in metres
  std::optional<Pen> pen_;
  bool on_canvas_ = false;  // the canvas has the symbol in use
};

// Draws all points of a list that show.
void DrawPoints(PlanCanvas& canvas, const CViewState& view, const LegendTable& legend,
                const CPntList& points);

}  // namespace tavix
