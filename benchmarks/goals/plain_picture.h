// The floor of the redraws: the same picture by the plainest sequence of drawing calls from flat
// arrays, and nothing else. Transform, cull, Ellipse, DrawText, move-to and line-to.
#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <vector>

#include "benchmarks/goals/survey.h"
#include "view/side_projection.h"
#include "view/view_state.h"

namespace tavix {

class PlainPicture {
 public:
  PlainPicture(SIZE size, const Look& look);
  ~PlainPicture();
  PlainPicture(const PlainPicture&) = delete;
  PlainPicture& operator=(const PlainPicture&) = delete;

  // Timed, the system clips the lines; compared with the plot window, the view does, as the
  // window's lines are: a clipped line's pixels differ from those of the whole one.
  enum class Clipping { kBySystem, kByView };
  void Draw(const Survey& survey, const CViewState& view, Clipping clipping);

  // The 3-D side view of the points, the height base 0.
  void DrawSide(const Survey& survey, const std::vector<double>& heights, const CViewState& view);

  // Draws point `i` alone.
  void DrawPoint(const Survey& survey, std::size_t i, const CViewState& view);

  // 0x00RRGGBB, row by row from the top.
  [[nodiscard]] std::vector<std::uint32_t> Pixels() const;
  [[nodiscard]] HDC Dc() const { return dc_; }

 private:
  void Fill();
  void Line(POINT a, POINT b);
  // False where nothing of the line shows.
  [[nodiscard]] bool Clip(const CViewState& view, GroundPoint from, GroundPoint to,
                          Clipping clipping, POINT& a, POINT& b) const;
  void PatternedLine(const CViewState& view, GroundPoint from, GroundPoint to);
  void DrawFigures(const Survey& survey, const CViewState& view, Clipping clipping);
  void DrawLines(const Survey& survey, const CViewState& view, Clipping clipping);
  void Mark(POINT at);
  void Label(POINT at, const std::wstring& text);
  void BoxSides(const SideProjection& projection, const std::array<ScreenPoint, 3>& corners);
  [[nodiscard]] bool Touches(POINT at, LONG reach) const;

  SIZE size_;
  Look look_;
  std::vector<std::int16_t> pattern_;
  HDC dc_;
  std::uint32_t* bits_ = nullptr;
  HBITMAP bitmap_;
  HFONT font_;
  HPEN mark_pen_;
  HPEN line_pen_;
  HPEN figure_pen_;
  HGDIOBJ first_bitmap_;
  HGDIOBJ first_font_;
  HGDIOBJ first_pen_;
};

}  // namespace tavix
