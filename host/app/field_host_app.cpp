// The application: reads the command line, then opens the main window or draws a picture.

#include <afxwin.h>
#include <shellapi.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "host/app/command_line.h"
#include "host/app/display_text.h"
#include "host/app/headless.h"
#include "host/app/main_window.h"
#include "host/survey/disk_file.h"

namespace fieldhost {
namespace {

constexpr int kWrongUse = 2;  // exit code

struct LocalFreer {
  void operator()(LPWSTR* memory) const { ::LocalFree(memory); }
};

// The command line in words, without the program's name.
std::vector<std::string> Arguments() {
  int count = 0;
  const std::unique_ptr<LPWSTR[], LocalFreer> words(
      ::CommandLineToArgvW(::GetCommandLineW(), &count));
  std::vector<std::string> arguments;
  for (int i = 1; words && i < count; ++i) {
    arguments.push_back(Utf8Of(CString(words[static_cast<std::size_t>(i)])));
  }
  return arguments;
}

class CFieldHostApp : public CWinApp {
 public:
  CFieldHostApp() : CWinApp(L"fieldhost") {}

  // FALSE ends the program with the exit code that is set by then.
  BOOL InitInstance() override {
    const CommandLine line = ParseCommandLine(Arguments());
    if (!line.problem.empty()) {
      std::fprintf(stderr, "%s\n%s\n", line.problem.c_str(), std::string(kUsage).c_str());
      exit_code_ = kWrongUse;
      return FALSE;
    }
    if (!line.picture.empty() || !line.one_bit.empty()) {
      exit_code_ = DrawPicture(line);
      return FALSE;
    }
    return OpenMainWindow(line);
  }

  BOOL OnIdle(LONG count) override {
    if (m_pMainWnd) static_cast<CMainWindow*>(m_pMainWnd)->FollowView();
    return CWinApp::OnIdle(count);
  }

  int ExitInstance() override { return m_pMainWnd ? CWinApp::ExitInstance() : exit_code_; }

 private:
  BOOL OpenMainWindow(const CommandLine& line) {
    auto* window = new CMainWindow;  // deletes itself with its window
    if (!window->CreateForUser(line.size)) {
      AfxMessageBox(L"The main window could not be made.", MB_OK | MB_ICONSTOP);
      exit_code_ = 1;
      return FALSE;
    }
    m_pMainWnd = window;
    window->ShowWindow(m_nCmdShow);
    window->UpdateWindow();
    if (!line.files.empty()) window->OpenFiles(PathsOf(line.files));
    if (line.side) window->ShowView(PlotView::kSide);
    return TRUE;
  }

  int exit_code_ = 0;
};

CFieldHostApp application;

}  // namespace
}  // namespace fieldhost
