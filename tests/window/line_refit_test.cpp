// Which changes of lines make the whole-view button fit the view again.
#include <functional>

#include "tests/support/line_plot_test.h"
#include "tests/support/plot_input.h"

namespace tavix::test {
namespace {

using LineRefit = LinePlotTest;

TEST_F(LineRefit, FollowsTheseChangesOnly) {
  const PointLegend mark{6, 11, 0, 0, 1, RGB(255, 0, 0)};
  const short legend = AddLegend(mark);
  const struct {
    const char* what;
    std::function<void()> change;
    bool fits;
  } rows[] = {
      {"nothing", [] {}, false},
      {"a new line", [] { EXPECT_EQ(0, Tavix_EntLin(1, 3)); }, true},
      {"a line without points", [] { EXPECT_EQ(0, Tavix_EntLin(77, 78)); }, true},
      {"a line that is there", [] { EXPECT_EQ(0, Tavix_EntLin(2, 1)); }, false},
      {"a legend", [] { EXPECT_EQ(0, Tavix_ChgLinHid(1, 2, 999)); }, true},
      {"an unknown line's legend", [] { EXPECT_EQ(-1, Tavix_ChgLinHid(5, 6, 102)); }, false},
      {"a line removed", [] { EXPECT_EQ(0, Tavix_DelEntLin(1, 2)); }, true},
      {"an unknown line removed", [] { EXPECT_EQ(-1, Tavix_DelEntLin(5, 6)); }, true},
      {"all lines removed", [] { EXPECT_EQ(0, Tavix_ClrEntLin()); }, false},
      {"a change taken back by removing all",
       [] {
         EXPECT_EQ(0, Tavix_EntLin(1, 3));
         EXPECT_EQ(0, Tavix_ClrEntLin());
       },
       false},
  };
  for (const auto& [what, change, fits] : rows) {
    Tavix_DrwClr();
    ASSERT_EQ(0, Enter(1, {0.0, 0.0}, legend));
    ASSERT_EQ(0, Enter(2, {0.0, 110.0}, legend));
    ASSERT_EQ(0, Tavix_EntLin(1, 2));
    Press(kWholeViewButton);
    const Picture home = Shown();
    Press(kZoomInButton);
    Press(kWholeViewButton);  // home, and the zoomed view is the one before
    ASSERT_TRUE(SamePicture(home, Shown())) << what;
    change();
    Press(kWholeViewButton);
    EXPECT_EQ(fits, home == Shown()) << what;
  }
}

TEST_F(LineRefit, IsNotChangedByLinesAlone) {
  ASSERT_EQ(0, Tavix_EntLin(1, 2));
  Press(kWholeViewButton);  // lines have no extent of their own
  const PointLegend mark{6, 11, 0, 0, 1, RGB(255, 0, 0)};
  ASSERT_EQ(0, Enter(1, {20.0, 30.0}, AddLegend(mark)));
  const RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), mark, {150, 70});
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
}

}  // namespace
}  // namespace tavix::test
