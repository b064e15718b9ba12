// The instance ends in the middle of what the user does: hosts call from timers and on devices.
#include <tavix/tavix.h>

#include <optional>
#include <utility>

#include "tests/support/interaction_test.h"
#include "tests/support/message_pump.h"
#include "tests/support/taken_memory.h"

namespace tavix::test {
namespace {

class EndedUnderneath : public InteractionTest {
 protected:
  struct Way {
    const char* name;
    void (*end)(PlotHost& host);
  };

  static constexpr Way kWays[] = {
      {"deleted", [](PlotHost&) { EXPECT_EQ(0, Tavix_Del()); }},
      {"linked again",
       [](PlotHost& host) {
         EXPECT_EQ(0, Tavix_LnkRct(host.AsParent(), 10, 10, 110, 110, kNotifyId));
       }},
      {"deleted and made again",
       [](PlotHost&) {
         EXPECT_EQ(0, Tavix_Del());
         EXPECT_EQ(0, Tavix_Crt());
       }},
  };

  // Ends the instance, and lets go of the stylus where the window was.
  void EndAndLift(const Way& way, HWND pressed) {
    const HWND window = Window();
    way.end(host_);
    const TakenMemory taken;
    EXPECT_FALSE(::IsWindow(window)) << way.name;
    EXPECT_EQ(nullptr, ::GetCapture()) << way.name;
    ::PostMessageW(pressed, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(90, 90));
    ::PostMessageW(pressed, WM_LBUTTONUP, 0, MAKELPARAM(90, 90));
    DrainMessages();
    EXPECT_TRUE(Reports().empty()) << way.name;
    Tavix_Del();
    InteractionTest::SetUp();
  }
};

TEST_F(EndedUnderneath, ATapForACoordinate) {
  for (const Way& way : kWays) {
    ASSERT_EQ(0, Tavix_CrdStt(777));
    PutDown({50, 50});
    ASSERT_EQ(Window(), ::GetCapture());
    EndAndLift(way, Window());
  }
}

TEST_F(EndedUnderneath, ADragOfTheBand) {
  for (const Way& way : kWays) {
    Press(kBandZoomButton);
    PutDown({50, 50});
    MoveTo({80, 80});
    EndAndLift(way, Window());
  }
}

TEST_F(EndedUnderneath, ADragOfTheMap) {
  for (const Way& way : kWays) {
    Press(kPanButton);
    PutDown({50, 50});
    MoveTo({80, 80});
    EndAndLift(way, Window());
  }
}

TEST_F(EndedUnderneath, AButtonThatIsDown) {
  for (const Way& way : kWays) {
    ASSERT_EQ(0, Tavix_SetBtn(1));
    const HWND button = ButtonWindow(kRefreshButton);
    ::PostMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    DrainMessages();
    ASSERT_EQ(button, ::GetCapture());
    EndAndLift(way, button);
  }
}

// A window of the host that had the stylus hears that the plot takes it, and ends the instance.
class TakenFrom : public CWnd {
 public:
  TakenFrom(PlotHost& host, void (*end)(PlotHost& host)) : host_(host), end_(end) {
    EXPECT_TRUE(Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), host.AsParent(), 5));
    SetCapture();
  }
  ~TakenFrom() override { DestroyWindow(); }

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_CAPTURECHANGED && end_) {
      std::exchange(end_, nullptr)(host_);
      taken_.emplace();
    }
    return CWnd::WindowProc(message, wParam, lParam);
  }

 private:
  PlotHost& host_;
  void (*end_)(PlotHost& host);
  std::optional<TakenMemory> taken_;
};

TEST_F(EndedUnderneath, ThePlotThatTakesTheStylus) {
  for (const Way& way : kWays) {
    const HWND window = Window();
    {
      const TakenFrom other(host_, way.end);
      ::PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 50));
      DrainMessages();
      EXPECT_FALSE(::IsWindow(window)) << way.name;
    }
    Tavix_Del();
    InteractionTest::SetUp();
  }
}

}  // namespace
}  // namespace tavix::test
