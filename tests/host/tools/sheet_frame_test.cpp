// The sheet on the plan: its dialog, its frame, moving it.

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cwchar>

#include "tests/host/tools/plan_test.h"
#include "window/buttons/button_table.h"

namespace fieldhost {
namespace {

using tavix::test::Picture;

constexpr int kA3 = 3;  // in the dialog's list
constexpr int kA4 = 4;
constexpr int kB4 = 8;

// The rectangle around all black pixels. The frame is black, and all points lie within it.
RECT BlackRect(const Picture& picture) {
  RECT rect{picture.width, picture.height, -1, -1};
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      if (picture.At(x, y) != 0) continue;
      rect = {std::min<LONG>(rect.left, x), std::min<LONG>(rect.top, y),
              std::max<LONG>(rect.right, x), std::max<LONG>(rect.bottom, y)};
    }
  }
  return rect;
}

// The frame reaches both edges of the plot one way or the other, and the dialog no longer covers
// it.
bool IsPainted(const Picture& picture) {
  constexpr int kMarksAndLabels = 400;  // pixels
  const RECT frame = BlackRect(picture);
  const bool tall = frame.top == 5 && frame.bottom == picture.height - 5;
  const bool wide = frame.left == 5 && frame.right == picture.width - 5;
  const int outline = 2 * (picture.width + picture.height);
  return (tall || wide) && tavix::test::CountPixels(picture, 0xFFFFFF) >
                               picture.width * picture.height - outline - kMarksAndLabels;
}

class SheetFrame : public PlanTest {
 protected:
  // Opens the dialog and fills it in.
  [[nodiscard]] HWND FillDialog(int paper, bool landscape, const wchar_t* scale) {
    PostCommand(ID_SHEET_SETUP);
    const HWND dialog = host_->WaitForWindow(L"Sheet");
    EXPECT_TRUE(dialog);
    ::SendDlgItemMessageW(dialog, IDC_SHEET_PAPER, CB_SETCURSEL, static_cast<WPARAM>(paper), 0);
    ::SendDlgItemMessageW(dialog, landscape ? IDC_SHEET_LANDSCAPE : IDC_SHEET_PORTRAIT, BM_CLICK, 0,
                          0);
    ::SendDlgItemMessageW(dialog, IDC_SHEET_SCALE, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(scale));
    return dialog;
  }

  void Close(HWND dialog, int button) const {
    ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
  }

  void ChooseSheet(int paper, bool landscape, const wchar_t* scale) {
    Close(FillDialog(paper, landscape, scale), IDOK);
  }

  // Paper, scale and origin of the view as it is now, as the line shows them.
  [[nodiscard]] std::wstring ShownSheet() const {
    Command(ID_TOOL_CANCEL);
    return TextOf(Info());
  }

  // The plot once it is painted with the frame.
  [[nodiscard]] Picture ShownWithFrame() const {
    Picture shown;
    EXPECT_TRUE(WaitUntil([&] {
      shown = Shown();
      return IsPainted(shown);
    }));
    return shown;
  }

  // The frame takes the whole height of the plot but for 5 pixels above and below, and its sides
  // are those of the paper.
  void ExpectTallFrame(double width_by_height) const {
    const auto stands = [&] {
      const Picture shown = Shown();
      const RECT frame = BlackRect(shown);
      const int height = shown.height - 10;
      return frame.top == 5 && frame.bottom == 5 + height &&
             std::abs(frame.right - frame.left - height * width_by_height) <= 1.0;
    };
    EXPECT_TRUE(WaitUntil(stands));
  }
};

