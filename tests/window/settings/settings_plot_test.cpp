// What the settings dialog edits of the plot window, how it ends, and what the plot does then.
#include <afxcmn.h>
#include <tavix/tavix.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/legend_bytes.h"
#include "tests/support/picture_compare.h"
#include "tests/support/plot_input.h"
#include "tests/window/settings/settings_test.h"

namespace tavix::test {
namespace {

class SettingsOfPlot : public SettingsTest {
 protected:
  // The step of the rotate button, which turns the view.
  static int StepInUse() {
    EXPECT_EQ(0, Tavix_SetAng(0));
    Press(kRotateButton);
    const int angle = Angle();
    EXPECT_EQ(0, Tavix_SetAng(0));
    return angle;
  }

  static std::pair<int, int> Ratio() {
    std::pair<int, int> ratio;
    Tavix_GetTatYok(&ratio.first, &ratio.second);
    return ratio;
  }
};

TEST_F(SettingsOfPlot, BelongsToThePlotsParentAndDisablesThePlot) {
  Cancel({[this](HWND dialog) {
    EXPECT_EQ(host_.Window(), ::GetWindow(dialog, GW_OWNER));
    EXPECT_FALSE(::IsWindowEnabled(host_.Window()));
    EXPECT_EQ(WS_DISABLED, ::GetWindowLongW(Window(), GWL_STYLE) & WS_DISABLED);
  }});
  EXPECT_TRUE(::IsWindowEnabled(host_.Window()));
  EXPECT_TRUE(::IsWindowEnabled(Window()));
}

TEST_F(SettingsOfPlot, EndsByButtonsKeysAndTheCloseBox) {
  const struct {
    const char* what;
    Step step;
    bool confirms;
  } rows[] = {
      {"OK", Click(IDOK), true},
      {"Enter", ::test::Key(VK_RETURN), true},
      {"Escape", ::test::Key(VK_ESCAPE), false},
      {"close box", [](HWND dialog) { ::PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0); }, false},
  };
  int old_step = 10;
  int step = 20;
  for (const auto& row : rows) {
    RunDialog({Type(kStep, std::to_wstring(step)), row.step});
    EXPECT_EQ(row.confirms ? step : old_step, StepInUse()) << row.what;
    EXPECT_TRUE(::IsWindowEnabled(Window())) << row.what;
    old_step = StepInUse();
    ++step;
  }
  EXPECT_TRUE(host_.Commands().empty());
}

TEST_F(SettingsOfPlot, TakesARotationStepOfOneHalfTurnAtMost) {
  const struct {
    const wchar_t* text;
    int step;
  } rows[] = {
      {L"1", 1},   {L"0", 1},  {L"181", 1}, {L"180", 180}, {L"", 180}, {L"181", 180},
      {L"45", 45}, {L"x", 45}, {L"-5", 45}, {L"999", 45},  {L"7", 7},
  };
  for (const auto& row : rows) {
    Confirm({Type(kStep, row.text)});
    EXPECT_EQ(row.step, StepInUse()) << row.text;
  }
}

TEST_F(SettingsOfPlot, ShowsAndSavesTheRotationStep) {
  Confirm({[](HWND dialog) {
             EXPECT_EQ(L"10", TextOf(dialog, kStep));
             const HWND spin = ::GetDlgItem(dialog, kSpin);
             EXPECT_EQ(::GetDlgItem(dialog, kStep),
                       reinterpret_cast<HWND>(::SendMessageW(spin, UDM_GETBUDDY, 0, 0)));
             EXPECT_EQ(10, ::SendMessageW(spin, UDM_GETBASE, 0, 0));
             EXPECT_EQ(MAKELONG(180, 1), ::SendMessageW(spin, UDM_GETRANGE, 0, 0));
           },
           Focus(kStep), ::test::Key(VK_UP), ::test::Key(VK_UP), ::test::Key(VK_DOWN),
           [](HWND dialog) { EXPECT_EQ(L"11", TextOf(dialog, kStep)); }});
  EXPECT_EQ(11, StepInUse());
  Cancel({[](HWND dialog) { EXPECT_EQ(L"11", TextOf(dialog, kStep)); }, Type(kStep, L"90")});
  EXPECT_EQ(11, StepInUse());
  Tavix_Del();
  EXPECT_EQ(" 11", ReadBytes(LegendFile()).substr(0, 3));
}

TEST_F(SettingsOfPlot, DrawsLinesAndFiguresWhileTheBoxIsChecked) {
  const short look = AddLegend(kCross);
  ASSERT_EQ(0, Enter(1, {0.0, -50.0}, look));
  ASSERT_EQ(0, Enter(2, {0.0, 50.0}, look));
  ASSERT_EQ(0, Tavix_SelLinHan(101));
  ASSERT_EQ(0, Tavix_EntLin(1, 2));
  ASSERT_EQ(0, Tavix_FigStt(1, 101));
  ASSERT_EQ(0, Tavix_FigMdlLin(20.0, -30.0, 20.0, 30.0));
  ASSERT_EQ(0, Tavix_FigEnd());
  const Picture with = Redrawn();
  const Picture without = CrossesAt({{70, 90}, {170, 90}});
  ASSERT_FALSE(with == without);
  const Step is_on = [](HWND dialog) { EXPECT_TRUE(IsChecked(dialog, kDrawLines)); };
  const Step is_off = [](HWND dialog) { EXPECT_FALSE(IsChecked(dialog, kDrawLines)); };
  Cancel({is_on, Click(kDrawLines), is_off});
  EXPECT_TRUE(SamePicture(with, Redrawn()));
  Confirm({is_on, Click(kDrawLines)});
  EXPECT_TRUE(SamePicture(without, Shown()));  // redrawn by the dialog
  Confirm({is_off, Click(kDrawLines)});
  EXPECT_TRUE(SamePicture(with, Shown()));
}

TEST_F(SettingsOfPlot, RedrawsOnOkAndNotOnCancel) {
  ASSERT_EQ(0, Enter(1, {10.0, 20.0}, AddLegend(kCross)));
  Cancel();
  EXPECT_TRUE(SamePicture(CrossesAt({}), Shown()));
  Confirm();
  EXPECT_TRUE(SamePicture(CrossesAt({{140, 80}}), Shown()));
}

TEST_F(SettingsOfPlot, HasNoRatioUnlessOneWasGiven) {
  Confirm({[](HWND dialog) {
    for (const int item : {kRatioGroup, kVerticalLabel, kVertical, kHorizontalLabel, kHorizontal}) {
      EXPECT_FALSE(IsVisible(dialog, item)) << item;
    }
    RECT lines;
    RECT step;
    ::GetWindowRect(::GetDlgItem(dialog, kLineGroup), &lines);
    ::GetWindowRect(::GetDlgItem(dialog, kStepGroup), &step);
    EXPECT_EQ(step.right - step.left, lines.right - lines.left);
    EXPECT_EQ(step.bottom - step.top, lines.bottom - lines.top);
    EXPECT_EQ(step.left, lines.left);
    ::SetDlgItemTextW(dialog, kVertical, L"3");
    ::SetDlgItemTextW(dialog, kHorizontal, L"4");
  }});
  int vertical = 0;
  int horizontal = 0;
  EXPECT_EQ(-1, Tavix_GetTatYok(&vertical, &horizontal));
  EXPECT_EQ(std::make_pair(1, 1), Ratio());
}

TEST_F(SettingsOfPlot, ShowsARatioThatWasGiven) {
  ASSERT_EQ(0, Tavix_SetTatYok(25, 9999));
  Cancel({[](HWND dialog) {
            for (const int item :
                 {kRatioGroup, kVerticalLabel, kVertical, kHorizontalLabel, kHorizontal}) {
              EXPECT_TRUE(IsVisible(dialog, item)) << item;
            }
            RECT lines;
            RECT ratio;
            ::GetWindowRect(::GetDlgItem(dialog, kLineGroup), &lines);
            ::GetWindowRect(::GetDlgItem(dialog, kRatioGroup), &ratio);
            EXPECT_LE(lines.right, ratio.left);
            EXPECT_EQ(L"25", TextOf(dialog, kVertical));
            EXPECT_EQ(L"9999", TextOf(dialog, kHorizontal));
          },
          Type(kVertical, L"3"), Type(kHorizontal, L"4")});
  EXPECT_EQ(std::make_pair(25, 9999), Ratio());
}

TEST_F(SettingsOfPlot, TakesTheRatioOnOk) {
  const struct {
    const wchar_t* vertical;
    const wchar_t* horizontal;
    std::pair<int, int> ratio;
  } rows[] = {
      {L"3", L"4", {3, 4}},        {L"", L"4", {1, 1}},   {L"5", L"", {1, 1}},
      {L"", L"", {1, 1}},          {L"0", L"7", {1, 7}},  {L"9999", L"1", {9999, 1}},
      {L"12345", L"2", {1234, 2}}, {L"-6", L"2", {6, 2}}, {L"1a2", L"3", {12, 3}},
  };
  for (const auto& row : rows) {
    ASSERT_EQ(0, Tavix_SetTatYok(2, 1));
    Confirm({Type(kVertical, row.vertical), Type(kHorizontal, row.horizontal)});
    EXPECT_EQ(row.ratio, Ratio()) << row.vertical << " : " << row.horizontal;
  }
}

TEST_F(SettingsOfPlot, FitsTheViewToAChangedRatio) {
  const short look = AddLegend(kCross);
  ASSERT_EQ(0, Enter(1, {0.0, 0.0}, look));
  ASSERT_EQ(0, Enter(2, {40.0, 10.0}, look));
  ASSERT_EQ(0, Tavix_SetTatYok(1, 1));
  Confirm({Type(kVertical, L"2")});  // 80 high in 160 pixels
  EXPECT_TRUE(SamePicture(CrossesAt({{110, 170}, {130, 10}}), Shown()));
  // The view fitted is the home view, and nothing is left to be fitted.
  ASSERT_EQ(0, Tavix_Zom(-45.0, -60.0, 45.0, 60.0));
  const Picture zoomed = Shown();
  Press(kWholeViewButton);
  EXPECT_TRUE(SamePicture(CrossesAt({{110, 170}, {130, 10}}), Shown()));
  Press(kWholeViewButton);
  EXPECT_TRUE(SamePicture(zoomed, Shown()));
}

TEST_F(SettingsOfPlot, KeepsTheViewWithTheSameRatio) {
  const short look = AddLegend(kCross);
  ASSERT_EQ(0, Enter(1, {0.0, 0.0}, look));
  ASSERT_EQ(0, Enter(2, {20.0, 10.0}, look));
  ASSERT_EQ(0, Tavix_SetTatYok(2, 1));
  Confirm();
  EXPECT_TRUE(SamePicture(CrossesAt({{120, 90}, {130, 50}}), Shown()));
  Confirm({Type(kVertical, L"2")});
  EXPECT_TRUE(SamePicture(CrossesAt({{120, 90}, {130, 50}}), Shown()));
}

}  // namespace
}  // namespace tavix::test
