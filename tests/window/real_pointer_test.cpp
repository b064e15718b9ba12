// Taps and drags with the pointer of the system.
#include <tavix/tavix.h>

#include "tests/support/interaction_test.h"
#include "tests/support/message_pump.h"

namespace tavix::test {
namespace {

class RealPointer : public InteractionTest {
 protected:
  static void Send(DWORD what) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = what;
    ASSERT_EQ(1U, ::SendInput(1, &input, sizeof input));
  }

  static void Point(POINT at) {
    ::ClientToScreen(Window(), &at);
    ::SetCursorPos(at.x, at.y);
  }

  static bool LastLiftedAt(POINT at) {
    int x = 0;
    int y = 0;
    Tavix_GetLstPicCrd(&x, &y);
    return x == at.x && y == at.y;
  }
};

TEST_F(RealPointer, PicksAPoint) {
  ASSERT_EQ(0, EnterPoint(7, {10.0, 20.0}));
  Point({140, 80});
  Send(MOUSEEVENTF_LEFTDOWN);
  Send(MOUSEEVENTF_LEFTUP);
  ASSERT_TRUE(PumpUntil([this] { return !host_.Commands().empty(); }));
  EXPECT_EQ((PlotHost::Command{kNotifyId, 7}), host_.Commands().front());
}

TEST_F(RealPointer, EndsADragOutsideOfTheWindow) {
  Press(kPanButton);
  Point({100, 100});
  Send(MOUSEEVENTF_LEFTDOWN);
  ASSERT_TRUE(PumpUntil([] { return ::GetCapture() == Window(); }));
  Point({400, 300});
  Send(MOUSEEVENTF_LEFTUP);
  ASSERT_TRUE(PumpUntil([] { return LastLiftedAt({400, 300}); }));
  EXPECT_EQ(nullptr, ::GetCapture());
  Press(kPanButton);
  EXPECT_DOUBLE_EQ(-300.0, Captured({120, 90}).y);
}

}  // namespace
}  // namespace tavix::test
