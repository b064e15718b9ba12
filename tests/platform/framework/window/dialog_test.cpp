// Dialogs, driven from inside their loops.

#include <gtest/gtest.h>

#include "tests/platform/framework/test_resources.h"
#include "tests/platform/framework/test_windows.h"
#include "tests/platform/support/modal_driver.h"
#include "tests/support/message_pump.h"

namespace {

using test::Command;
using test::FrameWindow;
using test::Key;
using test::ModalDriver;

class TestDialog : public CDialog {
 public:
  CString name = L"測点";
  int count = 3;
  BOOL flag = TRUE;
  int radio = 1;
  CEdit nameEdit;
  CComboBox combo;
  int inits = 0;
  int oks = 0;
  int cancels = 0;
  int gone = 0;
  int endInInit = 0;
  BOOL ownerEnabledInside = TRUE;
  HWND owner = nullptr;

  explicit TestDialog(CWnd* parent = nullptr) : CDialog(IDD_MODAL, parent) {}

 protected:
  BOOL OnInitDialog() override {
    CDialog::OnInitDialog();
    ++inits;
    owner = ::GetWindow(m_hWnd, GW_OWNER);
    ownerEnabledInside = owner && ::IsWindowEnabled(owner);
    if (endInInit) EndDialog(endInInit);
    return TRUE;
  }
  void OnOK() override {
    ++oks;
    CDialog::OnOK();
  }
  void OnCancel() override {
    ++cancels;
    CDialog::OnCancel();
  }
  void PostNcDestroy() override {
    ++gone;
    CDialog::PostNcDestroy();
  }
  void DoDataExchange(CDataExchange* exchange) override {
    DDX_Control(exchange, IDC_NAME, nameEdit);
    DDX_Control(exchange, IDC_COMBO, combo);
    DDX_Text(exchange, IDC_NAME, name);
    DDX_Text(exchange, IDC_COUNT, count);
    DDV_MinMaxInt(exchange, count, 0, 10);
    DDX_Check(exchange, IDC_FLAG, flag);
    DDX_Radio(exchange, IDC_FIRST_RADIO, radio);
  }
};

TEST(ModalDialog, EndsWithTheCommand) {
  const struct Row {
    const char* name;
    ModalDriver::Step step;
    INT_PTR result;
    int oks, cancels;
  } rows[] = {
      {"OK", Command(IDOK), IDOK, 1, 0},
      {"Cancel", Command(IDCANCEL), IDCANCEL, 0, 1},
      {"Enter", Key(VK_RETURN), IDOK, 1, 0},
      {"Escape", Key(VK_ESCAPE), IDCANCEL, 0, 1},
      {"close box", [](HWND d) { ::PostMessageW(d, WM_SYSCOMMAND, SC_CLOSE, 0); }, IDCANCEL, 0, 1},
      {"the button", [](HWND d) { ::SendMessageW(::GetDlgItem(d, IDOK), BM_CLICK, 0, 0); }, IDOK, 1,
       0},
  };
  FrameWindow owner;
  ASSERT_TRUE(owner.Make());
  for (const Row& row : rows) {
    TestDialog dialog(&owner);
    const ModalDriver driver({row.step});
    EXPECT_EQ(row.result, dialog.DoModal()) << row.name;
    EXPECT_EQ(row.oks, dialog.oks) << row.name;
    EXPECT_EQ(row.cancels, dialog.cancels) << row.name;
    EXPECT_EQ(1, dialog.inits) << row.name;
    EXPECT_EQ(nullptr, dialog.m_hWnd) << row.name;
    EXPECT_EQ(1, dialog.gone) << row.name;
  }
}

TEST(ModalDialog, OwnerWaits) {
  FrameWindow owner;
  ASSERT_TRUE(owner.Make());
  CWnd child;
  ASSERT_TRUE(child.Create(nullptr, L"", 0, CRect(0, 0, 20, 20), &owner, 1));
  {
    TestDialog dialog(&child);
    const ModalDriver driver({Command(IDOK)});
    dialog.DoModal();
    EXPECT_EQ(owner.m_hWnd, dialog.owner) << "the top-level window owns it";
    EXPECT_FALSE(dialog.ownerEnabledInside);
    EXPECT_TRUE(owner.IsWindowEnabled());
  }
  owner.EnableWindow(FALSE);
  TestDialog dialog(&owner);
  const ModalDriver driver({Command(IDOK)});
  dialog.DoModal();
  EXPECT_FALSE(owner.IsWindowEnabled()) << "a window that took no input before stays so";
}

TEST(ModalDialog, MayEndBeforeItIsShown) {
  TestDialog dialog;
  dialog.endInInit = 55;
  EXPECT_EQ(55, dialog.DoModal());
  EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(ModalDialog, CanBeUsedAgain) {
  TestDialog dialog;
  for (int i = 1; i <= 3; ++i) {
    const ModalDriver driver({Command(IDOK)});
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(i, dialog.inits);
  }
}

TEST(ModalDialog, WithoutTemplateItIsNotMade) {
  CDialog missing(9999u);
  EXPECT_EQ(-1, missing.DoModal());
  CDialog modeless;
  EXPECT_FALSE(modeless.Create(9999u));
}

TEST(ModalDialog, EndsWhenItsWindowGoes) {
  TestDialog dialog;
  const ModalDriver driver({[](HWND window) { ::DestroyWindow(window); }});
  EXPECT_EQ(IDCANCEL, dialog.DoModal());
  EXPECT_EQ(1, dialog.gone);
}

TEST(ModalDialog, QuitMessageEndsItAndTravelsOn) {
  TestDialog dialog;
  const ModalDriver driver({[](HWND) { ::PostQuitMessage(5); }});
  EXPECT_EQ(IDCANCEL, dialog.DoModal());
  MSG message;
  EXPECT_FALSE(::GetMessageW(&message, nullptr, 0, 0)) << "for the loop outside";
  EXPECT_EQ(5u, message.wParam);
}

TEST(ModalDialog, EndFromASentMessageWakesTheLoop) {
  TestDialog dialog;
  ModalDriver driver({[&dialog](HWND) { dialog.EndDialog(77); }});
  EXPECT_EQ(77, dialog.DoModal());
}

// What a handler does after EndDialog (a message box, say) comes when the dialog has made way.
TEST(ModalDialog, HidesAndGivesWayAtOnceWhenItEnds) {
  FrameWindow owner;
  ASSERT_TRUE(owner.Make());
  owner.ShowWindow(SW_SHOW);
  TestDialog dialog(&owner);
  const ModalDriver driver({[&](HWND window) {
    ASSERT_TRUE(::IsWindowVisible(window));
    dialog.EndDialog(IDOK);
    EXPECT_FALSE(::IsWindowVisible(window));
    EXPECT_TRUE(::IsWindow(window)) << "it is destroyed after the loop";
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(owner.m_hWnd, ::GetActiveWindow());
  }});
  EXPECT_EQ(IDOK, dialog.DoModal());
}

TEST(ModalDialog, TheFirstEndStands) {
  const struct Row {
    const char* name;
    void (*again)(CDialog&);
  } rows[] = {
      {"another end", [](CDialog& dialog) { dialog.EndDialog(88); }},
      {"Cancel", [](CDialog& dialog) { dialog.SendMessage(WM_COMMAND, IDCANCEL); }},
      {"OK", [](CDialog& dialog) { dialog.SendMessage(WM_COMMAND, IDOK); }},
      {"the close box", [](CDialog& dialog) { dialog.SendMessage(WM_SYSCOMMAND, SC_CLOSE); }},
  };
  for (const Row& row : rows) {
    TestDialog dialog;
    const ModalDriver driver({[&](HWND) {
      dialog.EndDialog(77);
      row.again(dialog);
    }});
    EXPECT_EQ(77, dialog.DoModal()) << row.name;
  }
}

// A window that is being disabled may end the dialog.
TEST(ModalDialog, EndedBeforeItIsMadeItIsNotMade) {
  class Owner : public FrameWindow {
   public:
    CDialog* refused = nullptr;

   protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
      if (message == WM_ENABLE && !wParam && refused) refused->EndDialog(33);
      return FrameWindow::WindowProc(message, wParam, lParam);
    }
  } owner;
  ASSERT_TRUE(owner.Make());
  TestDialog dialog(&owner);
  owner.refused = &dialog;
  EXPECT_EQ(33, dialog.DoModal());
  EXPECT_EQ(0, dialog.inits);
  EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, TabMovesTheFocus) {
  TestDialog dialog;
  int first = 0, second = 0;
  const ModalDriver driver({[&](HWND) { first = ::GetDlgCtrlID(::GetFocus()); }, Key(VK_TAB),
                            [&](HWND) { second = ::GetDlgCtrlID(::GetFocus()); }, Command(IDOK)});
  dialog.DoModal();
  EXPECT_EQ(IDC_NAME, first);
  EXPECT_EQ(IDC_COUNT, second);
}

TEST(ModalDialog, PreTranslationRunsInItsLoop) {
  class Nosy : public TestDialog {
   public:
    int keys = 0;
    BOOL PreTranslateMessage(MSG* message) override {
      if (message->message == WM_KEYDOWN) ++keys;
      return TestDialog::PreTranslateMessage(message);
    }
  } dialog;
  const ModalDriver driver({Key(VK_TAB), Command(IDOK)});
  dialog.DoModal();
  EXPECT_EQ(1, dialog.keys);
}

TEST(ModalDialog, RunsUnderAnApplicationToo) {
  class App : public CWinApp {
   public:
    int seen = 0;
    BOOL PreTranslateMessage(MSG* message) override {
      ++seen;
      return CWinApp::PreTranslateMessage(message);
    }
  } app;
  FrameWindow main;
  ASSERT_TRUE(main.Make());
  app.m_pMainWnd = &main;
  TestDialog dialog;
  const ModalDriver driver({Key(VK_RETURN)});
  EXPECT_EQ(IDOK, dialog.DoModal());
  EXPECT_EQ(main.m_hWnd, dialog.owner) << "the main window owns it";
  EXPECT_GT(app.seen, 0);
  app.m_pMainWnd = nullptr;
}

TEST(DialogData, MovesBothWays) {
  TestDialog dialog;
  CString nameShown;
  UINT countShown = 0, flagShown = 0, radioShown = 0;
  const ModalDriver driver({[&](HWND window) {
                              CWnd* shown = CWnd::FromHandle(window);
                              shown->GetDlgItemText(IDC_NAME, nameShown);
                              countShown = shown->GetDlgItemInt(IDC_COUNT);
                              flagShown = shown->IsDlgButtonChecked(IDC_FLAG);
                              radioShown = shown->IsDlgButtonChecked(IDC_SECOND_RADIO);
                              shown->SetDlgItemText(IDC_NAME, L"境界");
                              shown->SetDlgItemInt(IDC_COUNT, 7);
                              shown->CheckDlgButton(IDC_FLAG, BST_UNCHECKED);
                              shown->CheckRadioButton(IDC_FIRST_RADIO, IDC_SECOND_RADIO,
                                                      IDC_FIRST_RADIO);
                            },
                            Command(IDOK)});
  EXPECT_EQ(IDOK, dialog.DoModal());
  EXPECT_EQ(L"測点", nameShown);
  EXPECT_EQ(3u, countShown);
  EXPECT_EQ(UINT{BST_CHECKED}, flagShown);
  EXPECT_EQ(UINT{BST_CHECKED}, radioShown);
  EXPECT_EQ(L"境界", dialog.name);
  EXPECT_EQ(7, dialog.count);
  EXPECT_FALSE(dialog.flag);
  EXPECT_EQ(0, dialog.radio);
  EXPECT_EQ(nullptr, dialog.nameEdit.m_hWnd) << "the member's window went with the dialog";
}

TEST(DialogData, CancelKeepsTheMembers) {
  TestDialog dialog;
  const ModalDriver driver(
      {[](HWND window) { ::SetDlgItemTextW(window, IDC_NAME, L"x"); }, Command(IDCANCEL)});
  EXPECT_EQ(IDCANCEL, dialog.DoModal());
  EXPECT_EQ(L"測点", dialog.name);
}

// A refused value is reported in a message box, which is a dialog too; the dialog stays open.
TEST(DialogData, RefusedValueKeepsTheDialogOpen) {
  for (const wchar_t* refused : {L"", L"abc", L"12x", L"99999999999", L"11", L"-1"}) {
    TestDialog dialog;
    int focus = 0;
    const ModalDriver driver({[&](HWND window) {
                                ::SetDlgItemTextW(window, IDC_COUNT, refused);
                                ::PostMessageW(window, WM_COMMAND, IDOK, 0);
                              },
                              [](HWND box) { ::PostMessageW(box, WM_COMMAND, IDOK, 0); },
                              [&](HWND window) {
                                focus = ::GetDlgCtrlID(::GetFocus());
                                ::SetDlgItemTextW(window, IDC_COUNT, L" 10 ");
                                ::PostMessageW(window, WM_COMMAND, IDOK, 0);
                              }});
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(2, dialog.oks) << "refused once";
    EXPECT_EQ(IDC_COUNT, focus);
    EXPECT_EQ(10, dialog.count);
  }
}

class Modeless : public CDialog {
 public:
  static inline int alive = 0;
  Modeless() { ++alive; }
  ~Modeless() override { --alive; }

