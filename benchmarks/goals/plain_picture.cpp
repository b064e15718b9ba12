#include "benchmarks/goals/plain_picture.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tavix {
namespace {

// The view's own arithmetic without its questions: scale, rotation, truncation.
class PlainView {
 public:
  PlainView(const CViewState& view, SIZE size)
      : scale_(view.Scale()),
        cos_a_(view.CosA()),
        sin_a_(view.SinA()),
        centre_(view.Centre()),
        half_width_(size.cx / 2),
        half_height_(size.cy / 2) {}

  [[nodiscard]] POINT ToPixel(GroundPoint at) const {
    const double dx = (at.east - centre_.east) * scale_ + half_width_ - half_width_;
    const double dy = (centre_.north - at.north) * scale_ + half_height_ - half_height_;
    return {static_cast<LONG>(dx * cos_a_ - dy * sin_a_ + half_width_),
            static_cast<LONG>(dy * cos_a_ + dx * sin_a_ + half_height_)};
  }

 private:
  double scale_;
  double cos_a_;
  double sin_a_;
  GroundPoint centre_;
  double half_width_;
  double half_height_;
};

// The lengths of a patterned line in pixels, drawn and left out in turn.
std::vector<std::int16_t> PatternOf(int kind) {
  switch (kind) {
    case 102:
      return {kDash, kGap};
    case 103:
      return {2, 2};
    case 104:
      return {kDash, kGap, kShortDash, kGap};
    case 105:
      return {kDash, kGap, kShortDash, kGap, kShortDash, kGap};
    default:
      return {};
  }
}

bool Between(double value, double a, double b) {
  return std::min(a, b) <= value && value <= std::max(a, b);
}

}  // namespace

PlainPicture::PlainPicture(SIZE size, const Look& look)
    : size_(size),
      look_(look),
      pattern_(PatternOf(look.line_kind)),
      dc_(::CreateCompatibleDC(nullptr)) {
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  bitmap_ = ::CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  bits_ = static_cast<std::uint32_t*>(bits);
  LOGFONTW font{};
  font.lfHeight = std::max(1, look.label_height);
  font.lfWeight = FW_NORMAL;
  font.lfCharSet = SHIFTJIS_CHARSET;
  font_ = ::CreateFontIndirectW(&font);
  mark_pen_ = ::CreatePen(PS_SOLID, look.mark_pen, kMarkColor);
  line_pen_ = ::CreatePen(PS_SOLID, look.line_pen, kLineColor);
  figure_pen_ = ::CreatePen(PS_SOLID, look.figure_pen, kFigureColor);
  first_bitmap_ = ::SelectObject(dc_, bitmap_);
  first_font_ = ::SelectObject(dc_, font_);
  first_pen_ = ::SelectObject(dc_, mark_pen_);
  ::SelectObject(dc_, ::GetStockObject(NULL_BRUSH));
  ::SetBkMode(dc_, TRANSPARENT);
}

PlainPicture::~PlainPicture() {
  ::SelectObject(dc_, first_bitmap_);
  ::SelectObject(dc_, first_font_);
  ::SelectObject(dc_, first_pen_);
  for (const HGDIOBJ object :
       std::array<HGDIOBJ, 5>{bitmap_, font_, mark_pen_, line_pen_, figure_pen_}) {
    ::DeleteObject(object);
  }
  ::DeleteDC(dc_);
}

void PlainPicture::Draw(const Survey& survey, const CViewState& view, Clipping clipping) {
  Fill();
  DrawFigures(survey, view, clipping);
  DrawLines(survey, view, clipping);
  const PlainView plain(view, size_);
  ::SelectObject(dc_, mark_pen_);
  for (std::size_t i = 0; i < survey.points.size(); ++i) {
    const POINT at = plain.ToPixel(survey.points[i]);
    if (!Touches(at, look_.mark_size)) continue;
    Mark(at);
    Label(at, survey.names[i]);
  }
  ::GdiFlush();
}

