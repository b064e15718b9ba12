// What the view of the current instance is, as taps on the plan and the calls that ask for it show,
// held against the model and against itself.
#include <tavix/tavix.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>
#include <sstream>

#include "tests/storm/storm.h"
#include "window/buttons/button_column_layout.h"
#include "window/buttons/button_table.h"

namespace tavix::storm {
namespace {

constexpr double kLargestScale = 100000.0;  // pixels per metre
// A column of this height, in pixels, has room for one button and for those that scroll.
constexpr int kOneButton = 60;

bool IsFinite(const ModelGround& ground) {
  return std::isfinite(ground.north) && std::isfinite(ground.east);
}

std::string Text(const ModelGround& ground) {
  std::ostringstream text;
  text.precision(17);
  text << ground.north << ", " << ground.east;
  return text.str();
}

HWND PlotWindow() {
  const CWnd* window = Tavix_Wnd();
  return window && ::IsWindow(window->m_hWnd) ? window->m_hWnd : nullptr;
}

// Whether the style of a window lets it show, whatever its parent does.
bool IsShown(HWND window) { return (::GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0; }

// The drawing area in pixels.
SIZE DrawingArea(const Model& model) {
  return {model.window.client.cx - (model.buttons ? ButtonColumnLayout::kWidth : 0),
          model.window.client.cy};
}

// What a tap on a pixel captured.
struct Captured {
  bool any = false;                   // not where the user chose another mode, or on a button
  std::optional<ModelGround> ground;  // not where a point was hit
};

Captured Capture(const Model& model, HWND plot, POINT pixel) {
  constexpr int kAnyCommand = 4321;
  Tavix_CrdStt(kAnyCommand);  // forgets the coordinate before
  const LPARAM at = MAKELPARAM(pixel.x, pixel.y);
  ::SendMessageW(plot, WM_LBUTTONDOWN, MK_LBUTTON, at);
  ::SendMessageW(plot, WM_LBUTTONUP, 0, at);
  ModelGround ground;
  if (Tavix_CrdGet(&ground.north, &ground.east) != 0) return {};
  const auto& points = model.points.All();
  const bool is_point = std::any_of(points.begin(), points.end(), [&](const ModelPoint& point) {
    return std::memcmp(point.at.data(), &ground, sizeof ground) == 0;
  });
  return {true, is_point ? std::nullopt : std::optional(ground)};
}

// Middle and corners of the drawing area: middle, top left, top right, bottom left, bottom right.
std::array<POINT, 5> Pixels(SIZE area) {
  return {{{area.cx / 2, area.cy / 2},
           {1, 1},
           {area.cx - 1, 1},
           {1, area.cy - 1},
           {area.cx - 1, area.cy - 1}}};
}

// Taps the pixels. False when a tap captured nothing: it may have been for a mode that changes the
// view.
bool Measure(const Model& model, HWND plot, MeasuredView& view) {
  const auto pixels = Pixels(DrawingArea(model));
  bool all = true;
  for (std::size_t i = 0; i < pixels.size() && all; ++i) {
    const Captured captured = Capture(model, plot, pixels[i]);
    all = captured.any;
    view[i] = captured.ground;
  }
  Tavix_CrdEnd();
  return all;
}

// How many metres the doubles near a coordinate are apart.
double Spacing(const ModelGround& ground) {
  const double largest = std::max(std::fabs(ground.north), std::fabs(ground.east));
  return std::nextafter(largest, HUGE_VAL) - largest;
}

// The pixels of a view that does not lie beyond what doubles can tell apart.
void CheckScale(Storm& storm, const MeasuredView& view) {
  const Model& model = storm.Now();
  const auto& [tate, yoko] = model.window.ratio;
  if (!std::all_of(view.begin(), view.end(),
                   [](const auto& each) { return each && IsFinite(*each); })) {
    return;
  }
  const ModelGround &top_left = *view[1], &top_right = *view[2], &bottom_left = *view[3],
                    &bottom_right = *view[4];
  const SIZE area = DrawingArea(model);
  const double across = area.cx - 2;
  const double down = area.cy - 2;
  const double angle = model.angle * std::numbers::pi / 180;
  // What a pixel of the screen's axes is on the ground: per pixel, turned back to north up.
  const double east = (top_right.east - top_left.east) / across * std::cos(angle) +
                      (bottom_left.east - top_left.east) / down * std::sin(angle);
  const double north = (top_right.north - top_left.north) / across * std::sin(angle) -
                       (bottom_left.north - top_left.north) / down * std::cos(angle);
  const double noise = 16 * std::max({Spacing(top_left), Spacing(top_right), Spacing(bottom_left),
                                      Spacing(bottom_right), Spacing(*view[0])});
  const double size = std::max(std::fabs(east), std::fabs(north)) * std::max(across, down);
  if (noise > 1e-4 * size || size == 0) return;  // the corners are hardly apart
  const double slack = noise + 1e-9 * size;
  const auto expect_near = [&](double expected, double actual, const char* what) {
    storm.Expect(
        std::fabs(expected - actual) <= slack,
        std::string(what) + ": " + std::to_string(actual) + " m, not " + std::to_string(expected));
  };
  storm.Expect(1 / std::fabs(east) <= kLargestScale * (1 + slack / size * across),
               "the scale is " + std::to_string(1 / east));
  expect_near(bottom_left.east + top_right.east - top_left.east, bottom_right.east,
              "the fourth corner's east");
  expect_near(bottom_left.north + top_right.north - top_left.north, bottom_right.north,
              "the fourth corner's north");
  expect_near(across * east * std::cos(angle), top_right.east - top_left.east, "angle, across");
  expect_near(down * -north * std::cos(angle), bottom_left.north - top_left.north, "angle, down");
  if (model.window.ratio_counts && tate != 0 && yoko != 0) {
    expect_near(east * across * yoko / tate, north * across, "vertical ratio");
  }
  if (const auto scale = model.window.scale) expect_near(across / *scale, across * east, "scale");
  // And back to the screen: what lies under a pixel of the window is seen in it.
  for (const auto& each : view) {
    int visible = -1;
    storm.ExpectCode(0, Tavix_ChkCrd(each->north, each->east, &visible));
    storm.Expect(visible == 1, "ground that was tapped is not in view: " + Text(*each));
  }
  // Half a window beyond the corners, nothing is.
  for (const double side : {-0.5, 1.5}) {
    int visible = -1;
    Tavix_ChkCrd(top_left.north + side * (bottom_right.north - top_left.north),
                 top_left.east + side * (bottom_right.east - top_left.east), &visible);
    storm.Expect(visible == 0, "ground beyond the window is in view");
  }
}

bool IsSame(const ModelGround& a, const ModelGround& b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

}  // namespace

void CheckFlags(Storm& storm) {
  const Model& model = storm.Now();
  int number = -7;
  storm.ExpectCode(model.exists ? 0 : -1, Tavix_GetAng(&number));
  if (model.exists) storm.Expect(number == model.angle, "the angle is " + std::to_string(number));

  int tate = -7;
  int yoko = -7;
  storm.ExpectCode(model.window.ratio_given ? 0 : -1, Tavix_GetTatYok(&tate, &yoko));
  if (model.linked) {
    storm.Expect(std::pair(tate, yoko) == model.window.ratio, "the ratio is another");
  }

  storm.ExpectCode(model.window.has_frame ? 0 : -1, Tavix_GetWakScl(&number));
  storm.ExpectCode(model.linked ? 0 : -1, Tavix_VoGet(&number));
  if (model.linked) {
    const std::vector<ModelGround>& trace = model.window.trace;
    storm.Expect(static_cast<std::size_t>(number) == trace.size(),
                 "the trace has " + std::to_string(number) + " vertices");
    for (std::size_t i = 0; i < trace.size(); ++i) {
      ModelGround vertex;
      storm.ExpectCode(0, Tavix_VoIdx(static_cast<int>(i), &vertex.north, &vertex.east));
      storm.Expect(IsSame(trace[i], vertex), "a vertex of the trace is elsewhere");
    }
  }
  if (const HWND plot = PlotWindow()) {
    storm.Expect(IsShown(plot) == model.window.shown, "the window is shown, or not, by itself");
    const bool any_button =
        std::any_of(kButtonTable.begin(), kButtonTable.end(), [&](const ButtonRow& row) {
          const HWND button = ::GetDlgItem(plot, static_cast<int>(row.id));
          return button && IsShown(button);
        });
    storm.Expect(any_button == model.buttons || (!any_button && model.window.column < kOneButton),
                 "the buttons are shown, or not, by themselves");
  }
}

void CheckView(Storm& storm) {
  constexpr int kSmallest = 20;  // pixels
  ModelWindow& window = storm.Now().window;
  const HWND plot = PlotWindow();
  const SIZE area = DrawingArea(storm.Now());
  if (!plot || area.cx < kSmallest || area.cy < kSmallest) return;
  MeasuredView view;
  if (!Measure(storm.Now(), plot, view)) {
    window.ForgetView();
    return;
  }
  std::string text;
  for (const auto& each : view) text += each ? " (" + Text(*each) + ")" : " (a point)";
  storm.Note("view of " + std::to_string(area.cx) + " x " + std::to_string(area.cy) + text);
  if (view[0] && window.centre && IsFinite(*view[0])) {
    const auto [north, east] = *window.centre;
    storm.Expect(north == view[0]->north && east == view[0]->east,
                 "the view's centre is at " + Text(*view[0]) + ", not " + Text(*window.centre));
  }
  for (std::size_t i = 0; i < view.size(); ++i) {
    if (!window.measured || !view[i] || !(*window.measured)[i]) continue;
    storm.Expect(IsSame(*view[i], *(*window.measured)[i]), "the view has changed by itself");
  }
  CheckScale(storm, view);
  window.measured = view;
}

}  // namespace tavix::storm
