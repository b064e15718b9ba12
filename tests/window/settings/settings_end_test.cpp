// The instance ends while its settings dialog is open: hosts call from timers, which the dialog's
// loop runs. The dialog ends first, as if it were cancelled.
#include <tavix/tavix.h>

#include <deque>

#include "tests/support/message_pump.h"
#include "tests/support/plot_input.h"
#include "tests/support/taken_memory.h"
#include "tests/window/settings/settings_test.h"

namespace tavix::test {
namespace {

constexpr UINT kNotify = 900;

struct Way {
  const char* name;
  void (*end)(PlotHost& host);
  bool has_window;  // the instance has another window then
};

constexpr Way kWays[] = {
    {"deleted", [](PlotHost&) { EXPECT_EQ(0, Tavix_Del()); }, false},
    {"linked again",
     [](PlotHost& host) { EXPECT_EQ(0, Tavix_LnkRct(host.AsParent(), 10, 10, 110, 110, kNotify)); },
     true},
    {"linked over a control",
     [](PlotHost& host) {
       constexpr int kControl = 1234;
       host.AddControl(kControl, {0, 0, 100, 100});
       EXPECT_EQ(0, Tavix_Lnk(host.AsParent(), kControl, kNotify));
     },
     true},
    {"deleted and made again",
     [](PlotHost&) {
       EXPECT_EQ(0, Tavix_Del());
       EXPECT_EQ(0, Tavix_Crt());
     },
     false},
    {"its window destroyed", [](PlotHost&) { EXPECT_TRUE(Tavix_Wnd()->DestroyWindow()); }, false},
};

class SettingsEnd : public SettingsTest {
 protected:
  // What the host's timer does. Afterwards the user's OK comes, too late.
  Step End(const Way& way) {
    return [this, &way](HWND open) {
      const HWND dialog = ::GetDlgItem(open, kColor) ? open : ::GetWindow(open, GW_OWNER);
      way.end(host_);
      taken_.emplace_back();
      EXPECT_FALSE(::IsWindowVisible(open)) << way.name;
      EXPECT_FALSE(::IsWindowVisible(dialog)) << way.name;
      EXPECT_TRUE(::IsWindowEnabled(host_.Window())) << way.name;
      ::SendMessageW(dialog, WM_COMMAND, IDOK, 0);
      ::PostMessageW(open, WM_COMMAND, IDOK, 0);
      ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
    };
  }

  // What was edited is forgotten; the plot works, and its dialog. Leaves a fresh plot.
  void ExpectASoundInstance(const Way& way) {
    EXPECT_EQ(way.has_window, Window() != nullptr) << way.name;
    if (!Window()) {
      Tavix_Crt();  // unless it is there
      ASSERT_EQ(0, LinkPlot(240, 180)) << way.name;
    }
    ASSERT_EQ(0, Tavix_Dsp(1));
    EXPECT_TRUE(::IsWindowEnabled(Window())) << way.name;
    EXPECT_EQ(4, Entry(1).size) << way.name;
    Cancel({[](HWND dialog) { EXPECT_EQ(L"10", TextOf(dialog, kStep)); }});
    Confirm({Choose(kMarkSizes, 3)});
    EXPECT_EQ(6, Entry(1).size) << way.name;
    SetEntry(1, {.kind = 1, .size = 4});
    ASSERT_EQ(0, LinkPlot(240, 180));
    ASSERT_EQ(0, Tavix_Dsp(1));
  }

  void SetUp() override {
    SettingsTest::SetUp();
    SetEntry(1, {.kind = 1, .size = 4});
  }

  std::deque<TakenMemory> taken_;
};

TEST_F(SettingsEnd, EndsTheDialogAsIfCancelled) {
  for (const Way& way : kWays) {
    RunDialog({Choose(kMarkSizes, 5), Type(kStep, L"45"), End(way)});
    ExpectASoundInstance(way);
  }
}

TEST_F(SettingsEnd, EndsTheColourChooserToo) {
  for (const Way& way : kWays) {
    RunDialog({Choose(kMarkSizes, 5), Click(kColor), End(way)});
    ExpectASoundInstance(way);
  }
}

// The button that opened the dialog is still handling its click all the while.
TEST_F(SettingsEnd, SurvivesTheButtonThatWasPressed) {
  for (const Way& way : kWays) {
    ASSERT_EQ(0, Tavix_SetBtn(1));
    const ::test::ModalDriver driver({End(way)});
    const HWND button = ButtonWindow(kSettingsButton);
    ::PostMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ::PostMessageW(button, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    ASSERT_TRUE(PumpUntil([&] { return driver.Done() && !::IsWindow(button); })) << way.name;
    EXPECT_EQ(nullptr, ::GetCapture()) << way.name;
    ExpectASoundInstance(way);
  }
}

TEST_F(SettingsEnd, EndsEveryDialogOfTheWindow) {
  const HWND first = Window();
  RunDialog(
      {[first](HWND) { ::PostMessageW(first, WM_COMMAND, kSettingsButton, 0); }, End(kWays[0])});
  EXPECT_EQ(nullptr, ::test::ModalDriver::OpenDialog());
}

TEST_F(SettingsEnd, LeavesTheDialogOfAnotherInstanceAlone) {
  Tavix_SetIdx(1);
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, LinkPlot(100, 100, {400, 10}));
  Tavix_SetIdx(0);
  Confirm({[](HWND dialog) {
             Tavix_SetIdx(1);
             EXPECT_EQ(0, Tavix_Del());
             EXPECT_EQ(0, CurrentIndex());
             EXPECT_TRUE(::IsWindowVisible(dialog));
           },
           Choose(kMarkSizes, 5)});
  EXPECT_EQ(10, Entry(1).size);
}

}  // namespace
}  // namespace tavix::test