 protected:
  void OnCancel() override { DestroyWindow(); }
  void PostNcDestroy() override { delete this; }
};

TEST(ModelessDialog, LivesBesideTheLoop) {
  FrameWindow owner;
  ASSERT_TRUE(owner.Make());
  auto* dialog = new Modeless;
  ASSERT_TRUE(dialog->Create(IDD_MODAL, &owner));
  EXPECT_TRUE(owner.IsWindowEnabled());
  EXPECT_EQ(&owner, dialog->GetOwner());
  CWnd* edit = dialog->GetDlgItem(IDC_NAME);
  edit->PostMessage(WM_KEYDOWN, VK_ESCAPE, 1);
  EXPECT_TRUE(tavix::test::PumpUntil([] { return Modeless::alive == 0; }))
      << "Escape by pre-translation";
}

TEST(ModelessDialog, ObjectsEndDestroysTheWindow) {
  HWND window = nullptr;
  {
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_MODAL));
    window = dialog.m_hWnd;
  }
  EXPECT_FALSE(::IsWindow(window));
}

// Commands a dialog does not know travel to its owner; what its controls say does not.
class CommandOwner : public FrameWindow {
 public:
  int opens = 0;
  int clicks = 0;
  void OnOpen() { ++opens; }
  void OnClick() { ++clicks; }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CommandOwner, FrameWindow)