TEST_F(SheetFrame, ShowsPaperScaleAndOrigin) {
  const Picture before = Shown();
  ChooseSheet(kA4, false, L"1000");
  // The middle of the survey is the sheet's: half a sheet of 297 m by 210 m lies below and left.
  ExpectInfoBegins(L"A4 1:1000  X ");
  constexpr double kPixels = 2.0;  // metres
  double north = 0.0;
  double east = 0.0;
  ASSERT_EQ(2, std::swscanf(ShownSheet().c_str(), L"A4 1:1000 X %lf Y %lf", &north, &east));
  EXPECT_NEAR(50.0 - 297.0 / 2, north, kPixels);
  EXPECT_NEAR(50.0 - 210.0 / 2, east, kPixels);
  ExpectTallFrame(210.0 / 297.0);

  Command(ID_SHEET_REMOVE);
  ExpectInfo(kSummary);
  Command(ID_VIEW_WHOLE);
  ExpectShown(before);
  Exit();
}

TEST_F(SheetFrame, TakesEveryWayUpAndATypedScale) {
  ChooseSheet(kA3, true, L"1:750");
  ExpectInfoBegins(L"A3 landscape 1:750  X ");
  ChooseSheet(kB4, false, L"99");  // one of those that the library reports one too low
  ExpectInfoBegins(L"B4 1:99  X ");
  Exit();
}