void PlainPicture::DrawFigures(const Survey& survey, const CViewState& view, Clipping clipping) {
  const PlainView plain(view, size_);
  ::SelectObject(dc_, figure_pen_);
  for (const Circle& circle : survey.circles) {
    const POINT at = plain.ToPixel(circle.centre);
    const LONG r = view.LengthToPixels(circle.radius);
    if (Touches(at, r)) ::Ellipse(dc_, at.x + r, at.y + r, at.x - r, at.y - r);
  }
  for (const std::vector<GroundPoint>& figure : survey.figures) {
    for (std::size_t i = 1; i < figure.size(); ++i) {
      POINT a = plain.ToPixel(figure[i - 1]);
      POINT b = plain.ToPixel(figure[i]);
      if (Clip(view, figure[i - 1], figure[i], clipping, a, b)) Line(a, b);
    }
  }
}

void PlainPicture::DrawLines(const Survey& survey, const CViewState& view, Clipping clipping) {
  const PlainView plain(view, size_);
  ::SelectObject(dc_, line_pen_);
  for (std::size_t i = 0; i < static_cast<std::size_t>(survey.lines); ++i) {
    const GroundPoint from = survey.points[i];
    const GroundPoint to = survey.points[i + 1];
    POINT a = plain.ToPixel(from);
    POINT b = plain.ToPixel(to);
    if (!Clip(view, from, to, clipping, a, b)) continue;
    if (look_.line_kind == 101) {
      Line(a, b);
    } else {
      PatternedLine(view, from, to);
    }
  }
}

void PlainPicture::DrawSide(const Survey& survey, const std::vector<double>& heights,
                            const CViewState& view) {
  const PlainView plain(view, size_);
  const SideProjection projection(size_.cy);
  const int right = size_.cx - 20;
  const int bottom = size_.cy;
  Fill();
  BoxSides(projection, {{{0, bottom}, {0, 0}, {right, 0}}});
  ::SelectObject(dc_, ::GetStockObject(BLACK_PEN));
  for (const GroundPoint& point : survey.points) {
    const POINT at = plain.ToPixel(point);
    if (!Touches(at, look_.mark_size)) continue;
    const ScreenPoint foot = projection.Project({at.x, at.y});
    Line({foot.x - 1, foot.y - 1}, {foot.x + 2, foot.y + 2});
    Line({foot.x - 1, foot.y + 1}, {foot.x + 2, foot.y - 2});
  }
  ::SelectObject(dc_, mark_pen_);
  for (std::size_t i = 0; i < survey.points.size(); ++i) {
    const POINT at = plain.ToPixel(survey.points[i]);
    if (!Touches(at, look_.mark_size)) continue;
    const ScreenPoint foot = projection.Project({at.x, at.y});
    const POINT head{foot.x, foot.y - static_cast<LONG>(view.Scale() * heights[i])};
    if (head.y < 0 || head.y > size_.cy) continue;
    Mark(head);
    Label(head, survey.names[i]);
  }
  BoxSides(projection, {{{0, bottom}, {right, bottom}, {right, 0}}});
  RECT corner{5, size_.cy / 2, 5, size_.cy / 2};
  ::DrawTextW(dc_, L"0.00m", -1, &corner, DT_NOCLIP);
  ::GdiFlush();
}

void PlainPicture::DrawPoint(const Survey& survey, std::size_t i, const CViewState& view) {
  const POINT at = PlainView(view, size_).ToPixel(survey.points[i]);
  if (!Touches(at, look_.mark_size)) return;
  Mark(at);
  Label(at, survey.names[i]);
}

std::vector<std::uint32_t> PlainPicture::Pixels() const {
  ::GdiFlush();
  std::vector<std::uint32_t> pixels(bits_, bits_ + static_cast<std::size_t>(size_.cx * size_.cy));
  for (std::uint32_t& pixel : pixels) pixel &= 0xFFFFFF;
  return pixels;
}

