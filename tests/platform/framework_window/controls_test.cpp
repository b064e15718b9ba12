// The controls' calls against what the controls then hold.

#include <afxcmn.h>
#include <gtest/gtest.h>

#include "tests/platform/framework_window/support.h"

namespace {

using test::FrameWindow;

const RECT kRect = {0, 0, 80, 100};

TEST(ComboBox, KeepsItemsAndTheirData) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CComboBox combo;
  ASSERT_TRUE(combo.Create(CBS_DROPDOWNLIST, kRect, &parent, 1));
  EXPECT_EQ(combo.GetCount(), 0);
  EXPECT_EQ(combo.GetCurSel(), CB_ERR);
  EXPECT_EQ(combo.AddString(L"実線"), 0);
  EXPECT_EQ(combo.AddString(L"破線"), 1);
  EXPECT_EQ(combo.InsertString(1, L"Broken line"), 1);
  EXPECT_EQ(combo.GetCount(), 3);
  EXPECT_NE(combo.SetItemData(2, 0xABCD), CB_ERR);
  EXPECT_EQ(combo.GetItemData(2), 0xABCDu);
  EXPECT_EQ(combo.SetItemData(9, 1), CB_ERR);
  EXPECT_EQ(combo.SetCurSel(2), 2);
  EXPECT_EQ(combo.GetCurSel(), 2);
  EXPECT_EQ(combo.SetCurSel(-1), CB_ERR);
  EXPECT_EQ(combo.GetCurSel(), CB_ERR);
  CString text;
  combo.GetLBText(1, text);
  EXPECT_EQ(text, L"Broken line");
  combo.GetLBText(7, text);
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(combo.FindStringExact(-1, L"broken LINE"), 1);
  EXPECT_EQ(combo.FindStringExact(-1, L"Broken"), CB_ERR);
  EXPECT_EQ(combo.FindString(-1, L"Broken"), 1);
  EXPECT_EQ(combo.SelectString(-1, L"破"), 2);
  EXPECT_EQ(combo.DeleteString(0), 2);
  combo.ResetContent();
  EXPECT_EQ(combo.GetCount(), 0);
}

class SelectionParent : public FrameWindow {
 public:
  int changes = 0;
  void OnChange() { ++changes; }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(SelectionParent, FrameWindow)
ON_CBN_SELCHANGE(1, &SelectionParent::OnChange)
ON_LBN_SELCHANGE(2, &SelectionParent::OnChange)
ON_EN_CHANGE(3, &SelectionParent::OnChange)
END_MESSAGE_MAP()

TEST(ComboBox, TellsTheParentOfTheUsersChoice) {
  SelectionParent parent;
  ASSERT_TRUE(parent.Make());
  CComboBox combo;
  ASSERT_TRUE(combo.Create(CBS_DROPDOWNLIST, kRect, &parent, 1));
  combo.AddString(L"a");
  combo.AddString(L"b");
  combo.SetCurSel(0);
  EXPECT_EQ(parent.changes, 0) << "not of the program's";
  combo.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
  EXPECT_EQ(combo.GetCurSel(), 1);
  EXPECT_EQ(parent.changes, 1);
}

TEST(ListBox, KeepsItemsAndTheirData) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CListBox list;
  ASSERT_TRUE(list.Create(0, kRect, &parent, 2));
  EXPECT_EQ(list.AddString(L"one"), 0);
  EXPECT_EQ(list.InsertString(0, L"zero"), 0);
  EXPECT_EQ(list.GetCount(), 2);
  list.SetItemData(1, 77);
  EXPECT_EQ(list.GetItemData(1), 77u);
  CString text;
  list.GetText(1, text);
  EXPECT_EQ(text, L"one");
  list.GetText(5, text);
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(list.SetCurSel(1), 1);
  EXPECT_EQ(list.GetCurSel(), 1);
  EXPECT_EQ(list.FindStringExact(-1, L"ZERO"), 0);
  list.ResetContent();
  EXPECT_EQ(list.GetCurSel(), LB_ERR);
}

