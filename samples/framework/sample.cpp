// A host in C++ with the framework: a window with a plot that fills it, ten points, two lines and a
// clothoid, a new plot for each new size, and a title that says which point was tapped. The hosts
// in other languages beside this folder are the same program.

#include <afxwin.h>
#include <tavix/tavix.h>

namespace {

constexpr UINT kTapped = 100;
constexpr short kSolid = 101;

struct SurveyPoint {
  const wchar_t* name;
  double north;  // metres
  double east;
};

constexpr SurveyPoint kPoints[] = {
    {L"基準点1", -35123.456, 12345.678}, {L"基準点2", -35098.112, 12391.040},
    {L"境1", -35110.250, 12360.500},     {L"境2", -35104.900, 12378.250},
    {L"境3", -35119.300, 12383.775},     {L"境4", -35121.750, 12368.400},
    {L"街灯", -35101.300, 12362.900},    {L"マンホール", -35113.825, 12372.150},
    {L"電柱", -35107.560, 12388.300},    {L"水準点", -35125.200, 12379.640},
};

void EnterSurvey() {
  short circles = 0;
  Tavix_AddPntHan(2, 1, RGB(0, 0, 192), 10, 14, 0, &circles);
  Tavix_SelPntHan(circles);
  int key = 0;
  for (const SurveyPoint& point : kPoints) {  // keys 1 to 10
    ++key;
    Tavix_EntPnt(key, key, CString(point.name), point.north, point.east);
  }
  Tavix_SelLinHan(kSolid);
  Tavix_EntLin(3, 4);
  Tavix_EntLin(4, 5);
  Tavix_FigStt(1, kSolid);
  Tavix_FigMdlClo(-35122.0, 12350.0, -35110.0, 12369.0, 0.0, 30.0, 40.0);
  Tavix_FigEnd();
}

class CSampleWindow : public CFrameWnd {
 public:
  CSampleWindow() {
    Tavix_Crt();
    EnterSurvey();
  }
  ~CSampleWindow() override { Tavix_Del(); }

 protected:
  // A plot window keeps its size: another size takes another one.
  afx_msg void OnSize(UINT type, int width, int height) {
    CFrameWnd::OnSize(type, width, height);
    if (type == SIZE_MINIMIZED || Tavix_LnkRct(this, 0, 0, width, height, kTapped) != 0) return;
    Tavix_Drw(has_view_);
    Tavix_Dsp(TRUE);
    has_view_ = TRUE;
  }

  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
    if (LOWORD(wParam) != kTapped) return CFrameWnd::OnCommand(wParam, lParam);
    const int key = static_cast<int>(lParam);
    int number = 0;
    CString name;
    double north = 0.0;
    double east = 0.0;
    if (Tavix_GetPntNoNam(key, &number, &name) != 0 || Tavix_GetPntCrd(key, &north, &east) != 0) {
      return TRUE;
    }
    CString title;
    title.Format(L"%s  X %.3f  Y %.3f", name.GetString(), north, east);
    SetWindowText(title);
    return TRUE;
  }

  DECLARE_MESSAGE_MAP()

 private:
  BYTE has_view_ = FALSE;
};

BEGIN_MESSAGE_MAP(CSampleWindow, CFrameWnd)
ON_WM_SIZE()
END_MESSAGE_MAP()

class CSampleApp : public CWinApp {
 public:
  BOOL InitInstance() override {
    auto* window = new CSampleWindow;  // deletes itself with its window
    if (!window->Create(nullptr, L"Tap a point", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                        CRect(20, 20, 500, 420))) {
      return FALSE;
    }
    m_pMainWnd = window;
    window->ShowWindow(m_nCmdShow);
    return TRUE;
  }
};

CSampleApp application;

}  // namespace
