// The button column of a window too low for all buttons.
#include <tavix/tavix.h>

#include "tests/support/interaction_test.h"

namespace tavix::test {
namespace {

constexpr int kScrollUp = 401;
constexpr int kScrollDown = 441;

class ScrolledColumn : public InteractionTest {
 protected:
  void SetUp() override {
    InteractionTest::SetUp();
    MakePlotWithButtons(240, 100);  // room for four
  }

  // The main buttons 1 to 9 that show, checked to stand below each other from pixel 10 on.
  static std::vector<int> ShownMain() {
    std::vector<int> shown;
    for (int k = 1; k <= 9; ++k) {
      const HWND button = ::GetDlgItem(Window(), kScrollUp + 4 * k);
      if (!::IsWindowVisible(button)) continue;
      RECT place;
      ::GetWindowRect(button, &place);
      ::MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&place), 2);
      EXPECT_EQ(10 + 20 * static_cast<int>(shown.size()), place.top) << k;
      shown.push_back(k);
    }
    return shown;
  }
};

TEST_F(ScrolledColumn, ScrollsByOneButtonAndStopsAtItsEnds) {
  EXPECT_EQ((std::vector{1, 2, 3, 4}), ShownMain());
  Press(kScrollUp);
  EXPECT_EQ((std::vector{1, 2, 3, 4}), ShownMain());
  for (int first = 2; first <= 6; ++first) {
    Press(kScrollDown);
    EXPECT_EQ((std::vector{first, first + 1, first + 2, first + 3}), ShownMain());
  }
  Press(kScrollDown);
  EXPECT_EQ((std::vector{6, 7, 8, 9}), ShownMain());
  for (int first = 5; first >= 1; --first) {
    Press(kScrollUp);
    EXPECT_EQ((std::vector{first, first + 1, first + 2, first + 3}), ShownMain());
  }
}

TEST_F(ScrolledColumn, StaysScrolledWhileHidden) {
  Press(kScrollDown);
  Tavix_SetBtn(0);
  EXPECT_EQ(std::vector<int>(), ShownMain());
  Tavix_SetBtn(1);
  EXPECT_EQ((std::vector{2, 3, 4, 5}), ShownMain());
}

}  // namespace
}  // namespace tavix::test
