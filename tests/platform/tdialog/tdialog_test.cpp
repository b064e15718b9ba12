// The OK button of device dialogs, and how they end.

#include <gtest/gtest.h>
#include <tdialog.h>

#include "tests/platform/support/modal_driver.h"
#include "tests/platform/tdialog/test_resources.h"

namespace {

using test::Command;
using test::Key;
using test::ModalDriver;

CRect RectInDialog(CWnd& dialog, CWnd& item) {
  CRect rect;
  item.GetWindowRect(rect);
  dialog.ScreenToClient(rect);
  return rect;
}

TEST(DeviceDialog, HasAVisibleOkButtonThatHidesNothing) {
  for (const UINT id : {IDD_ROOM, IDD_FULL, IDD_PLAIN_STYLE}) {
    TDialog dialog;
    ASSERT_TRUE(dialog.Create(id)) << id;
    CWnd* ok = dialog.GetDlgItem(IDOK);
    ASSERT_NE(nullptr, ok) << id;
    EXPECT_TRUE(ok->GetStyle() & WS_VISIBLE);
    EXPECT_EQ(dialog.GetFont(), ok->GetFont());
    EXPECT_EQ(UINT{IDOK}, dialog.GetDefID());
    const CRect button = RectInDialog(dialog, *ok);
    CRect client;
    dialog.GetClientRect(client);
    EXPECT_TRUE(CRect().UnionRect(client, button));
    CRect both;
    both.UnionRect(client, button);
    EXPECT_EQ(client, both) << "inside the dialog " << id;
    for (HWND item = ::GetWindow(dialog.m_hWnd, GW_CHILD); item;
         item = ::GetWindow(item, GW_HWNDNEXT)) {
      if (item == ok->m_hWnd) continue;
      CRect common;
      EXPECT_FALSE(common.IntersectRect(button, RectInDialog(dialog, *CWnd::FromHandle(item))))
          << id;
    }
  }
}

TEST(DeviceDialog, GrowsOnlyWhenThereIsNoRoom) {
  CDialog plain;
  ASSERT_TRUE(plain.Create(IDD_NO_STYLE));  // the same size in the template
  CRect size, room, full;
  plain.GetClientRect(size);
  TDialog withRoom;
  ASSERT_TRUE(withRoom.Create(IDD_ROOM));
  withRoom.GetClientRect(room);
  EXPECT_EQ(size.Height(), room.Height());
  TDialog withoutRoom;
  ASSERT_TRUE(withoutRoom.Create(IDD_FULL));
  withoutRoom.GetClientRect(full);
  EXPECT_GT(full.Height(), size.Height());
  EXPECT_EQ(size.Width(), full.Width());
}

TEST(DeviceDialog, KeepsTheTemplatesOwnOk) {
  TDialog dialog;
  ASSERT_TRUE(dialog.Create(IDD_HAS_OK));
  CString text;
  dialog.GetDlgItemText(IDOK, text);
  EXPECT_EQ(L"Fertig", text);
  int buttons = 0;
  for (HWND item = ::GetWindow(dialog.m_hWnd, GW_CHILD); item;
       item = ::GetWindow(item, GW_HWNDNEXT)) {
    if (::GetDlgCtrlID(item) == IDOK) ++buttons;
  }
  EXPECT_EQ(1, buttons);
}

TEST(DeviceDialog, WithoutTheStyleThereIsNoButton) {
  TDialog dialog;
  ASSERT_TRUE(dialog.Create(IDD_NO_STYLE));
  EXPECT_EQ(nullptr, dialog.GetDlgItem(IDOK));
}

TEST(DeviceDialog, MissingTemplateIsNoDialog) {
  TDialog dialog(9999u);
  EXPECT_EQ(-1, dialog.DoModal());
  EXPECT_FALSE(TDialog().Create(9999u));
}

TEST(DeviceDialog, EndsByButtonKeysAndCloseBox) {
  const struct Row {
    const char* name;
    ModalDriver::Step step;
    INT_PTR result;
  } rows[] = {
      {"the button",
       [](HWND dialog) { ::SendMessageW(::GetDlgItem(dialog, IDOK), BM_CLICK, 0, 0); }, IDOK},
      {"Enter", Key(VK_RETURN), IDOK},
      {"Escape", Key(VK_ESCAPE), IDCANCEL},
      {"close box",
       [](HWND dialog) {
         EXPECT_TRUE(::GetWindowLongW(dialog, GWL_STYLE) & WS_SYSMENU);
         ::PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
       },
       IDCANCEL},
  };
  for (const UINT id : {IDD_ROOM, IDD_FULL}) {
    for (const Row& row : rows) {
      TDialog dialog(id);
      const ModalDriver driver({row.step});
      EXPECT_EQ(row.result, dialog.DoModal()) << row.name;
    }
  }
}

TEST(DeviceDialog, CanBeUsedAgain) {
  TDialog dialog(IDD_FULL);
  for (int i = 0; i < 2; ++i) {
    bool hasButton = false;
    const ModalDriver driver(
        {[&](HWND window) { hasButton = ::GetDlgItem(window, IDOK) != nullptr; }, Command(IDOK)});
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_TRUE(hasButton);
  }
}

}  // namespace
