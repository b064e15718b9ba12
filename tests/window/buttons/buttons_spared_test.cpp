// A redraw leaves the buttons alone: they are not painted again, and nothing covers them.
#include <tavix/tavix.h>

#include "tests/support/interaction_test.h"
#include "tests/support/message_pump.h"
#include "tests/support/picture_compare.h"

namespace tavix::test {
namespace {

constexpr int kWidth = 200;
constexpr int kColumn = 20;

class ButtonsSpared : public InteractionTest {
 protected:
  void SetUp() override {
    ASSERT_NO_FATAL_FAILURE(InteractionTest::SetUp());
    MakePlotWithButtons(kWidth, 240);
    DrainMessages();
    whole_ = TakeClientPicture(Window());
  }

  static bool AwaitsPaintOf(unsigned button) {
    return ::GetUpdateRect(ButtonWindow(button), nullptr, FALSE) != FALSE;
  }

  static Picture Column() {
    const Picture client = TakeClientPicture(Window());
    Picture column{kColumn, client.height, {}};
    for (int y = 0; y < client.height; ++y) {
      for (int x = kWidth - kColumn; x < kWidth; ++x) column.pixels.push_back(client.At(x, y));
    }
    return column;
  }

  // The region the window has to paint.
  static bool IsInvalid(POINT at) {
    const HRGN region = ::CreateRectRgn(0, 0, 0, 0);
    ::GetUpdateRgn(Window(), region, FALSE);
    const BOOL inside = ::PtInRegion(region, at.x, at.y);
    ::DeleteObject(region);
    return inside != FALSE;
  }

  Picture whole_;
};

TEST_F(ButtonsSpared, ByARedrawThatInvalidatesTheWindowUnderThemToo) {
  ASSERT_EQ(0, Tavix_Drw(1));
  const RECT client = Client();
  RECT invalid{};
  ::GetUpdateRect(Window(), &invalid, FALSE);
  EXPECT_TRUE(::EqualRect(&client, &invalid));
  EXPECT_TRUE(IsInvalid({kWidth - 10, 50}));
  EXPECT_TRUE(IsInvalid({50, 50}));
  for (const ButtonRow& button : kButtonTable) EXPECT_FALSE(AwaitsPaintOf(button.id));
}

TEST_F(ButtonsSpared, ByThePaint) {
  const Picture column = Column();
  ASSERT_EQ(0, EnterPoint(1, {3.0, 4.0}));
  ASSERT_EQ(0, Tavix_Drw(0));
  ::SendMessageW(Window(), WM_PAINT, 0, 0);  // the window's own, without its buttons
  EXPECT_TRUE(SamePicture(column, Column()));
  EXPECT_FALSE(AwaitsPaint());
}

TEST_F(ButtonsSpared, NotByAnEraseBeforeThePaint) {
  const Picture column = Column();
  ASSERT_EQ(0, Tavix_Drw(1));
  ::RedrawWindow(Window(), nullptr, nullptr, RDW_ERASENOW);
  EXPECT_NE(column, Column());
  DrainMessages();
  EXPECT_TRUE(SamePicture(column, Column()));
  EXPECT_TRUE(SamePicture(whole_, TakeClientPicture(Window())));
}

TEST_F(ButtonsSpared, NotByAHostThatInvalidatesThem) {
  const Picture column = Column();
  ::InvalidateRect(Window(), nullptr, TRUE);
  EXPECT_TRUE(AwaitsPaintOf(kRefreshButton));
  DrainMessages();
  EXPECT_TRUE(SamePicture(column, Column()));
}

TEST_F(ButtonsSpared, OneThatTheHostHidesIsPaintedOver) {
  ::ShowWindow(ButtonWindow(kRefreshButton), SW_HIDE);
  DrainMessages();
  ASSERT_EQ(0, Tavix_Drw(1));
  DrainMessages();
  const Picture client = TakeClientPicture(Window());
  RECT place{};
  ::GetWindowRect(ButtonWindow(kRefreshButton), &place);
  ::MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&place), 2);
  const std::uint32_t background = client.At(100, 200);
  for (LONG y = place.top; y < place.bottom; ++y) {
    for (LONG x = place.left; x < place.right; ++x) ASSERT_EQ(background, client.At(x, y));
  }
}

// A window of the host's own in the plot is painted again, as with any invalidation.
TEST_F(ButtonsSpared, WindowsOfTheHostAreNot) {
  const HWND own = ::CreateWindowExW(0, L"STATIC", L"note", WS_CHILD | WS_VISIBLE, 20, 20, 60, 20,
                                     Window(), nullptr, ::GetModuleHandleW(nullptr), nullptr);
  DrainMessages();
  const Picture before = TakeClientPicture(Window());
  EXPECT_NE(whole_, before);
  ASSERT_EQ(0, Tavix_Drw(1));
  EXPECT_TRUE(::GetUpdateRect(own, nullptr, FALSE));
  DrainMessages();
  EXPECT_TRUE(SamePicture(before, TakeClientPicture(Window())));
}

// In a column without room the redraw meets a scrolled set of buttons.
TEST_F(ButtonsSpared, InAScrolledColumn) {
  MakePlotWithButtons(kWidth, 100);
  Press(kScrollDownButton);
  DrainMessages();
  const Picture before = TakeClientPicture(Window());
  ASSERT_EQ(0, Tavix_Drw(1));
  RECT invalid{};
  ::GetUpdateRect(Window(), &invalid, FALSE);
  const RECT client = Client();
  EXPECT_TRUE(::EqualRect(&client, &invalid));
  DrainMessages();
  EXPECT_TRUE(SamePicture(before, TakeClientPicture(Window())));
}

TEST_F(ButtonsSpared, WhileTheirFacesChange) {
  Press(kPanButton);
  const Picture pressed = Column();
  Press(kPanButton);
  const Picture normal = Column();
  ASSERT_NE(pressed, normal);
  ::SendMessageW(Window(), WM_COMMAND, kPanButton, 0);  // the face waits for a paint
  ASSERT_EQ(0, Tavix_Drw(1));
  DrainMessages();
  EXPECT_TRUE(SamePicture(pressed, Column()));
}

}  // namespace
}  // namespace tavix::test
