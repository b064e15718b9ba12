// The smallest complete host: a window with a plot that fills it, five points and two lines, a new
// plot for each new size, and a title that says which point was tapped.

#include <afxwin.h>
#include <tavix/tavix.h>

namespace {

constexpr UINT kTapped = 100;  // the command id under which the plot reports a tapped point
constexpr BYTE kFitView = 0;   // for Tavix_Drw
constexpr BYTE kKeepView = 1;
constexpr short kSolid = 101;  // the built-in line legend of a solid line

struct SurveyPoint {
  int number;
  const wchar_t* name;
  double north;  // metres
  double east;
};

constexpr SurveyPoint kPoints[] = {
    {101, L"T-1", -35123.456, 12345.678}, {102, L"T-2", -35098.112, 12391.040},
    {103, L"境1", -35110.250, 12360.500}, {104, L"境2", -35104.900, 12378.250},
    {105, L"境3", -35119.300, 12383.775},
};

class CMinimalWindow : public CFrameWnd {
 public:
  CMinimalWindow() {
    // An instance lives as long as its data; plot windows come and go with the sizes.
    Tavix_SetIdx(0);
    Tavix_Crt();
    short circles = 0;
    Tavix_AddPntHan(2, 1, RGB(0, 0, 192), 10, 14, 0, &circles);  // of 10 pixels, with their names
    Tavix_SelPntHan(circles);
    for (const SurveyPoint& point : kPoints) {
      // A point is named by a key of the host's choice: here its number. X is north, and first.
      Tavix_EntPnt(point.number, point.number, CString(point.name), point.north, point.east);
    }
    Tavix_SelLinHan(kSolid);
    Tavix_EntLin(103, 104);
    Tavix_EntLin(104, 105);
  }

  ~CMinimalWindow() override { Tavix_Del(); }

 protected:
  // A plot window keeps its size: another size takes another one, in the place of the first. The
  // data and the view stay the instance's.
  afx_msg void OnSize(UINT type, int width, int height) {
    CFrameWnd::OnSize(type, width, height);
    if (type == SIZE_MINIMIZED) return;
    if (Tavix_LnkRct(this, 0, 0, width, height, kTapped) != 0) return;
    Tavix_Drw(is_first_view_ ? kFitView : kKeepView);
    Tavix_Dsp(TRUE);
    is_first_view_ = false;
  }

  // Posted for each tap on a point: the key stands where a control's window would.
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
    if (LOWORD(wParam) != kTapped) return CFrameWnd::OnCommand(wParam, lParam);
    const int key = static_cast<int>(lParam);
    int number = 0;
    CString name;
    double north = 0.0;
    double east = 0.0;
    if (Tavix_GetPntNoNam(key, &number, &name) != 0 || Tavix_GetPntCrd(key, &north, &east) != 0) {
      return TRUE;  // the host has deleted it since
    }
    CString title;
    title.Format(L"%d %s  X %.3f  Y %.3f", number, name.GetString(), north, east);
    SetWindowText(title);
    return TRUE;
  }

  DECLARE_MESSAGE_MAP()

 private:
  bool is_first_view_ = true;
};

BEGIN_MESSAGE_MAP(CMinimalWindow, CFrameWnd)
ON_WM_SIZE()
END_MESSAGE_MAP()

class CMinimalApp : public CWinApp {
 public:
  BOOL InitInstance() override {
    auto* window = new CMinimalWindow;  // deletes itself with its window
    if (!window->Create(nullptr, L"Tap a point", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                        CRect(20, 20, 500, 420))) {
      return FALSE;
    }
    m_pMainWnd = window;
    window->ShowWindow(m_nCmdShow);
    return TRUE;
  }
};

CMinimalApp application;

}  // namespace
