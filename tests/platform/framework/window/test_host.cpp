// A framework-style host for the tests of the program entry. "run CODE" runs the message loop and
// ends with CODE; nothing ends with 100, anything else with 101.

#include <afxwin.h>

#include <cwchar>

namespace {

class Host : public CWinApp {
 public:
  BOOL InitInstance() override {
    code_ = 100;
    if (!*m_lpCmdLine) return FALSE;
    if (std::swscanf(m_lpCmdLine, L"run %d", &code_) != 1) {
      code_ = 101;
      return FALSE;
    }
    AfxPostQuitMessage(0);
    return TRUE;
  }
  int ExitInstance() override { return code_; }

 private:
  int code_ = 0;
} theApp;

}  // namespace
