// Edits for whole numbers: what they accept, show and return.

#include <gtest/gtest.h>
#include <tdialog.h>

#include <climits>
#include <string>

#include "platform/tdialog/integer_text.h"
#include "tests/platform/tdialog/test_resources.h"

namespace {

// A dialog with a linked edit in it.
struct NumberDialog {
  TDialog dialog;
  TEditInt edit;
  NumberDialog(int emptyValue, int smallest, int largest, int digits) {
    EXPECT_TRUE(dialog.Create(IDD_ROOM));
    EXPECT_TRUE(edit.Link(&dialog, IDC_NUMBER, emptyValue, smallest, largest, digits));
  }
  std::wstring Text() const {
    CString text;
    edit.GetWindowText(text);
    return std::wstring(text);
  }
  void Type(const std::wstring& keys) {
    for (const wchar_t key : keys) edit.SendMessage(WM_CHAR, key, 1);
  }
};

TEST(TEditInt, TakesOnlyKeysThatFit) {
  const struct Row {
    int smallest, digits;
    std::wstring keys, text;
  } rows[] = {
      {0, 3, L"12", L"12"},       {0, 3, L"1234", L"123"},
      {0, 3, L"1a2 .,+e", L"12"}, {0, 3, L"-5", L"5"},
      {-99, 2, L"-5", L"-5"},     {-99, 2, L"-123", L"-12"},
      {-99, 2, L"5-3", L"53"},    {-99, 2, L"--1", L"-1"},
      {0, 3, L"１2", L"2"},  // a full-width digit
      {0, 3, L"12\b3", L"13"},    {0, 2, L"123\b4", L"14"},
  };
  for (const Row& row : rows) {
    NumberDialog number(-1, row.smallest, 999, row.digits);
    number.Type(row.keys);
    EXPECT_EQ(row.text, number.Text());
  }
}

TEST(TEditInt, TypingReplacesTheSelection) {
  NumberDialog number(-1, -999, 999, 3);
  number.Type(L"123");
  number.Type(L"4");
  EXPECT_EQ(L"123", number.Text());
  number.edit.SetSel(0, -1);
  number.Type(L"-");
  EXPECT_EQ(L"-", number.Text());
  number.Type(L"45");
  number.edit.SetSel(0, 0);
  number.Type(L"9-");
  EXPECT_EQ(L"-45", number.Text()) << "nothing is accepted before the minus";
}

void PutOnClipboard(HWND owner, const std::wstring& text) {
  ASSERT_TRUE(::OpenClipboard(owner));
  ::EmptyClipboard();
  const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
  std::copy_n(text.c_str(), text.size() + 1, static_cast<wchar_t*>(::GlobalLock(memory)));
  ::GlobalUnlock(memory);
  ::SetClipboardData(CF_UNICODETEXT, memory);
  ::CloseClipboard();
}

TEST(TEditInt, TakesOnlyPastedTextThatFits) {
  const struct Row {
    std::wstring before, pasted, text;
  } rows[] = {
      {L"", L"123", L"123"}, {L"1", L"23", L"123"}, {L"12", L"34", L"12"}, {L"", L"1x", L""},
      {L"", L"-12", L"-12"}, {L"1", L"-2", L"1"},   {L"", L"1\r\n", L""},  {L"7", L"", L"7"},
  };
  for (const Row& row : rows) {
    NumberDialog number(0, -999, 999, 3);
    number.Type(row.before);
    PutOnClipboard(number.dialog.m_hWnd, row.pasted);
    number.edit.Paste();
    EXPECT_EQ(row.text, number.Text()) << row.pasted.size();
  }
}

TEST(TEditInt, ShowsAndGivesValues) {
  const struct Row {
    int emptyValue, smallest, largest, set;
    std::wstring text;
    int get;
    BOOL empty;
  } rows[] = {
      {-1, 0, 99, 12, L"12", 12, FALSE},  {-1, 0, 99, -1, L"", -1, TRUE},
      {0, 0, 99, 0, L"", 0, TRUE},        {-1, 0, 99, 0, L"0", 0, FALSE},
      {-1, 0, 99, 100, L"99", 99, FALSE}, {-1, 10, 99, 3, L"10", 10, FALSE},
      {0, -50, 50, -7, L"-7", -7, FALSE},
  };
  for (const Row& row : rows) {
    NumberDialog number(row.emptyValue, row.smallest, row.largest, 3);
    number.edit.SetValue(row.set);
    EXPECT_EQ(row.text, number.Text());
    EXPECT_EQ(row.get, number.edit.GetValue());
    EXPECT_EQ(row.empty, number.edit.IsEmpty());
  }
}

TEST(TEditInt, LeavingBringsTheTextWithinTheLimits) {
  const struct Row {
    std::wstring typed, left;
    int before;  // what the value is even while the text is still outside
  } rows[] = {{L"3", L"10", 10},
              {L"500", L"200", 200},
              {L"007", L"10", 10},
              {L"0150", L"150", 150},
              {L"", L"", -1}};
  for (const Row& row : rows) {
    NumberDialog number(-1, 10, 200, 4);
    number.Type(row.typed);
    EXPECT_EQ(row.typed, number.Text());
    EXPECT_EQ(row.before, number.edit.GetValue());
    number.edit.SendMessage(WM_KILLFOCUS);
    EXPECT_EQ(row.left, number.Text());
  }
  NumberDialog signedNumber(0, -5, 5, 1);
  signedNumber.Type(L"-");
  EXPECT_TRUE(signedNumber.edit.IsEmpty());
  signedNumber.edit.SendMessage(WM_KILLFOCUS);
  EXPECT_EQ(L"", signedNumber.Text());
}

TEST(TEditInt, LinksOnlyWhatIsThere) {
  TDialog dialog;
  ASSERT_TRUE(dialog.Create(IDD_ROOM));
  TEditInt number;
  EXPECT_FALSE(number.Link(&dialog, 4711, 0, 0, 9, 1));
  TEdit edit;
  EXPECT_FALSE(edit.Link(&dialog, 4711));
  EXPECT_TRUE(edit.Link(&dialog, IDC_OTHER));
  edit.SetWindowText(L"free text");
  CString text;
  dialog.GetDlgItemText(IDC_OTHER, text);
  EXPECT_EQ(L"free text", text);
}

TEST(IntegerText, ValuesStayWithinTheLimitsAtAnyLength) {
  const tdialog::IntegerLimits all = {INT_MIN, INT_MAX, 10};
  EXPECT_EQ(INT_MAX, tdialog::ValueWithin(L"2147483647", all));
  EXPECT_EQ(INT_MAX, tdialog::ValueWithin(L"2147483648", all));
  EXPECT_EQ(INT_MIN, tdialog::ValueWithin(L"-2147483648", all));
  EXPECT_EQ(INT_MIN, tdialog::ValueWithin(L"-9999999999", all));
  EXPECT_EQ(INT_MAX, tdialog::ValueWithin(std::wstring(5000, L'9'), all));
  EXPECT_EQ(std::nullopt, tdialog::ValueWithin(L"", all));
  EXPECT_EQ(std::nullopt, tdialog::ValueWithin(L"-", all));
  EXPECT_EQ(std::nullopt, tdialog::ValueWithin(L"abc", all));
}

}  // namespace
