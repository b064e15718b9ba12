#include "tests/window/settings/settings_test.h"

#include <tavix/tavix.h>

#include <cstddef>

#include "tests/support/plot_input.h"

namespace tavix::test {
namespace {

LRESULT Send(HWND dialog, int item, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  return ::SendMessageW(::GetDlgItem(dialog, item), message, wParam, lParam);
}

}  // namespace

std::wstring TextOf(HWND dialog, int item) {
  wchar_t text[100] = {};
  ::GetDlgItemTextW(dialog, item, text, 100);
  return text;
}

int ChosenLine(HWND dialog, int list) { return static_cast<int>(Send(dialog, list, CB_GETCURSEL)); }

std::vector<std::wstring> LinesOf(HWND dialog, int list) {
  std::vector<std::wstring> lines;
  const auto count = static_cast<std::size_t>(Send(dialog, list, CB_GETCOUNT));
  for (std::size_t line = 0; line < count; ++line) {
    wchar_t text[100] = {};
    Send(dialog, list, CB_GETLBTEXT, line, reinterpret_cast<LPARAM>(text));
    lines.emplace_back(text);
  }
  return lines;
}

bool IsChecked(HWND dialog, int item) { return ::IsDlgButtonChecked(dialog, item) == BST_CHECKED; }

bool IsVisible(HWND dialog, int item) {
  return ::IsWindowVisible(::GetDlgItem(dialog, item)) != FALSE;
}

Step Choose(int list, int line) {
  return [=](HWND dialog) {
    Send(dialog, list, CB_SETCURSEL, static_cast<WPARAM>(line));
    ::PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(list, CBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(::GetDlgItem(dialog, list)));
  };
}

Step Click(int item) {
  return [=](HWND dialog) { ::PostMessageW(::GetDlgItem(dialog, item), BM_CLICK, 0, 0); };
}

Step Focus(int item) {
  return [=](HWND dialog) {
    ::SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(::GetDlgItem(dialog, item)), 1);
  };
}

Step Type(int edit, const std::wstring& text) {
  return [=](HWND dialog) {
    Focus(edit)(dialog);
    Send(dialog, edit, EM_SETSEL, 0, -1);
    ::PostMessageW(::GetDlgItem(dialog, edit), WM_KEYDOWN, VK_DELETE, 1);
    for (const wchar_t character : text) {
      ::PostMessageW(::GetDlgItem(dialog, edit), WM_CHAR, character, 1);
    }
  };
}

void SettingsTest::RunDialog(const std::vector<Step>& steps) {
  std::size_t done = 0;
  int left_open = 0;
  std::vector<Step> all;
  for (const Step& step : steps) {
    all.emplace_back([&done, step](HWND dialog) {
      ++done;
      step(dialog);
    });
  }
  // A dialog, and a colour chooser over it, must not keep a failed test waiting for ever.
  for (int dialog = 0; dialog < 3; ++dialog) {
    all.emplace_back([&left_open](HWND open) {
      ++left_open;
      ::PostMessageW(open, WM_COMMAND, IDCANCEL, 0);
    });
  }
  const ::test::ModalDriver driver(std::move(all));
  Press(kSettingsButton);
  EXPECT_EQ(steps.size(), done) << "steps";
  EXPECT_EQ(0, left_open) << "dialogs left open";
}

void SettingsTest::Confirm(std::vector<Step> steps) {
  steps.push_back(::test::Command(IDOK));
  RunDialog(steps);
}

void SettingsTest::Cancel(std::vector<Step> steps) {
  steps.push_back(::test::Command(IDCANCEL));
  RunDialog(steps);
}

PointLegend SettingsTest::Entry(short number) {
  PointLegend look;
  int color = 0;
  EXPECT_EQ(0, Tavix_GetPntHan(number, &look.kind, &look.width, &color, &look.size,
                               &look.text_height, &look.label_number));
  look.color = static_cast<COLORREF>(color);
  return look;
}

void SettingsTest::SetEntry(short number, const PointLegend& look) {
  EXPECT_EQ(0, Tavix_ChgPntHan(number, look.kind, look.width, static_cast<int>(look.color),
                               look.size, look.text_height, look.label_number));
}

void SettingsTest::SetTitle(short number, const wchar_t* title) {
  EXPECT_EQ(0, Tavix_PntHanTtl(number, CString(title)));
}

}  // namespace tavix::test
