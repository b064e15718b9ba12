#include "bench/redraw_scene.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace tavix {
namespace {

constexpr int kMostLines = 20000;
constexpr int kFigures = 100;
constexpr int kFigurePoints = 100;

void AddPoints(RedrawScene& scene, int count, std::mt19937& random) {
  std::uniform_real_distribution<double> jitter(-0.3, 0.3);
  const int columns = std::max(1, static_cast<int>(std::ceil(std::sqrt(count))));
  const double cell = kSceneSide / columns;
  for (int i = 0; i < count; ++i) {
    const int row = i / columns;
    const int column = row % 2 == 0 ? i % columns : columns - 1 - i % columns;
    const double x = kSceneSide - (row + 0.5 + jitter(random)) * cell;
    scene.points.push_back({x, (column + 0.5 + jitter(random)) * cell});
    scene.names.push_back(L"P" + std::to_wstring(i + 1));
  }
}

void AddFigures(RedrawScene& scene, std::mt19937& random) {
  std::uniform_real_distribution<double> middle(0.08 * kSceneSide, 0.92 * kSceneSide);
  std::uniform_real_distribution<double> size(0.02 * kSceneSide, 0.07 * kSceneSide);
  for (int i = 0; i < kFigures; ++i) {
    const GroundPoint centre{middle(random), middle(random)};
    const double radius = size(random);
    std::vector<GroundPoint>& figure = scene.figures.emplace_back();
    for (int k = 0; k < kFigurePoints; ++k) {
      const double angle = 6.0 * k / kFigurePoints;
      const double reach = radius * (1.0 + 0.1 * std::sin(9.0 * angle));
      figure.push_back(
          {centre.north + reach * std::cos(angle), centre.east + reach * std::sin(angle)});
    }
  }
}

// The view's own arithmetic without its questions: rotation, scale, truncation.
class FloorView {
 public:
  FloorView(const CViewState& view, SIZE size)
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

class FloorPen {
 public:
  FloorPen(HDC dc, COLORREF color)
      : dc_(dc), pen_(::CreatePen(PS_SOLID, 1, color)), old_(::SelectObject(dc, pen_)) {}
  ~FloorPen() {
    ::SelectObject(dc_, old_);
    ::DeleteObject(pen_);
  }
  FloorPen(const FloorPen&) = delete;
  FloorPen& operator=(const FloorPen&) = delete;

 private:
  HDC dc_;
  HPEN pen_;
  HGDIOBJ old_;
};

bool DrawLine(HDC dc, SIZE size, POINT a, POINT b) {
  if ((a.x < 0 && b.x < 0) || (a.y < 0 && b.y < 0) || (a.x > size.cx && b.x > size.cx) ||
      (a.y > size.cy && b.y > size.cy)) {
    return false;
  }
  if (a.x == b.x && a.y == b.y) ++b.x;
  ::MoveToEx(dc, a.x, a.y, nullptr);
  ::LineTo(dc, b.x, b.y);
  return true;
}

bool Touches(POINT p, SIZE size) {
  constexpr LONG kReach = 10;
  return p.x + kReach >= 0 && p.y + kReach >= 0 && p.x - kReach <= size.cx &&
         p.y - kReach <= size.cy;
}

}  // namespace

RedrawScene MakeRedrawScene(int points) {
  RedrawScene scene;
  std::mt19937 random(1);
  AddPoints(scene, points, random);
  AddFigures(scene, random);
  scene.lines = std::min(points - 1, kMostLines);
  return scene;
}

int DrawRedrawFloor(HDC dc, SIZE size, const CViewState& view_state, const RedrawScene& scene) {
  const FloorView view(view_state, size);
  const RECT all{0, 0, size.cx, size.cy};
  ::FillRect(dc, &all, ::GetSysColorBrush(COLOR_WINDOW));
  {
    const FloorPen pen(dc, kFigureColor);
    for (const std::vector<GroundPoint>& figure : scene.figures) {
      for (std::size_t i = 1; i < figure.size(); ++i) {
        DrawLine(dc, size, view.ToPixel(figure[i - 1]), view.ToPixel(figure[i]));
      }
    }
  }
  int shown = 0;
  {
    const FloorPen pen(dc, kLineColor);
    for (std::size_t i = 0; i < static_cast<std::size_t>(scene.lines); ++i) {
      const POINT start = view.ToPixel(scene.points[i]);
      shown += DrawLine(dc, size, start, view.ToPixel(scene.points[i + 1])) ? 1 : 0;
    }
  }
  const FloorPen pen(dc, kMarkColor);
  for (std::size_t i = 0; i < scene.points.size(); ++i) {
    const POINT p = view.ToPixel(scene.points[i]);
    if (!Touches(p, size)) continue;
    ::Ellipse(dc, p.x - 5, p.y - 5, p.x + 5, p.y + 5);
    const std::wstring& name = scene.names[i];
    RECT box{p.x, p.y + 2, p.x + 200, p.y - 8};
    ::DrawTextW(dc, name.c_str(), static_cast<int>(name.size()), &box, DT_NOCLIP);
    ++shown;
  }
  ::GdiFlush();
  return shown;
}

}  // namespace tavix
