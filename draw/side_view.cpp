#include "draw/side_view.h"

#include <afxwin.h>

#include <array>

#include "draw/point_painter.h"
#include "platform/wide_text.h"
#include "view/coordinates.h"
#include "view/side_projection.h"

namespace tavix {
namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGrey = RGB(128, 128, 128);
constexpr int kColumn = 20;  // the box leaves the button column's room free

Pen ThinPen(COLORREF color) { return {1, static_cast<std::int32_t>(color)}; }

void DrawBoxSides(PlanCanvas& canvas, const SideProjection& projection,
                  const std::array<ScreenPoint, 3>& corners) {
  canvas.UsePen(ThinPen(kRed));
  for (std::size_t i = 1; i < corners.size(); ++i) {
    canvas.Line({projection.Project(corners[i - 1]), projection.Project(corners[i])});
  }
}

void DrawFootCross(PlanCanvas& canvas, ScreenPoint at) {
  canvas.Line({{at.x - 1, at.y - 1}, {at.x + 2, at.y + 2}});
  canvas.Line({{at.x - 1, at.y + 1}, {at.x + 2, at.y - 2}});
}

void DrawFeet(PlanCanvas& canvas, const SideData& data, const SideProjection& projection) {
  canvas.UsePen(ThinPen(kBlack));
  PointPainter painter(canvas, data.view, data.legend);
  data.points.ForEach([&](const Point3& point) {
    ScreenPoint at;
    if (painter.Find(point.legend, point.at, at) && painter.HasMark()) {
      DrawFootCross(canvas, projection.Project(at));
    }
  });
}

// Left of the box's front face, where a point below the height base is hidden by the ground.
bool IsBehindFrontFace(ScreenPoint at, int buffer_height) {
  const double f = buffer_height * 0.8660254 - at.x;
  return f <= 0 || f * 0.5773502717125849 < buffer_height - at.y;
}

// Draws the marks and labels of the points, one after another.
class SidePoints {
 public:
  SidePoints(PlanCanvas& canvas, const SideData& data, const SideProjection& projection)
      : canvas_(canvas),
        data_(data),
        projection_(projection),
        painter_(canvas, data.view, data.legend) {}

  void Draw(const Point3& point) {
    ScreenPoint plan;
    if (!painter_.Find(point.legend, point.at, plan)) return;
    const ScreenPoint foot = projection_.Project(plan);
    const int raise = data_.view.LengthToPixels(point.z - data_.height_base);
    const ScreenPoint at{foot.x, TruncateToInt(static_cast<double>(foot.y) - raise)};
    if (at.y < 0 || at.y > projection_.Height()) return;

    SetHidden(raise < 0 && IsBehindFrontFace(at, projection_.Height()));
    painter_.DrawAt(at, point.number, point.name);
  }

 private:
  // Points that the ground hides are thin and grey.
  void SetHidden(bool hidden) {
    if (hidden == hidden_) return;
    hidden_ = hidden;
    painter_.UsePen(hidden ? std::optional(ThinPen(kGrey)) : std::nullopt);
    canvas_.UseTextColor(hidden ? kGrey : kBlack);
  }

  PlanCanvas& canvas_;
  const SideData& data_;
  const SideProjection& projection_;
  PointPainter painter_;
  bool hidden_ = false;
};

void DrawPoints(PlanCanvas& canvas, const SideData& data, const SideProjection& projection) {
  SidePoints points(canvas, data, projection);
  data.points.ForEach([&](const Point3& point) { points.Draw(point); });
  canvas.UseTextColor(kBlack);
}

void DrawHeightBase(PlanCanvas& canvas, const SideData& data) {
  constexpr int kTextHeight = 10;  // pixels
  CString text;
  text.Format(L"%.2lfm", data.height_base);
  PointSymbol symbol;
  symbol.label_height = kTextHeight;
  canvas.UsePointSymbol(symbol);
  canvas.Label({5, data.height / 2}, AsUtf16(text, static_cast<std::size_t>(text.GetLength())));
}

}  // namespace

void DrawSideView(PlanCanvas& canvas, const SideData& data) {
  const SideProjection projection(data.height);
  const int right = data.width - kColumn;
  const int bottom = data.height;
  DrawBoxSides(canvas, projection, {{{0, bottom}, {0, 0}, {right, 0}}});
  DrawFeet(canvas, data, projection);
  DrawPoints(canvas, data, projection);
  DrawBoxSides(canvas, projection, {{{0, bottom}, {right, bottom}, {right, 0}}});
  DrawHeightBase(canvas, data);
}

}  // namespace tavix
