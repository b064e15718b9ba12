// The button column of a window too low for all buttons.
#include <tavix/tavix.h>

#include "tests/support/interaction_test.h"

namespace tavix::test {
namespace {

class ScrolledColumn : public InteractionTest {
 protected:
  void SetUp() override {
    InteractionTest::SetUp();
    MakePlotWithButtons(240, 100);  // room for four
  }

  using Shown = std::vector<std::size_t>;

  // The main buttons 1 to 9 that show, checked to stand below each other from pixel 10 on.
  static Shown ShownMain() {
    Shown shown;
    for (std::size_t k = 1; k <= 9; ++k) {
      const HWND button = ButtonWindow(kButtonTable[k].id);
      if (!::IsWindowVisible(button)) continue;
      RECT place;
      ::GetWindowRect(button, &place);
      ::MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&place), 2);
      EXPECT_EQ(10 + 20 * static_cast<LONG>(shown.size()), place.top) << k;
      shown.push_back(k);
    }
    return shown;
  }
};

TEST_F(ScrolledColumn, ScrollsByOneButtonAndStopsAtItsEnds) {
  EXPECT_EQ((Shown{1, 2, 3, 4}), ShownMain());
  Press(kScrollUpButton);
  EXPECT_EQ((Shown{1, 2, 3, 4}), ShownMain());
  for (std::size_t first = 2; first <= 6; ++first) {
    Press(kScrollDownButton);
    EXPECT_EQ((Shown{first, first + 1, first + 2, first + 3}), ShownMain());
  }
  Press(kScrollDownButton);
  EXPECT_EQ((Shown{6, 7, 8, 9}), ShownMain());
  for (std::size_t first = 5; first >= 1; --first) {
    Press(kScrollUpButton);
    EXPECT_EQ((Shown{first, first + 1, first + 2, first + 3}), ShownMain());
  }
}

TEST_F(ScrolledColumn, StaysScrolledWhileHidden) {
  Press(kScrollDownButton);
  Tavix_SetBtn(0);
  EXPECT_EQ(Shown(), ShownMain());
  Tavix_SetBtn(1);
  EXPECT_EQ((Shown{2, 3, 4, 5}), ShownMain());
}

}  // namespace
}  // namespace tavix::test
