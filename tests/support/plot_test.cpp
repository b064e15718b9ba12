#include "tests/support/plot_test.h"

#include <tavix/tavix.h>

#include "tests/support/message_pump.h"
#include "tests/support/raw_canvas.h"
#include "tests/support/raw_north_arrow.h"

namespace tavix::test {

void PlotTest::MakePlot(int width, int height) {
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, LinkPlot(width, height));
  const RECT client = Client();
  ASSERT_EQ(width, client.right);
  ASSERT_EQ(height, client.bottom);
  Tavix_SetBtn(0);
  ASSERT_EQ(0, Tavix_Dsp(1));
  ASSERT_EQ(0, Tavix_Drw(1));
  ASSERT_TRUE(PumpUntil([] { return !AwaitsPaint(); }));
}

int PlotTest::LinkPlot(int width, int height, POINT place, UINT notify_id) {
  RECT outer{0, 0, width, height};
  ::AdjustWindowRectEx(&outer, WS_CHILD | WS_BORDER, FALSE, WS_EX_CLIENTEDGE);
  return Tavix_LnkRct(host_.AsParent(), place.x, place.y, place.x + outer.right - outer.left,
                      place.y + outer.bottom - outer.top, notify_id);
}

HWND PlotTest::Window() {
  const CWnd* window = Tavix_Wnd();
  return window ? window->m_hWnd : nullptr;
}

RECT PlotTest::Client() {
  RECT client{};
  ::GetClientRect(Window(), &client);
  return client;
}

Ground PlotTest::GroundAt(POINT pixel) {
  const RECT client = Client();
  return {static_cast<double>(client.bottom / 2 - pixel.y),
          static_cast<double>(pixel.x - client.right / 2)};
}

short PlotTest::AddLegend(const PointLegend& look) {
  short number = 0;
  EXPECT_EQ(0, Tavix_AddPntHan(look.kind, look.width, static_cast<int>(look.color), look.size,
                               look.text_height, look.label_number, &number));
  return number;
}

int PlotTest::Enter(int key, Ground at, short legend, const std::wstring& name, int number) {
  Tavix_SelPntHan(legend);
  return Tavix_EntPnt(key, number, CString(name.c_str()), at.x, at.y);
}

Picture PlotTest::Shown() {
  ::UpdateWindow(Window());
  return TakeClientPicture(Window());
}

Picture PlotTest::Redrawn() {
  EXPECT_EQ(0, Tavix_Drw(1));
  return Shown();
}

Picture PlotTest::CrossesAt(std::initializer_list<POINT> pixels) {
  const RawCanvas canvas(Window());
  for (const POINT& at : pixels) DrawRawPoint(canvas.Dc(), kCross, at);
  DrawRawNorthArrow(canvas.Dc(), Angle(), Client().bottom);
  return canvas.Take();
}

bool PlotTest::AwaitsPaint() { return ::GetUpdateRect(Window(), nullptr, FALSE) != FALSE; }

}  // namespace tavix::test
