// Showing and hiding the button column: the drawing area and the ratio follow.
#include <tavix/tavix.h>

#include "tests/support/low_byte.h"
#include "tests/support/picture_compare.h"
#include "tests/support/plot_input.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"
#include "tests/support/raw_north_arrow.h"

namespace tavix::test {
namespace {

constexpr int kWidth = 200;
constexpr int kHeight = 160;
constexpr int kColumn = 20;

class ShowButtons : public PlotTest {
 protected:
  void SetUp() override {
    ASSERT_EQ(0, Tavix_Crt());
    legend_ = AddLegend(look_);
    ASSERT_EQ(0, Enter(1, {30.0, 0.0}, legend_));  // 30 m north of the middle
  }

  // Shows the window and compares it, the column aside, with one that has the point at `at`.
  void ExpectPointAt(POINT at, int angle = 0) const {
    Tavix_Dsp(1);
    RawCanvas canvas(Window());
    DrawRawPoint(canvas.Dc(), look_, at);
    DrawRawNorthArrow(canvas.Dc(), angle, kHeight);
    EXPECT_TRUE(SamePicture(LeftPart(canvas.Take(), kWidth - kColumn),
                            LeftPart(Redrawn(), kWidth - kColumn)));
  }

  PointLegend look_{6, 20, 0, 0, 1, RGB(255, 0, 0)};
  short legend_ = 0;
};

constexpr POINT kMiddleBesideTheColumn{(kWidth - kColumn) / 2, kHeight / 2 - 30};
constexpr POINT kMiddleOfAll{kWidth / 2, kHeight / 2 - 30};

TEST_F(ShowButtons, IsOnInANewInstance) {
  ASSERT_EQ(0, LinkPlot(kWidth, kHeight));
  ExpectPointAt(kMiddleBesideTheColumn);
}

TEST_F(ShowButtons, OffGivesTheDrawingAreaTheWholeClient) {
  ASSERT_EQ(0, LinkPlot(kWidth, kHeight));
  EXPECT_EQ(0, Tavix_SetBtn(0));
  ExpectPointAt(kMiddleOfAll);
  EXPECT_EQ(0, Tavix_SetBtn(1));
  ExpectPointAt(kMiddleBesideTheColumn);
}

TEST_F(ShowButtons, CountsTheLowByteOnly) {
  ASSERT_EQ(0, LinkPlot(kWidth, kHeight));
  EXPECT_EQ(0, CallWithWholeFlag(&Tavix_SetBtn, 0x100));
  ExpectPointAt(kMiddleOfAll);
  EXPECT_EQ(0, CallWithWholeFlag(&Tavix_SetBtn, 0xFF00 + 0x80));
  ExpectPointAt(kMiddleBesideTheColumn);
}

TEST_F(ShowButtons, BeforeAnyLinkIsKeptForIt) {
  EXPECT_EQ(0, Tavix_SetBtn(0));
  ASSERT_EQ(0, LinkPlot(kWidth, kHeight));
  for (const ButtonRow& button : kButtonTable) {
    EXPECT_EQ(0, ::GetWindowLongPtrW(ButtonWindow(button.id), GWL_STYLE) & WS_VISIBLE) << button.id;
  }
  ExpectPointAt(kMiddleOfAll);
}

TEST_F(ShowButtons, IsKeptForTheNextLinkAndForgottenWithTheInstance) {
  ASSERT_EQ(0, LinkPlot(kWidth, kHeight));
  ASSERT_EQ(0, Tavix_SetBtn(0));
  ASSERT_EQ(0, LinkPlot(kWidth, kHeight));
  ExpectPointAt(kMiddleOfAll);
  ASSERT_EQ(0, Tavix_Del());
  SetUp();
  ASSERT_EQ(0, LinkPlot(kWidth, kHeight));
  ExpectPointAt(kMiddleBesideTheColumn);
}

TEST_F(ShowButtons, EveryCallResetsTheRatioButNotWhatTheHostReadsBack) {
  ASSERT_EQ(0, LinkPlot(kWidth, kHeight));
  for (const BYTE show : {BYTE{0}, BYTE{0}, BYTE{1}, BYTE{1}}) {
    ASSERT_EQ(0, Tavix_SetTatYok(2, 1));
    EXPECT_EQ(0, Tavix_SetBtn(show));
    ExpectPointAt(show ? kMiddleBesideTheColumn : kMiddleOfAll);
    int tate = 0;
    int yoko = 0;
    EXPECT_EQ(0, Tavix_GetTatYok(&tate, &yoko));
    EXPECT_EQ(2, tate);
    EXPECT_EQ(1, yoko);
  }
}

TEST_F(ShowButtons, LinkingResetsTheRatio) {
  ASSERT_EQ(0, LinkPlot(kWidth, kHeight));
  ASSERT_EQ(0, Tavix_SetTatYok(2, 1));
  ASSERT_EQ(0, LinkPlot(kWidth, kHeight));
  ExpectPointAt(kMiddleBesideTheColumn);
}

TEST_F(ShowButtons, KeepsAngleAndScale) {
  ASSERT_EQ(0, LinkPlot(kWidth, kHeight));
  ASSERT_EQ(0, Tavix_SetAng(90));
  Press(kZoomInButton);  // one and a half times
  EXPECT_EQ(0, Tavix_SetBtn(0));
  ExpectPointAt({kWidth / 2 + 45, kHeight / 2}, 90);
}

}  // namespace
}  // namespace tavix::test