TEST_F(SheetFrame, DialogSaysWhatIsWrongWithAScale) {
  const struct {
    const wchar_t* typed;
    const wchar_t* said;
  } rows[] = {
      {L"", L"Type a scale, such as 500 for 1:500."},
      {L"0", L"'0' is not a scale: type a whole number from 1 to 1000000."},
      {L"-5", L"'-5' is not a scale: type a whole number from 1 to 1000000."},
      {L"abc", L"'abc' is not a scale: type a whole number from 1 to 1000000."},
      {L"2:500", L"'2:500' is not a scale: type a whole number from 1 to 1000000."},
  };
  const HWND dialog = FillDialog(kA4, false, L"500");
  for (const auto& row : rows) {
    ::SendDlgItemMessageW(dialog, IDC_SHEET_SCALE, WM_SETTEXT, 0,
                          reinterpret_cast<LPARAM>(row.typed));
    ::SendMessageW(dialog, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(row.said, TextOf(::GetDlgItem(dialog, IDC_SHEET_PROBLEM)));
    ASSERT_TRUE(::IsWindow(dialog));
    // Selected, so that what is typed next takes its place.
    const LRESULT selected = ::SendDlgItemMessageW(dialog, IDC_SHEET_SCALE, CB_GETEDITSEL, 0, 0);
    EXPECT_EQ(selected, MAKELONG(0, std::wcslen(row.typed)));
  }
  Close(dialog, IDCANCEL);
  ExpectInfo(kSummary);
  Exit();
}

TEST_F(SheetFrame, DialogShowsTheSheetThatIsThere) {
  ChooseSheet(kA3, true, L"2500");
  ExpectInfoBegins(L"A3 landscape 1:2500  X ");
  PostCommand(ID_SHEET_SETUP);
  const HWND dialog = host_->WaitForWindow(L"Sheet");
  ASSERT_TRUE(dialog);
  EXPECT_EQ(kA3, ::SendDlgItemMessageW(dialog, IDC_SHEET_PAPER, CB_GETCURSEL, 0, 0));
  EXPECT_EQ(BST_CHECKED, ::SendDlgItemMessageW(dialog, IDC_SHEET_LANDSCAPE, BM_GETCHECK, 0, 0));
  EXPECT_EQ(L"2500", TextOf(::GetDlgItem(dialog, IDC_SHEET_SCALE)));
  Close(dialog, IDCANCEL);
  ExpectInfoBegins(L"A3 landscape 1:2500  X ");
  Exit();
}

TEST_F(SheetFrame, MovesToATappedPlaceAndKeepsItAtAnotherScale) {
  ChooseSheet(kA4, false, L"1000");
  ExpectInfoBegins(L"A4 1:1000  X ");
  const RECT frame = BlackRect(ShownWithFrame());
  ZoomedTo((frame.right - frame.left) / 210.0);
  Command(ID_TOOL_MOVE_SHEET);
  ExpectInfo(L"Sheet: tap the place of its bottom left corner.");
  Tap(0, 0);
  ExpectInfo(L"A4 1:1000  X 0.000  Y 0.000");
  ChooseSheet(kA4, false, L"500");
  ExpectInfo(L"A4 1:500  X 0.000  Y 0.000");
  Exit();
}

TEST_F(SheetFrame, CancelledMoveLeavesTheSheetWhereItIs) {
  ChooseSheet(kA4, false, L"1000");
  ExpectInfoBegins(L"A4 1:1000  X ");
  const std::wstring before = TextOf(Info());
  const Picture shown = ShownWithFrame();
  Command(ID_TOOL_MOVE_SHEET);
  Command(ID_TOOL_CANCEL);
  ExpectInfo(before);
  ExpectShown(shown);
  Exit();
}

TEST_F(SheetFrame, WithoutASheetThereIsNoneToMove) {
  Command(ID_TOOL_MOVE_SHEET);
  ExpectInfo(L"There is no sheet to move: choose its paper and scale first.");
  Tap(0, 0);
  ExpectInfo(L"1 a  X 0.000  Y 0.000");
  Exit();
}

TEST_F(SheetFrame, IsLaidOutAgainInAResizedWindow) {
  ChooseSheet(kA4, false, L"25000");
  ExpectInfoBegins(L"A4 1:25000  X ");
  const std::wstring before = TextOf(Info());
  for (const int width : {420, 360, 300}) {
    Widen(width);
    ExpectTallFrame(210.0 / 297.0);
    EXPECT_EQ(before, ShownSheet());
  }
  Exit();
}

TEST_F(SheetFrame, IsLaidOutAgainBesideTheButtons) {
  ChooseSheet(kA3, true, L"1000");
  ExpectInfoBegins(L"A3 landscape 1:1000  X ");
  const std::wstring before = TextOf(Info());
  const Picture shown = ShownWithFrame();
  const auto right_edge = [&] {
    const Picture now = Shown();
    return BlackRect(tavix::test::LeftPart(now, now.width - 20)).right;
  };
  EXPECT_EQ(right_edge(), shown.width - 20 - 1);  // it runs on below where the buttons will be
  Command(ID_VIEW_BUTTONS);
  EXPECT_TRUE(WaitUntil([&] { return right_edge() == shown.width - 20 - 5; }));
  EXPECT_EQ(before, ShownSheet());
  Command(ID_VIEW_BUTTONS);
  ExpectShown(shown);
  EXPECT_EQ(before, ShownSheet());
  Exit();
}

TEST_F(SheetFrame, ScaleOfAZoomedViewIsShown) {
  ChooseSheet(kA4, false, L"1000");
  ExpectInfoBegins(L"A4 1:1000  X ");
  ::PostMessageW(Plot(), WM_COMMAND, tavix::kZoomOutButton, 0);
  // Half as much again; the library then measures the frame, whose sides are whole pixels.
  EXPECT_TRUE(WaitUntil([&] {
    int scale = 0;
    std::swscanf(TextOf(Info()).c_str(), L"A4 1:%d", &scale);
    return std::abs(scale - 1500) <= 8;
  })) << std::filesystem::path(TextOf(Info())).string();
  Exit();
}

TEST_F(SheetFrame, ScaleBarShowsAndSurvivesAResizedWindow) {
  constexpr std::uint32_t kBar = 0x0000FF;
  const Picture before = Shown();
  EXPECT_EQ(0, tavix::test::CountPixels(before, kBar));
  Command(ID_VIEW_SCALE_BAR);
  ExpectColour(kBar, 30);
  Widen(420);
  ExpectColour(kBar, 30);
  Widen(320);
  Command(ID_VIEW_SCALE_BAR);
  ExpectShown(before);
  Exit();
}

}  // namespace
}  // namespace fieldhost
