// The memo editor of the host's main window.

#include "tests/host/support/main_window_fixture.h"

namespace fieldhost {
namespace {

class MainWindowMemo : public WindowTest {
 protected:
  void OpenTwoPoints() {
    ASSERT_NO_FATAL_FAILURE(Open({Write(L"list.csv", "7,10.5,20.25,3,a\n8,30,20.25,3,b\n")}));
    ExpectInfo(L"2 points");
  }

  void ReportTap(int key) const { ::PostMessageW(window_, WM_COMMAND, ID_PLOT_NOTIFY, key); }

  // Asks for the memo of the point tapped last, and waits for its dialog.
  [[nodiscard]] HWND OpenEditor() {
    ::PostMessageW(window_, WM_COMMAND, ID_SURVEY_MEMO, 0);
    return host_->WaitForWindow(L"Memo");
  }

  static HWND Item(HWND dialog, int id) { return ::GetDlgItem(dialog, id); }

  static void Type(HWND dialog, const wchar_t* text) {
    ::SendMessageW(Item(dialog, IDC_MEMO_TEXT), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
  }

  static void Close(HWND dialog, int button) {
    ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
  }
};

TEST_F(MainWindowMemo, IsKeptWithThePointAndToldInTheLine) {
  ASSERT_NO_FATAL_FAILURE(OpenTwoPoints());
  ReportTap(1);
  ExpectInfo(L"7 a  X 10.500  Y 20.250");
  HWND dialog = OpenEditor();
  ASSERT_TRUE(dialog);
  EXPECT_EQ(L"7  a", TextOf(Item(dialog, IDC_MEMO_POINT)));
  EXPECT_EQ(L"X 10.500  Y 20.250", TextOf(Item(dialog, IDC_MEMO_PLACE)));
  EXPECT_EQ(L"", TextOf(Item(dialog, IDC_MEMO_TEXT)));
  Type(dialog, L"nail in 縁石\r\nleaning \r\n");
  Close(dialog, IDOK);
  ExpectInfo(L"7 a *  X 10.500  Y 20.250  nail in 縁石…");

  // The other point has none.
  ReportTap(2);
  ExpectInfo(L"8 b  X 30.000  Y 20.250");
  ReportTap(1);
  ExpectInfo(L"7 a *  X 10.500  Y 20.250  nail in 縁石…");
  dialog = OpenEditor();
  ASSERT_TRUE(dialog);
  EXPECT_EQ(L"nail in 縁石\r\nleaning", TextOf(Item(dialog, IDC_MEMO_TEXT)));
  Close(dialog, IDCANCEL);
  Exit();
}

TEST_F(MainWindowMemo, CancelLeavesItAndAnEmptyOneRemovesIt) {
  ASSERT_NO_FATAL_FAILURE(OpenTwoPoints());
  ReportTap(1);
  HWND dialog = OpenEditor();
  ASSERT_TRUE(dialog);
  Type(dialog, L"nail");
  Close(dialog, IDOK);
  ExpectInfo(L"7 a *  X 10.500  Y 20.250  nail");
  dialog = OpenEditor();
  ASSERT_TRUE(dialog);
  Type(dialog, L"other");
  Close(dialog, IDCANCEL);
  ExpectInfo(L"7 a *  X 10.500  Y 20.250  nail");
  dialog = OpenEditor();
  ASSERT_TRUE(dialog);
  EXPECT_EQ(L"nail", TextOf(Item(dialog, IDC_MEMO_TEXT)));
  Type(dialog, L" \r\n");
  Close(dialog, IDOK);
  ExpectInfo(L"7 a  X 10.500  Y 20.250");
  Exit();
}

TEST_F(MainWindowMemo, NeedsATappedPoint) {
  ASSERT_NO_FATAL_FAILURE(OpenTwoPoints());
  Command(ID_SURVEY_MEMO);
  ExpectInfo(L"Tap the point whose memo you want first.");
  // Nor is there one after all was closed.
  ReportTap(1);
  ExpectInfo(L"7 a  X 10.500  Y 20.250");
  Command(ID_SURVEY_CLOSE_ALL);
  Command(ID_SURVEY_MEMO);
  ExpectInfo(L"Tap the point whose memo you want first.");
  Exit();
}

TEST_F(MainWindowMemo, TappingTheLineOpensIt) {
  ASSERT_NO_FATAL_FAILURE(OpenTwoPoints());
  ReportTap(2);
  ExpectInfo(L"8 b  X 30.000  Y 20.250");
  Tap(Info(), 20, 5);
  const HWND dialog = host_->WaitForWindow(L"Memo");
  ASSERT_TRUE(dialog);
  EXPECT_EQ(L"8  b", TextOf(Item(dialog, IDC_MEMO_POINT)));
  Close(dialog, IDCANCEL);
  Exit();
}

TEST_F(MainWindowMemo, LongestIsKeptWholeAndLongerCannotBeTyped) {
  constexpr int kLongest = 32734;
  ASSERT_NO_FATAL_FAILURE(OpenTwoPoints());
  ReportTap(1);
  HWND dialog = OpenEditor();
  ASSERT_TRUE(dialog);
  EXPECT_EQ(kLongest, ::SendMessageW(Item(dialog, IDC_MEMO_TEXT), EM_GETLIMITTEXT, 0, 0));
  std::wstring memo(kLongest, L'x');
  for (std::size_t i = 40; i + 1 < memo.size(); i += 42) memo.replace(i, 2, L"\r\n");
  Type(dialog, memo.c_str());
  ::PostMessageW(Item(dialog, IDC_MEMO_TEXT), WM_CHAR, L'y', 0);
  const HWND box = host_->WaitForWindow(L"fieldhost");
  ASSERT_TRUE(box);
  Close(box, IDOK);
  Close(dialog, IDOK);
  ExpectInfo(L"7 a *  X 10.500  Y 20.250  " + std::wstring(40, L'x') + L"…");
  dialog = OpenEditor();
  ASSERT_TRUE(dialog);
  EXPECT_EQ(kLongest, ::SendMessageW(Item(dialog, IDC_MEMO_TEXT), WM_GETTEXTLENGTH, 0, 0));
  Close(dialog, IDCANCEL);
  Exit();
}

TEST_F(MainWindowMemo, PointStaysInTheLineOverTheSideView) {
  ASSERT_NO_FATAL_FAILURE(OpenTwoPoints());
  ReportTap(2);
  ExpectInfo(L"8 b  X 30.000  Y 20.250");
  Command(ID_VIEW_SIDE);
  ExpectInfo(L"2 with a height, 3.00 m to 3.00 m");
  Command(ID_VIEW_PLAN);
  ExpectInfo(L"8 b  X 30.000  Y 20.250");
  Exit();
}

}  // namespace
}  // namespace fieldhost
