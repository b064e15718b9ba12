// The settings dialog as the user finds it: its items, and that they can be read.
#include <afxcmn.h>
#include <tavix/tavix.h>

#include <cstring>
#include <string>

#include "tests/platform/support/scoped_work_area.h"
#include "tests/window/settings/settings_test.h"

namespace tavix::test {
namespace {

constexpr int kNoId = 0;  // found by its text instead

struct ItemRow {
  int id;
  const wchar_t* window_class;
  const wchar_t* caption;
  bool visible;
  LONG mask;
  LONG style;  // under the mask
};

constexpr LONG kButtonKind = BS_TYPEMASK | WS_GROUP;

const ItemRow kItems[] = {
    {kEntries, L"ComboBox", nullptr, true, 3, CBS_DROPDOWNLIST},
    {kCopyToAll, L"Button", L"全ﾏｰｸ同じ凡例に", false, BS_TYPEMASK, BS_PUSHBUTTON},
    {kMarkSizes, L"ComboBox", nullptr, true, 3, CBS_DROPDOWNLIST},
    {kTextSizes, L"ComboBox", nullptr, true, 3, CBS_DROPDOWNLIST},
    {kColor, L"Button", L"", true, BS_TYPEMASK, BS_OWNERDRAW},
    {kShowNumber, L"Button", L"番号表示", true, kButtonKind, BS_AUTORADIOBUTTON | WS_GROUP},
    {kShowName, L"Button", L"名称表示", true, kButtonKind, BS_AUTORADIOBUTTON},
    {kDrawLines, L"Button", L"描画する", true, BS_TYPEMASK, BS_AUTOCHECKBOX},
    {kVertical, L"Edit", nullptr, false, ES_READONLY | ES_MULTILINE, 0},
    {kHorizontal, L"Edit", nullptr, false, ES_READONLY | ES_MULTILINE, 0},
    {kStep, L"Edit", nullptr, true, ES_READONLY | ES_MULTILINE, 0},
    {kSpin, L"msctls_updown32", L"Spin1", true, 0xFFFF,
     UDS_SETBUDDYINT | UDS_ALIGNRIGHT | UDS_AUTOBUDDY | UDS_ARROWKEYS},
    {kVerticalLabel, L"Static", L"縦", false, SS_TYPEMASK, SS_LEFT},
    {kHorizontalLabel, L"Static", L"：横", false, SS_TYPEMASK, SS_LEFT},
    {kRatioGroup, L"Button", L"縦横比率", false, BS_TYPEMASK, BS_GROUPBOX},
    {kLineGroup, L"Button", L"線分表示凡例", true, BS_TYPEMASK, BS_GROUPBOX},
    {kStepGroup, L"Button", L"回転角度", true, BS_TYPEMASK, BS_GROUPBOX},
    {kNoId, L"Static", L"ﾏｰｸ", true, SS_TYPEMASK, SS_LEFT},
    {kNoId, L"Static", L"文字", true, SS_TYPEMASK, SS_LEFT},
    {kNoId, L"Static", L"ｶﾗｰ", true, SS_TYPEMASK, SS_LEFT},
    {kNoId, L"Static", L"ｻｲｽﾞ", true, SS_TYPEMASK, SS_LEFT},
    {kNoId, L"Static", L"角度(1°～180°)", true, SS_TYPEMASK, SS_LEFT},
    {kNoId, L"Button", L"ﾏｰｸ表示凡例", true, BS_TYPEMASK, BS_GROUPBOX},
};

struct ResourceHeader {
  WORD version;
  WORD signature;
  DWORD help;
  DWORD extended_style;
  DWORD style;
  WORD items;
  short place[4];  // left, top, width, height in dialog units
};

std::wstring CaptionOf(HWND window) {
  wchar_t text[64] = {};
  ::GetWindowTextW(window, text, 64);
  return text;
}

std::wstring ClassOf(HWND window) {
  wchar_t name[64] = {};
  ::GetClassNameW(window, name, 64);
  return name;
}

HWND Find(HWND dialog, const ItemRow& row) {
  return row.id != kNoId ? ::GetDlgItem(dialog, row.id)
                         : ::FindWindowExW(dialog, nullptr, row.window_class, row.caption);
}

std::vector<HWND> ItemsOf(HWND dialog) {
  std::vector<HWND> items;
  for (HWND item = ::GetWindow(dialog, GW_CHILD); item; item = ::GetWindow(item, GW_HWNDNEXT)) {
    items.push_back(item);
  }
  return items;
}

RECT PlaceOf(HWND item) {
  RECT place;
  ::GetWindowRect(item, &place);
  return place;
}

bool IsGroupBox(HWND item) {
  return ClassOf(item) == L"Button" &&
         (::GetWindowLongW(item, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}

// Text width in the item's own font.
LONG TextWidth(HWND item) {
  const HDC dc = ::GetDC(item);
  const HGDIOBJ font =
      ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageW(item, WM_GETFONT, 0, 0)));
  SIZE size{};
  const std::wstring text = CaptionOf(item);
  ::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
  ::SelectObject(dc, font);
  ::ReleaseDC(item, dc);
  return size.cx;
}

class SettingsTemplate : public SettingsTest {};

TEST_F(SettingsTemplate, HasThisResource) {
  const HMODULE library = ::GetModuleHandleW(L"tavix.dll");
  const HRSRC found = ::FindResourceW(library, MAKEINTRESOURCEW(457), RT_DIALOG);
  ASSERT_NE(nullptr, found);
  const auto* bytes = static_cast<const char*>(::LockResource(::LoadResource(library, found)));
  ResourceHeader header;
  std::memcpy(&header, bytes, sizeof header);
  EXPECT_EQ(0xFFFF, header.signature);
  EXPECT_EQ(0x80C808C0U, header.style);
  EXPECT_EQ(0x80000000U, header.extended_style);
  EXPECT_EQ(24, header.items);
  EXPECT_EQ(163, header.place[2]);
  EXPECT_EQ(130, header.place[3]);
  const auto* words = reinterpret_cast<const wchar_t*>(bytes + 26);
  EXPECT_EQ(0, words[0]) << "no menu";
  EXPECT_EQ(0, words[1]) << "no class of its own";
  const std::wstring title = words + 2;
  EXPECT_EQ(L"確認図設定", title);
  const wchar_t* font = words + 3 + title.size();
  EXPECT_EQ(10, font[0]);
  EXPECT_STREQ(L"ＭＳ ゴシック", font + 3);
}

TEST_F(SettingsTemplate, HasTheseItems) {
  Cancel({[](HWND dialog) {
    EXPECT_EQ(L"確認図設定", CaptionOf(dialog));
    for (const ItemRow& row : kItems) {
      const HWND item = Find(dialog, row);
      const auto name = testing::Message() << row.id << " " << (row.caption ? row.caption : L"");
      ASSERT_NE(nullptr, item) << name;
      EXPECT_EQ(row.window_class, ClassOf(item)) << name;
      if (row.caption) {
        EXPECT_EQ(row.caption, CaptionOf(item)) << name;
      }
      const LONG style = ::GetWindowLongW(item, GWL_STYLE);
      EXPECT_EQ(row.visible, (style & WS_VISIBLE) != 0) << name;
      EXPECT_EQ(row.style, style & row.mask) << name;
    }
    EXPECT_EQ(25U, ItemsOf(dialog).size()) << "those, the frame of the row, and OK";
  }});
}

TEST_F(SettingsTemplate, ShowsItsTextsInOneJapaneseFont) {
  Cancel({[](HWND dialog) {
    const auto font = ::SendMessageW(dialog, WM_GETFONT, 0, 0);
    LOGFONTW look{};
    ASSERT_NE(0, ::GetObjectW(reinterpret_cast<HFONT>(font), sizeof look, &look));
    EXPECT_STREQ(L"ＭＳ ゴシック", look.lfFaceName);
    for (const HWND item : ItemsOf(dialog)) {
      if (ClassOf(item) == L"msctls_updown32") continue;
      EXPECT_EQ(font, ::SendMessageW(item, WM_GETFONT, 0, 0)) << ::GetDlgCtrlID(item);
    }
  }});
}

void ExpectReadable(HWND dialog) {
  RECT client;
  ::GetClientRect(dialog, &client);
  ::MapWindowPoints(dialog, nullptr, reinterpret_cast<POINT*>(&client), 2);
  const std::vector<HWND> items = ItemsOf(dialog);
  for (const HWND item : items) {
    if (!::IsWindowVisible(item)) continue;
    const int id = ::GetDlgCtrlID(item);
    const RECT place = PlaceOf(item);
    RECT common;
    ::UnionRect(&common, &client, &place);
    EXPECT_TRUE(::EqualRect(&common, &client)) << id << " reaches out of the dialog";
    // A radio button and a check box have their sign in front of the text.
    const LONG sign = id == kShowNumber || id == kShowName || id == kDrawLines ? 16 : 0;
    if (id != kSpin) {  // which does not show its text
      EXPECT_LE(TextWidth(item) + sign, place.right - place.left) << CaptionOf(item);
    }
    if (IsGroupBox(item)) continue;
    for (const HWND other : items) {
      if (other == item || !::IsWindowVisible(other) || IsGroupBox(other)) continue;
      const RECT taken = PlaceOf(other);
      // The spin control stands in its edit's frame.
      const bool spin = id == kSpin || ::GetDlgCtrlID(other) == kSpin;
      EXPECT_TRUE(spin || !::IntersectRect(&common, &place, &taken))
          << id << " covers " << ::GetDlgCtrlID(other);
    }
  }
}

TEST_F(SettingsTemplate, CutsAndCoversNothing) { Cancel({ExpectReadable}); }

TEST_F(SettingsTemplate, CutsAndCoversNothingWithARatio) {
  ASSERT_EQ(0, Tavix_SetTatYok(2, 1));
  Cancel({ExpectReadable});
}

// As on the handheld, whose OK button stood in the caption.
TEST_F(SettingsTemplate, CutsAndCoversNothingOnTheHandheldsScreen) {
  const RECT screen{0, 0, 240, 320};
  const ::test::ScopedWorkArea small(screen);
  const Step is_readable_in_the_corner = [&](HWND dialog) {
    ExpectReadable(dialog);
    const RECT place = PlaceOf(dialog);
    EXPECT_EQ(0, place.left);
    EXPECT_EQ(0, place.top);
    EXPECT_LE(place.right, screen.right);
    EXPECT_LE(place.bottom, screen.bottom);
    EXPECT_TRUE(IsVisible(dialog, IDOK));
  };
  Cancel({is_readable_in_the_corner});
  ASSERT_EQ(0, Tavix_SetTatYok(2, 1));
  Cancel({is_readable_in_the_corner});
}

TEST_F(SettingsTemplate, StandsInTheMiddleOfALargeScreen) {
  Cancel({[](HWND dialog) {
    RECT work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const RECT place = PlaceOf(dialog);
    EXPECT_EQ((work.right - (place.right - place.left)) / 2, place.left);
    LOGFONTW font{};
    ::GetObjectW(reinterpret_cast<HFONT>(::SendMessageW(dialog, WM_GETFONT, 0, 0)), sizeof font,
                 &font);
    const HDC dc = ::GetDC(nullptr);
    EXPECT_EQ(-::MulDiv(10, ::GetDeviceCaps(dc, LOGPIXELSY), 72), font.lfHeight);
    ::ReleaseDC(nullptr, dc);
  }});
}

TEST_F(SettingsTemplate, TheTabKeyGoesFromTopToBottom) {
  ASSERT_EQ(0, Tavix_SetTatYok(2, 1));
  SetTitle(2, L"円");  // the first one's mark size could not be chosen
  std::vector<int> visited;
  const Step note = [&visited](HWND) { visited.push_back(::GetDlgCtrlID(::GetFocus())); };
  std::vector<Step> steps;
  for (int stop = 0; stop < 11; ++stop) {
    steps.push_back(note);
    steps.push_back(::test::Key(VK_TAB));
  }
  Cancel(steps);
  EXPECT_EQ((std::vector<int>{kEntries, kMarkSizes, kTextSizes, kColor, kShowNumber, kDrawLines,
                              kVertical, kHorizontal, kStep, IDOK, kEntries}),
            visited);
}

}  // namespace
}  // namespace tavix::test
