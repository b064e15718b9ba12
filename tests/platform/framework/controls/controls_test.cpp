// The calls of the controls, checked by what the controls then contain.

#include <afxcmn.h>
#include <gtest/gtest.h>

#include "tests/platform/framework/test_windows.h"

namespace {

using test::FrameWindow;

const RECT kRect = {0, 0, 80, 100};

TEST(ComboBox, KeepsItemsAndTheirData) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CComboBox combo;
  ASSERT_TRUE(combo.Create(CBS_DROPDOWNLIST, kRect, &parent, 1));
  EXPECT_EQ(0, combo.GetCount());
  EXPECT_EQ(CB_ERR, combo.GetCurSel());
  EXPECT_EQ(0, combo.AddString(L"実線"));
  EXPECT_EQ(1, combo.AddString(L"破線"));
  EXPECT_EQ(1, combo.InsertString(1, L"Broken line"));
  EXPECT_EQ(3, combo.GetCount());
  EXPECT_NE(CB_ERR, combo.SetItemData(2, 0xABCD));
  EXPECT_EQ(0xABCDu, combo.GetItemData(2));
  EXPECT_EQ(CB_ERR, combo.SetItemData(9, 1));
  EXPECT_EQ(2, combo.SetCurSel(2));
  EXPECT_EQ(2, combo.GetCurSel());
  EXPECT_EQ(CB_ERR, combo.SetCurSel(-1));
  EXPECT_EQ(CB_ERR, combo.GetCurSel());
  CString text;
  combo.GetLBText(1, text);
  EXPECT_EQ(L"Broken line", text);
  combo.GetLBText(7, text);
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(1, combo.FindStringExact(-1, L"broken LINE"));
  EXPECT_EQ(CB_ERR, combo.FindStringExact(-1, L"Broken"));
  EXPECT_EQ(1, combo.FindString(-1, L"Broken"));
  EXPECT_EQ(2, combo.SelectString(-1, L"破"));
  EXPECT_EQ(2, combo.DeleteString(0));
  combo.ResetContent();
  EXPECT_EQ(0, combo.GetCount());
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
  EXPECT_EQ(0, parent.changes) << "not of the program's";
  combo.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
  EXPECT_EQ(1, combo.GetCurSel());
  EXPECT_EQ(1, parent.changes);
}

TEST(ListBox, KeepsItemsAndTheirData) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CListBox list;
  ASSERT_TRUE(list.Create(0, kRect, &parent, 2));
  EXPECT_EQ(0, list.AddString(L"one"));
  EXPECT_EQ(0, list.InsertString(0, L"zero"));
  EXPECT_EQ(2, list.GetCount());
  list.SetItemData(1, 77);
  EXPECT_EQ(77u, list.GetItemData(1));
  CString text;
  list.GetText(1, text);
  EXPECT_EQ(L"one", text);
  list.GetText(5, text);
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(1, list.SetCurSel(1));
  EXPECT_EQ(1, list.GetCurSel());
  EXPECT_EQ(0, list.FindStringExact(-1, L"ZERO"));
  list.ResetContent();
  EXPECT_EQ(LB_ERR, list.GetCurSel());
}

TEST(Edit, SelectsLimitsAndReplaces) {
  SelectionParent parent;
  ASSERT_TRUE(parent.Make());
  CEdit edit;
  ASSERT_TRUE(edit.Create(ES_AUTOHSCROLL, kRect, &parent, 3));
  edit.SetWindowText(L"123.456");
  EXPECT_EQ(1, parent.changes);
  edit.SetSel(1, 3);
  int start = 0, end = 0;
  edit.GetSel(start, end);
  EXPECT_EQ(1, start);
  EXPECT_EQ(3, end);
  edit.ReplaceSel(L"xyz");
  CString text;
  edit.GetWindowText(text);
  EXPECT_EQ(L"1xyz.456", text);
  edit.LimitText(9);
  EXPECT_EQ(9u, edit.GetLimitText());
  edit.SetSel(-1, -1);
  edit.SetSel(0, -1);
  edit.GetSel(start, end);
  EXPECT_EQ(0, start);
  EXPECT_EQ(8, end);
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
  EXPECT_EQ(nullptr, spin.SetBuddy(&buddy));
  EXPECT_EQ(&buddy, spin.GetBuddy());
  spin.SetRange(1, 50);
  int lower = 0, upper = 0;
  spin.GetRange(lower, upper);
  EXPECT_EQ(1, lower);
  EXPECT_EQ(50, upper);
  spin.SetPos(12);
  CString text;
  buddy.GetWindowText(text);
  EXPECT_EQ(L"12", text);
  EXPECT_EQ(12, spin.GetPos());
  buddy.SetWindowText(L"");
  EXPECT_NE(0, HIWORD(spin.GetPos())) << "no number in the buddy";
  EXPECT_EQ(10u, spin.GetBase());
  EXPECT_EQ(10, spin.SetBase(16));
  EXPECT_EQ(16u, spin.GetBase());
}

TEST(Button, ChecksAndPresses) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CButton button;
  ASSERT_TRUE(button.Create(L"flag", BS_AUTOCHECKBOX, kRect, &parent, 5));
  EXPECT_EQ(BST_UNCHECKED, button.GetCheck());
  button.SetCheck(BST_CHECKED);
  EXPECT_EQ(BST_CHECKED, button.GetCheck());
  EXPECT_EQ(UINT{BS_AUTOCHECKBOX}, button.GetButtonStyle());
  button.SendMessage(BM_CLICK);
  EXPECT_EQ(BST_UNCHECKED, button.GetCheck());
}

TEST(ScrollBar, KeepsItsPosition) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CScrollBar bar;
  ASSERT_TRUE(bar.Create(SBS_HORZ, kRect, &parent, 6));
  bar.SetScrollRange(0, 200);
  bar.SetScrollPos(55);
  EXPECT_EQ(55, bar.GetScrollPos());
  EXPECT_EQ(&bar, CScrollBar::FromHandle(bar.m_hWnd));
  EXPECT_EQ(nullptr, CScrollBar::FromHandle(nullptr));
}

TEST(Static, ShowsItsText) {
  FrameWindow parent;
  ASSERT_TRUE(parent.Make());
  CStatic label;
  ASSERT_TRUE(label.Create(L"縮尺", SS_LEFT, kRect, &parent));
  EXPECT_EQ(0xFFFF, label.GetDlgCtrlID());
  CString text;
  label.GetWindowText(text);
  EXPECT_EQ(L"縮尺", text);
}

}  // namespace