void PlainPicture::Fill() {
  const RECT all{0, 0, size_.cx, size_.cy};
  ::FillRect(dc_, &all, ::GetSysColorBrush(COLOR_WINDOW));
}

void PlainPicture::Line(POINT a, POINT b) {
  if (a.x == b.x && a.y == b.y) ++b.x;
  ::MoveToEx(dc_, a.x, a.y, nullptr);
  ::LineTo(dc_, b.x, b.y);
}

bool PlainPicture::Clip(const CViewState& view, GroundPoint from, GroundPoint to, Clipping clipping,
                        POINT& a, POINT& b) const {
  if (clipping == Clipping::kByView) {
    ScreenSegment clipped;
    if (!view.ClipGroundSegment(from, to, clipped)) return false;
    a = {clipped.start.x, clipped.start.y};
    b = {clipped.end.x, clipped.end.y};
    return true;
  }
  return !((a.x < 0 && b.x < 0) || (a.y < 0 && b.y < 0) || (a.x > size_.cx && b.x > size_.cx) ||
           (a.y > size_.cy && b.y > size_.cy));
}

// Steps from the start in whole pieces until one would leave the line.
void PlainPicture::PatternedLine(const CViewState& view, GroundPoint from, GroundPoint to) {
  const PlainView plain(view, size_);
  const double metres = std::hypot(to.north - from.north, to.east - from.east);
  const RealScreenPoint a = view.GroundToRealScreen(from);
  const RealScreenPoint b = view.GroundToRealScreen(to);
  const double pixels_per_metre = std::hypot(b.x - a.x, b.y - a.y) / metres;
  const auto step = [&](GroundPoint at, std::int16_t pixels) {
    const double length = pixels / pixels_per_metre;
    return GroundPoint{at.north + (to.north - from.north) / metres * length,
                       at.east + (to.east - from.east) / metres * length};
  };
  const auto on_line = [&](GroundPoint at) {
    return Between(at.north, from.north, to.north) && Between(at.east, from.east, to.east);
  };
  GroundPoint at = from;
  while (true) {
    for (std::size_t i = 0; i < pattern_.size(); i += 2) {
      const GroundPoint end = step(at, pattern_[i]);
      if (!on_line(end)) {
        Line(plain.ToPixel(at), plain.ToPixel(to));
        return;
      }
      Line(plain.ToPixel(at), plain.ToPixel(end));
      at = step(end, pattern_[i + 1]);
      if (!on_line(at)) return;
    }
  }
}

void PlainPicture::Mark(POINT at) {
  if (look_.mark_size <= 0) return;
  const int half = look_.mark_size / 2;
  ::Ellipse(dc_, at.x - half, at.y - half, at.x + half, at.y + half);
}

void PlainPicture::Label(POINT at, const std::wstring& text) {
  if (look_.label_height <= 0) return;
  const LONG bottom = at.y + look_.mark_size / 4;
  const auto length = static_cast<int>(text.size());
  RECT box{at.x, bottom, at.x + 2 * length * look_.label_height, bottom - look_.label_height};
  ::DrawTextW(dc_, text.c_str(), length, &box, DT_NOCLIP);
}

void PlainPicture::BoxSides(const SideProjection& projection,
                            const std::array<ScreenPoint, 3>& corners) {
  const HPEN red = ::CreatePen(PS_SOLID, 1, RGB(255, 0, 0));
  ::SelectObject(dc_, red);
  for (std::size_t i = 1; i < corners.size(); ++i) {
    const ScreenPoint a = projection.Project(corners[i - 1]);
    const ScreenPoint b = projection.Project(corners[i]);
    Line({a.x, a.y}, {b.x, b.y});
  }
  ::SelectObject(dc_, mark_pen_);
  ::DeleteObject(red);
}

bool PlainPicture::Touches(POINT at, LONG reach) const {
  return at.x + reach >= 0 && at.y + reach >= 0 && at.x - reach <= size_.cx &&
         at.y - reach <= size_.cy;
}

}  // namespace tavix
