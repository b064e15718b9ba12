// The scene of redraw_bench, and its floor: the plainest drawing of it.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "view/view_state.h"

namespace tavix {

constexpr double kSceneSide = 10000.0;  // metres
constexpr int kSceneAngle = 15;         // degrees
constexpr COLORREF kMarkColor = RGB(0, 0, 255);
constexpr COLORREF kLineColor = RGB(0, 128, 0);
constexpr COLORREF kFigureColor = RGB(200, 0, 0);

// Flat arrays, which cost the least to draw from.
struct RedrawScene {
  std::vector<GroundPoint> points;  // on a jittered grid; point i has the key and number i + 1
  std::vector<std::wstring> names;
  int lines = 0;  // line i joins point i and the next one
  std::vector<std::vector<GroundPoint>> figures;
};

// 20,000 lines at most: a line keeps 16 bits of a key. 100 figures of 100 points.
[[nodiscard]] RedrawScene MakeRedrawScene(int points);

// Draws the scene as `view` shows it into `dc`, of the size given, by raw calls, in the same order
// and to the same pixels as the library: it fills the background and makes its own objects. Lines
// are cut by the system. Returns how many points and lines show.
int DrawRedrawFloor(HDC dc, SIZE size, const CViewState& view, const RedrawScene& scene);

}  // namespace tavix
