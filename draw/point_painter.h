// Draws points, one after another, with the objects of their legend.
#pragma once

#include <afxwin.h>

#include <cstdint>

#include "draw/legend_pen.h"
#include "store/legend_table.h"
#include "store/point_list.h"
#include "view/view_state.h"

namespace tavix {

// The pen, brush and font of one legend entry at a time, made when a point with another legend
// number comes and selected into the device context. The destructor puts back what was selected
// before.
class PointLook {
 public:
  PointLook(CDC& dc, const CViewState& view, const LegendTable& legend);
  ~PointLook();
  PointLook(const PointLook&) = delete;
  PointLook& operator=(const PointLook&) = delete;

  // Makes `legend` the current entry.
  void Use(std::int16_t legend);

  [[nodiscard]] const LegendStyle& Style() const { return style_; }

  // How far a mark of this entry reaches on the ground, in metres.
  [[nodiscard]] double Margin() const { return margin_; }

 private:
  void MakeObjects();
  void DropObjects();

  CDC& dc_;
  const CViewState& view_;
  LegendPen pen_;
  LegendStyle style_;
  double margin_ = 0.0;
  CBrush brush_;
  CFont font_;
  CBrush* old_brush_ = nullptr;
  CFont* old_font_ = nullptr;
};

// Draws one point of the plan view: its mark, then its label. A point out of view draws nothing.
void DrawPlanPoint(CDC& dc, const CViewState& view, PointLook& look, const Point& point);

}  // namespace tavix
