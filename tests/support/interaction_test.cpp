#include "tests/support/interaction_test.h"

#include <tavix/tavix.h>

#include <cmath>

#include "tests/support/message_pump.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

const PointLegend kCross{4, 9, 0, 0, 1, RGB(255, 0, 0)};

void PostAt(UINT message, WPARAM keys, POINT at) {
  const HWND window = Tavix_Wnd()->m_hWnd;
  ASSERT_TRUE(::PostMessageW(window, message, keys, MAKELPARAM(at.x, at.y)));
  DrainMessages();
}

}  // namespace

void InteractionTest::SetUp() {
  MakePlot(240, 180);
  legend_ = AddLegend(kCross);
}

void InteractionTest::MakePlotWithButtons(int width, int height) {
  ASSERT_EQ(0, LinkPlot(width, height));
  Tavix_SetBtn(1);
  ASSERT_EQ(0, Tavix_Dsp(1));
  ASSERT_EQ(0, Tavix_Drw(1));
  ASSERT_TRUE(PumpUntil([] { return !AwaitsPaint(); }));
}

void InteractionTest::PutDown(POINT at) { PostAt(WM_LBUTTONDOWN, MK_LBUTTON, at); }
void InteractionTest::MoveTo(POINT at) { PostAt(WM_MOUSEMOVE, MK_LBUTTON, at); }
void InteractionTest::Lift(POINT at) { PostAt(WM_LBUTTONUP, 0, at); }

void InteractionTest::Tap(POINT at) {
  PutDown(at);
  Lift(at);
}

void InteractionTest::Drag(POINT from, POINT to) {
  PutDown(from);
  MoveTo(to);
  Lift(to);
}

void InteractionTest::Press(int button) {
  ASSERT_TRUE(::PostMessageW(Window(), WM_COMMAND, static_cast<WPARAM>(button),
                             reinterpret_cast<LPARAM>(::GetDlgItem(Window(), button))));
  DrainMessages();
}

void InteractionTest::PressKey(int key, HWND focus) {
  ASSERT_TRUE(::PostMessageW(focus, WM_KEYDOWN, static_cast<WPARAM>(key), 1));
  DrainMessages();
}

std::vector<PlotHost::Command> InteractionTest::Reports() {
  DrainMessages();
  const auto& all = host_.Commands();
  std::vector<PlotHost::Command> fresh(all.begin() + static_cast<std::ptrdiff_t>(heard_),
                                       all.end());
  heard_ = all.size();
  return fresh;
}

Picture InteractionTest::CrossesAt(std::initializer_list<POINT> pixels) {
  const RawCanvas canvas(Window());
  for (const POINT& at : pixels) DrawRawPoint(canvas.Dc(), kCross, at);
  return canvas.Take();
}

Ground InteractionTest::Captured(POINT pixel) {
  constexpr int kCommand = 77;
  Tavix_CrdStt(kCommand);
  Tap(pixel);
  Ground at{};
  EXPECT_EQ(0, Tavix_CrdGet(&at.x, &at.y));
  Tavix_CrdEnd();
  const std::vector<PlotHost::Command> expected{{kCommand, 0}};
  EXPECT_EQ(expected, Reports());
  return at;
}

double InteractionTest::Scale() {
  const Ground a = Captured({1, 1});
  const Ground b = Captured({101, 1});
  return 100.0 / std::hypot(b.x - a.x, b.y - a.y);
}

}  // namespace tavix::test