TEST(Edit, SelectsLimitsAndReplaces) {
  SelectionParent parent;
  ASSERT_TRUE(parent.Make());
  CEdit edit;
  ASSERT_TRUE(edit.Create(ES_AUTOHSCROLL, kRect, &parent, 3));
  edit.SetWindowText(L"123.456");
  EXPECT_EQ(parent.changes, 1);
  edit.SetSel(1, 3);
  int start = 0, end = 0;
  edit.GetSel(start, end);
  EXPECT_EQ(start, 1);
  EXPECT_EQ(end, 3);
  edit.ReplaceSel(L"xyz");
  CString text;
  edit.GetWindowText(text);
  EXPECT_EQ(text, L"1xyz.456");
  edit.LimitText(9);
  EXPECT_EQ(edit.GetLimitText(), 9u);
  edit.SetSel(-1, -1);
  edit.SetSel(0, -1);
  edit.GetSel(start, end);
  EXPECT_EQ(start, 0);
  EXPECT_EQ(end, 8);
  EXPECT_TRUE(edit.SetReadOnly());
  EXPECT_TRUE(edit.GetStyle() & ES_READONLY);
}

TEST(SpinButton, CountsWithinItsRangeAndTellsABadBuddy) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CEdit buddy;
  ASSERT_TRUE(buddy.Create(ES_NUMBER, kRect, &parent, 3));
  CSpinButtonCtrl spin;
  ASSERT_TRUE(spin.Create(UDS_SETBUDDYINT | UDS_NOTHOUSANDS, kRect, &parent, 4));
  EXPECT_EQ(spin.SetBuddy(&buddy), nullptr);
  EXPECT_EQ(spin.GetBuddy(), &buddy);
  spin.SetRange(1, 50);
  int lower = 0, upper = 0;
  spin.GetRange(lower, upper);
  EXPECT_EQ(lower, 1);
  EXPECT_EQ(upper, 50);
  spin.SetPos(12);
  CString text;
  buddy.GetWindowText(text);
  EXPECT_EQ(text, L"12");
  EXPECT_EQ(spin.GetPos(), 12);
  buddy.SetWindowText(L"");
  EXPECT_NE(HIWORD(spin.GetPos()), 0) << "no number in the buddy";
  EXPECT_EQ(spin.GetBase(), 10u);
  EXPECT_EQ(spin.SetBase(16), 10);
  EXPECT_EQ(spin.GetBase(), 16u);
}

TEST(Button, ChecksAndPresses) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CButton button;
  ASSERT_TRUE(button.Create(L"flag", BS_AUTOCHECKBOX, kRect, &parent, 5));
  EXPECT_EQ(button.GetCheck(), BST_UNCHECKED);
  button.SetCheck(BST_CHECKED);
  EXPECT_EQ(button.GetCheck(), BST_CHECKED);
  EXPECT_EQ(button.GetButtonStyle(), UINT{BS_AUTOCHECKBOX});
  button.SendMessage(BM_CLICK);
  EXPECT_EQ(button.GetCheck(), BST_UNCHECKED);
}

TEST(ScrollBar, KeepsItsPosition) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CScrollBar bar;
  ASSERT_TRUE(bar.Create(SBS_HORZ, kRect, &parent, 6));
  bar.SetScrollRange(0, 200);
  bar.SetScrollPos(55);
  EXPECT_EQ(bar.GetScrollPos(), 55);
  EXPECT_EQ(CScrollBar::FromHandle(bar.m_hWnd), &bar);
  EXPECT_EQ(CScrollBar::FromHandle(nullptr), nullptr);
}

TEST(Static, ShowsItsText) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CStatic label;
  ASSERT_TRUE(label.Create(L"縮尺", SS_LEFT, kRect, &parent));
  EXPECT_EQ(label.GetDlgCtrlID(), 0xFFFF);
  CString text;
  label.GetWindowText(text);
  EXPECT_EQ(text, L"縮尺");
}

}  // namespace
