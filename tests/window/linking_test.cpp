// Linking an instance to a window: over a control, again, in vain, and to a host that goes first.
#include <tavix/tavix.h>

#include <limits>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"
#include "tests/support/raw_north_arrow.h"

namespace tavix::test {
namespace {

constexpr int kControlId = 1234;
constexpr RECT kControlPlace{30, 40, 230, 240};

class Linking : public PlotTest {
 protected:
  void SetUp() override { ASSERT_EQ(0, Tavix_Crt()); }

  // Calls a host makes on any window; none may crash on one that could not be made or is gone.
  static void ExpectHarmlessCalls() {
    EXPECT_EQ(0, Tavix_Dsp(1));
    EXPECT_EQ(0, Tavix_SetBtn(1));
    EXPECT_EQ(0, Tavix_SetBtn(0));
    EXPECT_EQ(0, Tavix_DrwFlg(1));
    EXPECT_EQ(0, Enter(1, {1.0, 2.0}, 5, L"A", 1));
    EXPECT_EQ(0, Tavix_ChgPntCrd(1, 3.0, 4.0));
    EXPECT_EQ(0, Tavix_Drw(0));
    EXPECT_EQ(0, Tavix_Drw(1));
    EXPECT_EQ(0, Tavix_SetTatYok(2, 1));
    EXPECT_EQ(0, Tavix_Dsp3D(1));
    EXPECT_EQ(0, Tavix_Drw(1));
    EXPECT_EQ(0, Tavix_Dsp3D(0));
    EXPECT_EQ(0, Tavix_DrwFlg(0));
    EXPECT_EQ(0, Tavix_Dsp(0));
  }
};

TEST_F(Linking, OverAControlTakesItsPlaceAndHidesItForGood) {
  const HWND control = host_.AddControl(kControlId, kControlPlace);
  ASSERT_EQ(0, Tavix_Lnk(host_.AsParent(), kControlId, kNotifyId));
  RECT place;
  ::GetWindowRect(Window(), &place);
  RECT wanted;
  ::GetWindowRect(control, &wanted);
  EXPECT_TRUE(::EqualRect(&wanted, &place));
  EXPECT_EQ(host_.Window(), ::GetParent(Window()));
  EXPECT_FALSE(::IsWindowVisible(control));
  EXPECT_FALSE(::IsWindowVisible(Window()));
  EXPECT_EQ(0, Tavix_Dsp(1));
  EXPECT_EQ(0, Tavix_Dsp(0));
  EXPECT_FALSE(::IsWindowVisible(control));
  EXPECT_EQ(0, Tavix_Del());
  EXPECT_FALSE(::IsWindowVisible(control));
  EXPECT_TRUE(::IsWindow(control));
}

TEST_F(Linking, OverAHiddenControlWorksTheSame) {
  host_.AddControl(kControlId, kControlPlace);
  ASSERT_EQ(0, Tavix_Lnk(host_.AsParent(), kControlId, kNotifyId));
  const HWND first = Window();
  ASSERT_EQ(0, Tavix_Lnk(host_.AsParent(), kControlId, kNotifyId));
  EXPECT_FALSE(::IsWindow(first));
  EXPECT_TRUE(::IsWindow(Window()));
}

// Refused before anything is made: a back buffer of this size would take gigabytes.
TEST_F(Linking, OfMorePixelsThanMemoryHoldsIsRefused) {
  constexpr int kFar = std::numeric_limits<int>::max();
  const RECT rows[] = {{0, 0, 11586, 11586},
                       {10, 10, 32779, 32779},
                       {0, 0, 1, (1 << 27) + 1},
                       {-kFar, -kFar, kFar, kFar},
                       {-kFar, 0, kFar, 1}};
  for (const RECT& rect : rows) {
    EXPECT_EQ(
        -1, Tavix_LnkRct(host_.AsParent(), rect.left, rect.top, rect.right, rect.bottom, kNotifyId))
        << rect.right << " by " << rect.bottom;
    EXPECT_FALSE(::IsWindow(Window()));
    ExpectHarmlessCalls();
  }
  host_.AddControl(kControlId, {0, 0, 11586, 11586});
  EXPECT_EQ(-1, Tavix_Lnk(host_.AsParent(), kControlId, kNotifyId));
  EXPECT_FALSE(::IsWindow(Window()));
  EXPECT_EQ(0, LinkPlot(200, 160));
}

TEST_F(Linking, AgainDestroysTheFirstWindowAndKeepsDataAndView) {
  ASSERT_EQ(0, LinkPlot(200, 160));
  const HWND first = Window();
  ASSERT_EQ(0, Tavix_SetAng(90));
  ASSERT_EQ(0, Tavix_SetTatYok(2, 1));
  const short legend = AddLegend({6, 20, 0, 0, 1, RGB(255, 0, 0)});
  ASSERT_EQ(0, Enter(1, {30.0, 0.0}, legend));

  ASSERT_EQ(0, LinkPlot(120, 120));
  EXPECT_FALSE(::IsWindow(first));
  ASSERT_TRUE(::IsWindow(Window()));
  EXPECT_NE(first, Window());
  int part = 0;
  EXPECT_EQ(-1, Tavix_GetTatYok(&part, &part));  // the ratio belonged to the first window
  ASSERT_EQ(0, Tavix_Dsp(1));
  RawCanvas canvas(Window());  // east is down now: north of the middle lies to its right
  DrawRawPoint(canvas.Dc(), {6, 20, 0, 0, 1, RGB(255, 0, 0)}, {(120 - 20) / 2 + 30, 60});
  DrawRawNorthArrow(canvas.Dc(), 90, 120);
  EXPECT_TRUE(SamePicture(LeftPart(canvas.Take(), 100), LeftPart(Redrawn(), 100)));
}

TEST_F(Linking, FailsWithoutACrash) {
  CWnd no_window;
  const struct {
    const char* what;
    CWnd* parent;
  } rows[] = {{"no parent", nullptr}, {"a parent without a window", &no_window}};
  for (const auto& [what, parent] : rows) {
    EXPECT_EQ(-1, Tavix_LnkRct(parent, 0, 0, 100, 100, kNotifyId)) << what;
    EXPECT_NE(nullptr, Tavix_Wnd()) << what;  // the object stays, without a window
    EXPECT_EQ(nullptr, Window()) << what;
    ExpectHarmlessCalls();
    EXPECT_EQ(-1, Tavix_Lnk(parent, kControlId, kNotifyId)) << what;
    EXPECT_EQ(nullptr, Window()) << what;
    ExpectHarmlessCalls();
  }
}

TEST_F(Linking, OverAControlThatIsNotThereFails) {
  EXPECT_EQ(-1, Tavix_Lnk(host_.AsParent(), kControlId, kNotifyId));
  EXPECT_EQ(nullptr, Window());
  ExpectHarmlessCalls();
}

TEST_F(Linking, InVainStillDestroysTheFirstWindow) {
  ASSERT_EQ(0, LinkPlot(200, 160));
  const HWND first = Window();
  EXPECT_EQ(-1, Tavix_Lnk(host_.AsParent(), kControlId, kNotifyId));
  EXPECT_FALSE(::IsWindow(first));
  EXPECT_EQ(nullptr, Window());
}

TEST_F(Linking, WorksAfterItFailed) {
  ASSERT_EQ(-1, Tavix_LnkRct(nullptr, 0, 0, 100, 100, kNotifyId));
  EXPECT_EQ(0, LinkPlot(200, 160));
  EXPECT_TRUE(::IsWindow(Window()));
}

TEST_F(Linking, ToAHostThatIsGoneFails) {
  CWnd gone;
  gone.m_hWnd = host_.Window();
  host_.Destroy();
  EXPECT_EQ(-1, Tavix_LnkRct(&gone, 0, 0, 100, 100, kNotifyId));
  EXPECT_EQ(-1, Tavix_Lnk(&gone, kControlId, kNotifyId));
  ExpectHarmlessCalls();
  gone.m_hWnd = nullptr;
}

TEST_F(Linking, OutlivesTheHostWithoutACrash) {
  ASSERT_EQ(0, LinkPlot(200, 160));
  ASSERT_EQ(0, Tavix_Dsp(1));
  const HWND window = Window();
  host_.Destroy();
  EXPECT_FALSE(::IsWindow(window));
  ASSERT_NE(nullptr, Tavix_Wnd());
  EXPECT_EQ(nullptr, Window());
  ExpectHarmlessCalls();
  PlotHost other;
  EXPECT_EQ(0, Tavix_LnkRct(other.AsParent(), 0, 0, 100, 100, kNotifyId));
  EXPECT_TRUE(::IsWindow(Window()));
  other.Destroy();
  EXPECT_EQ(0, Tavix_Del());
  EXPECT_EQ(nullptr, Tavix_Wnd());
}

TEST_F(Linking, ToNoRoomAtAllWorks) {
  const struct {
    int width;
    int height;
  } rows[] = {{0, 0}, {1, 1}, {5, 300}, {300, 5}, {-10, -10}};
  for (const auto& [width, height] : rows) {
    ASSERT_EQ(0, Tavix_LnkRct(host_.AsParent(), 10, 10, 10 + width, 10 + height, kNotifyId))
        << width << " x " << height;
    EXPECT_TRUE(::IsWindow(Window()));
    ExpectHarmlessCalls();
  }
}

}  // namespace
}  // namespace tavix::test
