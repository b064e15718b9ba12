// The application object and its message loop.

#include <gtest/gtest.h>

#include <vector>

#include "tests/platform/framework/test_resources.h"
#include "tests/platform/framework/test_windows.h"

namespace {

class App : public CWinApp {
 public:
  std::vector<LONG> idles;
  int opened = 0;
  int exits = 0;
  explicit App(LPCWSTR name = nullptr) : CWinApp(name) {}
  BOOL OnIdle(LONG count) override {
    idles.push_back(count);
    return count < 2;
  }
  int ExitInstance() override {
    ++exits;
    return CWinApp::ExitInstance();
  }
  void OnOpen() { ++opened; }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(App, CWinApp)
ON_COMMAND(ID_FILE_OPEN_TEST, &App::OnOpen)
ON_COMMAND(57665, &CWinApp::OnAppExit)
END_MESSAGE_MAP()

class Frame : public CFrameWnd {
 public:
  int created = 0;
  int ownCommands = 0;
  int OnCreate(CREATESTRUCTW* create) {
    ++created;
    return CFrameWnd::OnCreate(create);
  }
  void OnOwn() { ++ownCommands; }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Frame, CFrameWnd)
ON_WM_CREATE()
ON_COMMAND(ID_FILE_OPEN_TEST + 1, &Frame::OnOwn)
END_MESSAGE_MAP()

TEST(Application, RegistersItselfAndGoes) {
  EXPECT_EQ(nullptr, AfxGetApp());
  EXPECT_EQ(nullptr, AfxGetMainWnd());
  EXPECT_STREQ(L"framework_window_tests", AfxGetAppName()) << "the executable's name";
  {
    const App app(L"測量");
    EXPECT_EQ(&app, AfxGetApp());
    EXPECT_EQ(&app, AfxGetThread());
    EXPECT_STREQ(L"測量", AfxGetAppName());
    EXPECT_STREQ(L"framework_window_tests", app.m_pszExeName);
  }
  EXPECT_EQ(nullptr, AfxGetApp());
}

TEST(Application, RunsUntilItsMainWindowIsGone) {
  App app;
  auto* frame = new Frame;
  ASSERT_TRUE(frame->Create(nullptr, L"main", WS_OVERLAPPEDWINDOW, CRect(0, 0, 100, 80), nullptr,
                            MAKEINTRESOURCEW(IDM_MAIN)));
  app.m_pMainWnd = frame;
  EXPECT_EQ(1, frame->created);
  EXPECT_EQ(frame, AfxGetMainWnd());
  frame->PostMessage(WM_CLOSE);
  EXPECT_EQ(0, app.Run());
  EXPECT_EQ(1, app.exits);
  EXPECT_EQ(nullptr, app.m_pMainWnd);
}

TEST(Application, ExitCodeIsThatOfTheQuitMessage) {
  App app;
  AfxPostQuitMessage(17);
  EXPECT_EQ(17, app.Run());
}

void CALLBACK QuitOnTimer(HWND, UINT, UINT_PTR id, DWORD) {
  ::KillTimer(nullptr, id);
  AfxPostQuitMessage(0);
}

TEST(Application, IdlesUntilToldOtherwise) {
  App app;
  ::SetTimer(nullptr, 0, 50, &QuitOnTimer);
  app.Run();
  ASSERT_GE(app.idles.size(), 3u);
  EXPECT_EQ((std::vector<LONG>{0, 1, 2}),
            (std::vector<LONG>(app.idles.begin(), app.idles.begin() + 3)));
}

TEST(Application, CommandsTravelFromTheFrameToIt) {
  App app;
  auto* frame = new Frame;
  ASSERT_TRUE(frame->Create(nullptr, L"main"));
  app.m_pMainWnd = frame;
  EXPECT_EQ(1, frame->SendMessage(WM_COMMAND, ID_FILE_OPEN_TEST + 1));
  EXPECT_EQ(1, frame->ownCommands);
  EXPECT_EQ(1, frame->SendMessage(WM_COMMAND, ID_FILE_OPEN_TEST));
  EXPECT_EQ(1, app.opened);
  EXPECT_EQ(0, frame->SendMessage(WM_COMMAND, ID_FILE_OPEN_TEST + 2));
  frame->SendMessage(WM_COMMAND, 57665);  // Exit closes the frame, which ends the loop
  EXPECT_EQ(nullptr, app.m_pMainWnd);
  EXPECT_EQ(0, app.Run());
}

TEST(Application, FrameWithoutItsMenuIsNotMade) {
  auto* frame = new Frame;  // deletes itself
  EXPECT_FALSE(frame->Create(nullptr, L"main", WS_OVERLAPPEDWINDOW, CFrameWnd::rectDefault, nullptr,
                             MAKEINTRESOURCEW(9999)));
}

TEST(Application, CursorsComeFromTheSystemToo) {
  const App app;
  EXPECT_NE(nullptr, app.LoadStandardCursor(IDC_ARROW));
  EXPECT_NE(nullptr, app.LoadStandardIcon(IDI_APPLICATION));
  EXPECT_EQ(nullptr, app.LoadCursor(9999u));
}

// The entry point is tested from outside, by the exit code of a program.
struct Ended {
  bool started = false;
  DWORD code = 0;
};

Ended RunHost(const std::wstring& commandLine) {
  std::wstring line = commandLine;
  STARTUPINFOW startup = {};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process = {};
  Ended ended;
  ended.started = ::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                   nullptr, &startup, &process);
  if (!ended.started) return ended;
  if (::WaitForSingleObject(process.hProcess, 30000) != WAIT_OBJECT_0) {
    ::TerminateProcess(process.hProcess, 999);
  }
  ::GetExitCodeProcess(process.hProcess, &ended.code);
  ::CloseHandle(process.hProcess);
  ::CloseHandle(process.hThread);
  return ended;
}

TEST(ProgramEntry, StartsTheApplicationWithItsArguments) {
  for (const wchar_t* program : {L"framework_test_host.exe", L"framework_test_host_unicode.exe"}) {
    const struct Row {
      const wchar_t* arguments;
      DWORD code;
    } rows[] = {{L"", 100},            // InitInstance says no
                {L" run 12", 12},      // the loop ends with 12
                {L"   run  45 ", 45},  // blanks around
                {L" other", 101}};
    for (const Row& row : rows) {
      const Ended ended = RunHost(L"\"" + std::wstring(program) + L"\"" + row.arguments);
      ASSERT_TRUE(ended.started) << program;
      EXPECT_EQ(row.code, ended.code) << program << row.arguments;
    }
  }
}

}  // namespace