ON_COMMAND(ID_FILE_OPEN_TEST, &CommandOwner::OnOpen)
ON_BN_CLICKED(IDC_FLAG, &CommandOwner::OnClick)
END_MESSAGE_MAP()

TEST(DialogCommands, TravelToTheOwner) {
  CommandOwner owner;
  ASSERT_TRUE(owner.Make());
  CDialog dialog;
  ASSERT_TRUE(dialog.Create(IDD_MODAL, &owner));
  dialog.SendMessage(WM_COMMAND, ID_FILE_OPEN_TEST);
  EXPECT_EQ(1, owner.opens);
  dialog.GetDlgItem(IDC_FLAG)->SendMessage(BM_CLICK);
  EXPECT_EQ(0, owner.clicks);
}

TEST(MessageBoxes, AnswerWithTheChosenButton) {
  {
    const ModalDriver driver({Command(IDYES)});
    EXPECT_EQ(IDYES, AfxMessageBox(L"Delete it?", MB_YESNO));
  }
  {
    CString shown;
    const ModalDriver driver({[&](HWND box) {
                                // The text's item; icon and text have ids of the system's choice.
                                for (HWND item = ::GetWindow(box, GW_CHILD); item;
                                     item = ::GetWindow(item, GW_HWNDNEXT)) {
                                  CString text;
                                  CWnd::FromHandle(item)->GetWindowText(text);
                                  if (text == L"of the program") shown = text;
                                }
                              },
                              Command(IDOK)});
    EXPECT_EQ(IDOK, AfxMessageBox(IDS_BOTH));
    EXPECT_EQ(L"of the program", shown);
  }
  FrameWindow window;
  ASSERT_TRUE(window.Make());
  const ModalDriver driver({Command(IDCANCEL)});
  EXPECT_EQ(IDCANCEL, window.MessageBox(L"text", nullptr, MB_OKCANCEL));
}

}  // namespace
