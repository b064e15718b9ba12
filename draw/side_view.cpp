#include "draw/side_view.h"

#include <framework/scoped_select.h>

#include <array>
#include <optional>

#include "draw/point_label.h"
#include "draw/point_look.h"
#include "draw/point_mark.h"
#include "draw/style_objects.h"
#include "draw/transparent_background.h"
#include "platform/wide_text.h"
#include "view/truncate.h"

namespace tavix {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGrey = RGB(128, 128, 128);
constexpr int kColumn = 20;  // the box leaves the button column's room free

void DrawBoxSides(CDC& dc, const SideProjection& projection,
                  const std::array<ScreenPoint, 3>& corners) {
  const CPen red(PS_SOLID, 1, kRed);
  const CScopedSelect pen(dc, red);
  std::array<POINT, 3> line;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const ScreenPoint at = projection.Project(corners[i]);
    line[i] = {at.x, at.y};
  }
  dc.Polyline(line.data(), static_cast<int>(line.size()));
}

void DrawFootCross(CDC& dc, ScreenPoint at) {
  dc.MoveTo(at.x - 1, at.y - 1);
  dc.LineTo(at.x + 2, at.y + 2);
  dc.MoveTo(at.x - 1, at.y + 1);
  dc.LineTo(at.x + 2, at.y - 2);
}

void DrawFeet(CDC& dc, const SideData& data, const SideProjection& projection) {
  const CScopedSelect black(dc, BLACK_PEN);
  PointLook look(data.view, data.legend);
  data.points.ForEach([&](const Point3& point) {
    look.Use(point.legend);
    ScreenPoint at;
    if (look.Style().prm1 > 0 && data.view.CircleOnScreen(point.at, look.Margin(), at)) {
      DrawFootCross(dc, projection.Project(at));
    }
  });
}

// Left of the box's front face, where a point below the height base is hidden by the ground.
bool IsBehindFrontFace(ScreenPoint at, int buffer_height) {
  const double f = buffer_height * 0.8660254 - at.x;
  return f <= 0 || f * 0.5773502717125849 < buffer_height - at.y;
}

// The grey look of a hidden point, for as long as it lives.
class Hidden {
 public:
  Hidden(CDC& dc, const SideData& data, int kind)
      : dc_(dc), pen_(dc, data.grey_pen), old_color_(dc.SetTextColor(kGrey)) {
    if (kind >= kFirstFilledMark) brush_.emplace(dc, data.grey_brush);
  }
  ~Hidden() { dc_.SetTextColor(old_color_); }
  Hidden(const Hidden&) = delete;
  Hidden& operator=(const Hidden&) = delete;

 private:
  CDC& dc_;
  CScopedSelect pen_;
  std::optional<CScopedSelect> brush_;
  COLORREF old_color_;
};

void DrawSideLabel(CDC& dc, const LegendStyle& style, ScreenPoint at, int raise, NameView text) {
  const int length = static_cast<int>(text.size());
  const LabelBox box = PlaceLabel(at, style.prm1, style.prm2, length);
  RECT rect{box.left, box.top, box.right,
            TruncateToInt(static_cast<double>(box.top) - raise - style.prm2)};
  dc.DrawText(AsWide(text.data()), length, &rect, DT_NOCLIP);
}

void DrawSidePoint(CDC& dc, const SideData& data, const SideProjection& projection,
                   const PointLook& look, const Point3& point) {
  ScreenPoint plan;
  if (!data.view.CircleOnScreen(point.at, look.Margin(), plan)) return;
  const ScreenPoint foot = projection.Project(plan);
  const int raise = data.view.LengthToPixels(point.z - data.height_base);
  const ScreenPoint at{foot.x, TruncateToInt(static_cast<double>(foot.y) - raise)};
  if (at.y < 0 || at.y > projection.Height()) return;

  const LegendStyle& style = look.Style();
  std::optional<Hidden> hidden;
  if (raise < 0 && IsBehindFrontFace(at, projection.Height())) hidden.emplace(dc, data, style.kind);
  if (style.prm1 > 0) DrawMark(dc, style.kind, style.prm1, at);
  if (style.prm2 > 0) {
    const LabelText label(style, point.number, point.name);
    if (!label.Text().empty()) DrawSideLabel(dc, style, at, raise, label.Text());
  }
}

void DrawPoints(CDC& dc, const SideData& data, const SideProjection& projection) {
  PointLook look(data.view, data.legend);
  StyleObjects objects(dc);
  data.points.ForEach([&](const Point3& point) {
    if (look.Use(point.legend)) objects.UseForPoints(look.Style());
    DrawSidePoint(dc, data, projection, look, point);
  });
}

void DrawHeightBase(CDC& dc, const SideData& data) {
  const CScopedSelect font(dc, data.label_font);
  CString text;
  text.Format(L"%.2lfm", data.height_base);
  const int middle = data.buffer.cy / 2;
  RECT rect{5, middle, 5, middle};
  dc.DrawText(text, text.GetLength(), &rect, DT_NOCLIP);
}

}  // namespace

void DrawSideView(CDC& dc, const SideData& data) {
  const TransparentBackground transparent(dc);
  const SideProjection projection(data.buffer.cy);
  const int right = data.buffer.cx - kColumn;
  const int bottom = data.buffer.cy;
  DrawBoxSides(dc, projection, {{{0, bottom}, {0, 0}, {right, 0}}});
  DrawFeet(dc, data, projection);
  DrawPoints(dc, data, projection);
  DrawBoxSides(dc, projection, {{{0, bottom}, {right, bottom}, {right, 0}}});
  DrawHeightBase(dc, data);
}

}  // namespace tavix
