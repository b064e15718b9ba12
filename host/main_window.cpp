#include "host/main_window.h"

#include <commctrl.h>

#include <algorithm>
#include <string>
#include <vector>

#include "host/memo/memo_text.h"
#include "host/memo/point_memo.h"
#include "host/open_dialog.h"
#include "host/resource.h"
#include "host/wide_text.h"

namespace fieldhost {
namespace {

constexpr const wchar_t* kTitle = L"Field survey";
constexpr UINT kFocusLater = WM_APP;
constexpr int kInfoHeight = 18;  // pixels
constexpr int kInfoText = 12;    // a handheld's width then holds number, name and coordinates
constexpr int kInfoMargin = 3;

CRect WorkArea() {
  CRect area;
  ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  return area;
}

// The face colour of controls, so that the information line stands on one colour.
LPCWSTR WindowClass() {
  return AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                             ::GetSysColorBrush(COLOR_BTNFACE));
}

bool IsHandheld(const CRect& work_area) {
  return work_area.Width() <= kUsualSize.width || work_area.Height() <= kUsualSize.height;
}

}  // namespace

BEGIN_MESSAGE_MAP(CMainWindow, CFrameWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_INITMENUPOPUP()
ON_MESSAGE(WM_ENTERSIZEMOVE, &CMainWindow::OnEnterSizeMove)
ON_MESSAGE(WM_EXITSIZEMOVE, &CMainWindow::OnExitSizeMove)
ON_COMMAND(ID_SURVEY_OPEN, &CMainWindow::OnOpen)
ON_COMMAND(ID_SURVEY_CLOSE_ALL, &CMainWindow::OnCloseAll)
ON_COMMAND(ID_SURVEY_EXIT, &CMainWindow::OnExit)
ON_COMMAND(ID_VIEW_WHOLE, &CMainWindow::OnWholeView)
ON_COMMAND(ID_SURVEY_EXPORT, &CMainWindow::OnExport)
ON_COMMAND(ID_SURVEY_MEMO, &CMainWindow::OnPointMemo)
ON_STN_CLICKED(ID_INFO_LINE, &CMainWindow::OnInfoTapped)
ON_COMMAND(ID_VIEW_PLAN, &CMainWindow::OnPlanView)
ON_COMMAND(ID_VIEW_SIDE, &CMainWindow::OnSideView)
ON_NOTIFY(TCN_SELCHANGE, ID_VIEW_TABS, &CMainWindow::OnViewTab)
ON_COMMAND(ID_VIEW_BUTTONS, &CMainWindow::OnShowButtons)
ON_COMMAND(ID_SURVEY_CAPTURE, &CMainWindow::OnCapture)
ON_WM_SETFOCUS()
ON_MESSAGE(kFocusLater, &CMainWindow::OnFocusLater)
ON_MESSAGE(WM_PARENTNOTIFY, &CMainWindow::OnParentNotify)
END_MESSAGE_MAP()

BOOL CMainWindow::CreateForUser(const std::optional<PictureSize>& size) {
  constexpr DWORD kStyle = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
  CRect rect = WorkArea();
  if (size || !IsHandheld(rect)) {
    const PictureSize client = size.value_or(kUsualSize);
    CRect window(0, 0, client.width, client.height);
    ::AdjustWindowRect(&window, kStyle, TRUE);
    rect = CRect(rect.left, rect.top, rect.left + window.Width(), rect.top + window.Height());
  }
  has_tabs_ = true;
  return Create(WindowClass(), kTitle, kStyle, rect, nullptr, MAKEINTRESOURCEW(IDR_MAIN)) &&
         LoadAccelTable(MAKEINTRESOURCEW(IDR_MAIN));
}

BOOL CMainWindow::CreateForPicture(const PictureSize& size) {
  return Create(WindowClass(), kTitle, WS_POPUP | WS_CLIPCHILDREN,
                CRect(0, 0, size.width, size.height));
}

void CMainWindow::OpenFiles(std::span<const std::filesystem::path> files) {
  constexpr std::size_t kMostLines = 8;  // that a message box holds well
  const LoadedSurvey loaded = LoadSurveyFiles(files);
  if (loaded.survey.HasAnythingToDraw()) Show(loaded);
  const std::string complaints = Complaints(loaded, kMostLines);
  if (!complaints.empty()) AfxMessageBox(WideOf(complaints), MB_OK | MB_ICONWARNING);
}

void CMainWindow::Show(const LoadedSurvey& loaded) {
  const SurveyCounts refused = plot_.Add(loaded.survey);
  side_.Add(loaded.survey);
  counts_ += CountsOf(loaded);
  counts_.TakeOut(refused);
  ShowSummary();
}

BOOL CMainWindow::OnCommand(WPARAM wParam, LPARAM lParam) {
  // The plot window reports a tapped point; what lParam holds is its key, not a control's window.
  if (LOWORD(wParam) == ID_PLOT_NOTIFY) {
    ShowPoint(static_cast<int>(lParam));
    return TRUE;
  }
  if (LOWORD(wParam) == ID_PLOT_CAPTURE) {
    ShowCapture();
    return TRUE;
  }
  ShowViewFor(LOWORD(wParam));
  return CFrameWnd::OnCommand(wParam, lParam);
}

int CMainWindow::OnCreate(CREATESTRUCTW* create) {
  constexpr int kRefused = -1;
  if (CFrameWnd::OnCreate(create) == kRefused || !CreateInfoLine()) return kRefused;
  if (has_tabs_ && !tabs_.Create(*this, ID_VIEW_TABS, info_font_)) return kRefused;
  ShowSummary();
  return 0;
}

BOOL CMainWindow::CreateInfoLine() {
  constexpr DWORD kStyle =
      WS_CHILD | WS_VISIBLE | SS_LEFTNOWORDWRAP | SS_NOPREFIX | SS_ENDELLIPSIS | SS_NOTIFY;
  info_font_.CreateFontW(-kInfoText, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                         OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                         DEFAULT_PITCH | FF_DONTCARE, L"MS UI Gothic");
  if (!info_.Create(L"", kStyle, CRect(0, 0, 0, 0), this, ID_INFO_LINE)) return FALSE;
  info_.SetFont(&info_font_);
  return TRUE;
}

void CMainWindow::OnSize(UINT type, int width, int height) {
  CFrameWnd::OnSize(type, width, height);
  if (type != SIZE_MINIMIZED && !sizing_) LayOut();
}

// Each new size takes a new plot window: while an edge is dragged, one at the end is enough.
LRESULT CMainWindow::OnEnterSizeMove(WPARAM, LPARAM) {
  sizing_ = true;
  return 0;
}

LRESULT CMainWindow::OnExitSizeMove(WPARAM, LPARAM) {
  sizing_ = false;
  LayOut();
  return 0;
}

void CMainWindow::LayOut() {
  CRect client;
  GetClientRect(&client);
  if (client.Size() == laid_out_) return;
  laid_out_ = client.Size();

  const int info_top = std::max(0, static_cast<int>(client.bottom) - kInfoHeight);
  info_.MoveWindow(kInfoMargin, info_top + kInfoMargin, client.Width() - 2 * kInfoMargin,
                   kInfoHeight - kInfoMargin);
  const int plot_top = has_tabs_ ? std::min(ViewTabs::kHeight, info_top) : 0;
  if (has_tabs_) tabs_.MoveWindow(0, 0, client.Width(), plot_top);
  const CRect plot(0, plot_top, client.right, info_top);
  side_.SetPlace(*this, plot);
  if (!plot_.Place(*this, plot, ID_PLOT_NOTIFY)) {
    info_.SetWindowText(L"The plot window could not be made.");
  }
}

// A star tells of a memo even where its beginning has no room.
void CMainWindow::ShowPoint(int key) {
  constexpr std::size_t kMostOfMemo = 40;
  const std::optional<TappedPoint> point = PlotPane::PointOf(key);
  if (!point) return;
  tapped_key_ = key;
  const CString memo = MemoOf(key);
  CString text;
  text.Format(L"%d %s%s  X %.3f  Y %.3f", point->number, point->name.GetString(),
              memo.IsEmpty() ? L"" : L" *", point->north, point->east);
  if (!memo.IsEmpty()) text += L"  " + WideOf(MemoBeginning(Utf8Of(memo), kMostOfMemo));
  info_.SetWindowText(text);
}

void CMainWindow::ShowCapture() {
  const std::optional<GroundPosition> position = PlotPane::CapturedCoordinate();
  if (!position) return;
  CString text;
  text.Format(L"Captured  X %.3f  Y %.3f", position->north, position->east);
  info_.SetWindowText(text);
}

void CMainWindow::ShowSummary() { info_.SetWindowText(WideOf(Summary(counts_))); }

// What the line says when the plan comes up: what a tap will do, else what the last one hit, else
// how much there is.
void CMainWindow::ShowPlanInfo() {
  if (plot_.CapturesCoordinates()) {
    info_.SetWindowText(L"Tap a place to capture its coordinates.");
  } else if (tapped_key_) {
    ShowPoint(*tapped_key_);
  } else {
    ShowSummary();
  }
}

void CMainWindow::OnInitMenuPopup(CMenu* menu, UINT index, BOOL system_menu) {
  CFrameWnd::OnInitMenuPopup(menu, index, system_menu);
  if (!system_menu) {
    menu->CheckMenuItem(ID_VIEW_BUTTONS, plot_.ShowsButtons() ? MF_CHECKED : MF_UNCHECKED);
    menu->CheckMenuItem(ID_SURVEY_CAPTURE, plot_.CapturesCoordinates() ? MF_CHECKED : MF_UNCHECKED);
    UpdateViewMenu(*menu);
  }
}

void CMainWindow::OnOpen() {
  const std::vector<std::filesystem::path> files = AskForSurveyFiles(*this);
  if (!files.empty()) OpenFiles(files);
}

void CMainWindow::OnCloseAll() {
  ShowView(PlotView::kPlan);
  plot_.Clear();
  side_.Clear();
  tapped_key_.reset();
  counts_ = {};
  ShowSummary();
}

void CMainWindow::OnExit() { SendMessage(WM_CLOSE); }

void CMainWindow::OnCapture() {
  plot_.CaptureCoordinates(!plot_.CapturesCoordinates(), ID_PLOT_CAPTURE);
  ShowPlanInfo();
}

// While the plot's settings close, the plot cannot take the keyboard yet: it is asked again later.
void CMainWindow::OnSetFocus(CWnd*) {
  TakeFocus();
  if (GetFocus() == this) PostMessage(kFocusLater);
}

LRESULT CMainWindow::OnFocusLater(WPARAM, LPARAM) {
  if (GetFocus() == this) TakeFocus();
  return 0;
}

// A tap on the plot brings the keyboard back to it.
LRESULT CMainWindow::OnParentNotify(WPARAM wParam, LPARAM) {
  if (LOWORD(wParam) == WM_LBUTTONDOWN) TakeFocus();
  return Default();
}

}  // namespace fieldhost
