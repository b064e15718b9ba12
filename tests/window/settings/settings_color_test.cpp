// The colour field of the settings dialog, and the colour chooser behind it.
#include <tavix/tavix.h>

#include "tests/window/settings/settings_test.h"

namespace tavix::test {
namespace {

// The chooser's edits of a colour's parts.
constexpr int kRed = 706;
constexpr int kGreen = 707;
constexpr int kBlue = 708;

class SettingsColor : public SettingsTest {
 protected:
  // What the middle of the colour field shows.
  static COLORREF FieldOf(HWND dialog) {
    const HWND field = ::GetDlgItem(dialog, kColor);
    ::UpdateWindow(field);
    RECT area;
    ::GetClientRect(field, &area);
    const HDC dc = ::GetDC(field);
    const COLORREF color = ::GetPixel(dc, area.right / 2, area.bottom / 2);
    ::ReleaseDC(field, dc);
    return color;
  }

  static Step ExpectField(COLORREF color) {
    return [color](HWND dialog) { EXPECT_EQ(color, FieldOf(dialog)); };
  }

  // In the chooser that has opened.
  static Step Pick(COLORREF color) {
    return [color](HWND chooser) {
      ASSERT_EQ(nullptr, ::GetDlgItem(chooser, kColor)) << "the chooser did not open";
      ::SetDlgItemInt(chooser, kRed, GetRValue(color), FALSE);
      ::SetDlgItemInt(chooser, kGreen, GetGValue(color), FALSE);
      ::SetDlgItemInt(chooser, kBlue, GetBValue(color), FALSE);
    };
  }
};

TEST_F(SettingsColor, ShowsTheEntrysColour) {
  SetTitle(2, L"円");
  SetTitle(5, L"三角");
  SetEntry(2, {.kind = 2, .color = RGB(0, 128, 255)});
  Cancel({ExpectField(RGB(0, 128, 255)), Choose(kEntries, 1), ExpectField(RGB(255, 0, 0)),
          [](HWND dialog) {
            const HWND field = ::GetDlgItem(dialog, kColor);
            const HDC dc = ::GetDC(field);
            const auto brush = reinterpret_cast<HBRUSH>(
                ::SendMessageW(dialog, WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc),
                               reinterpret_cast<LPARAM>(field)));
            ::ReleaseDC(field, dc);
            LOGBRUSH look{};
            ASSERT_NE(0, ::GetObjectW(brush, sizeof look, &look));
            EXPECT_EQ(RGB(255, 0, 0), look.lbColor);
          }});
}

TEST_F(SettingsColor, TakesTheChosenColour) {
  SetTitle(2, L"円");
  SetTitle(5, L"三角");
  Confirm({Click(kColor), Pick(RGB(10, 200, 30)), ::test::Command(IDOK),
           ExpectField(RGB(10, 200, 30)), Choose(kEntries, 1), ExpectField(RGB(255, 0, 0)),
           Choose(kEntries, 0), ExpectField(RGB(10, 200, 30))});
  EXPECT_EQ(RGB(10, 200, 30), Entry(2).color);
  EXPECT_EQ(RGB(255, 0, 0), Entry(5).color);
}

TEST_F(SettingsColor, TheChooserStartsWithTheEntrysColour) {
  SetTitle(2, L"円");
  SetEntry(2, {.kind = 2, .color = RGB(0, 128, 192)});
  Confirm({Click(kColor),
           [](HWND chooser) {
             EXPECT_EQ(0U, ::GetDlgItemInt(chooser, kRed, nullptr, FALSE));
             EXPECT_EQ(128U, ::GetDlgItemInt(chooser, kGreen, nullptr, FALSE));
             EXPECT_EQ(192U, ::GetDlgItemInt(chooser, kBlue, nullptr, FALSE));
           },
           ::test::Command(IDOK), ExpectField(RGB(0, 128, 192))});
  EXPECT_EQ(RGB(0, 128, 192), Entry(2).color);
}

TEST_F(SettingsColor, ACancelledChooserChangesNothing) {
  SetTitle(2, L"円");
  Confirm({Click(kColor), Pick(RGB(10, 200, 30)), ::test::Command(IDCANCEL), ExpectField(0)});
  EXPECT_EQ(0U, Entry(2).color);
}

TEST_F(SettingsColor, ACancelledDialogChangesNothing) {
  SetTitle(2, L"円");
  Cancel({Click(kColor), Pick(RGB(10, 200, 30)), ::test::Command(IDOK),
          ExpectField(RGB(10, 200, 30))});
  EXPECT_EQ(0U, Entry(2).color);
}

}  // namespace
}  // namespace tavix::test
