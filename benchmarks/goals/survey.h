// The survey that the goals are measured with: S(N).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "view/coordinates.h"

namespace tavix {

constexpr double kSurveySide = 10000.0;  // metres
constexpr int kSurveyAngle = 15;         // degrees that the view is rotated by

// What the points are called.
enum class Naming { kAscii, kKanji, kKanjiAndNumber, kHalfWidthKana, kAmpersand };

struct Circle {
  GroundPoint centre;
  double radius;  // metres
};

// Flat arrays, which cost the least to draw from.
struct Survey {
  std::vector<GroundPoint> points;  // on a jittered grid; point i has the key and number i + 1
  std::vector<std::wstring> names;
  int lines = 0;  // line i joins points i and i + 1
  std::vector<std::vector<GroundPoint>> figures;
  std::vector<Circle> circles;
};

// N points, a line from each to the next, 100 figures of 100 points. A line keeps 16 bits of a key,
// so there are 32,766 lines at most.
[[nodiscard]] Survey MakeSurvey(int points, Naming naming = Naming::kAscii);

// Points and nothing else.
[[nodiscard]] Survey MakePoints(int points);

// How all of it is drawn.
struct Look {
  int mark_size = 10;     // hollow circles; pixels, 0 for none
  int label_height = 10;  // pixels, 0 for none
  int mark_pen = 1;       // pixels
  int line_kind = 101;
  int line_pen = 1;
  int figure_pen = 1;
};

constexpr std::uint32_t kMarkColor = 0xFF0000;  // as COLORREF: blue
constexpr std::uint32_t kLineColor = 0x008000;
constexpr std::uint32_t kFigureColor = 0x0000C8;

// The lengths of patterned lines, in pixels.
constexpr std::int16_t kDash = 4;
constexpr std::int16_t kGap = 2;
constexpr std::int16_t kShortDash = 2;

}  // namespace tavix
