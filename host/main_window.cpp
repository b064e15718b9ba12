#include "host/main_window.h"

#include <algorithm>
#include <string>
#include <vector>

#include "host/open_dialog.h"
#include "host/resource.h"
#include "host/wide_text.h"

namespace fieldhost {
namespace {

constexpr const wchar_t* kTitle = L"Field survey";
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
ON_COMMAND(ID_VIEW_BUTTONS, &CMainWindow::OnShowButtons)
ON_COMMAND(ID_SURVEY_CAPTURE, &CMainWindow::OnCapture)
ON_WM_SETFOCUS()
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
  return CFrameWnd::OnCommand(wParam, lParam);
}

int CMainWindow::OnCreate(CREATESTRUCTW* create) {
  constexpr int kRefused = -1;
  if (CFrameWnd::OnCreate(create) == kRefused || !CreateInfoLine()) return kRefused;
  ShowSummary();
  return 0;
}

BOOL CMainWindow::CreateInfoLine() {
  constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | SS_LEFTNOWORDWRAP | SS_NOPREFIX | SS_ENDELLIPSIS;
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
  if (!plot_.Place(*this, CRect(0, 0, client.right, info_top), ID_PLOT_NOTIFY)) {
    info_.SetWindowText(L"The plot window could not be made.");
  }
}

void CMainWindow::ShowPoint(int key) {
  const std::optional<TappedPoint> point = PlotPane::PointOf(key);
  if (!point) return;
  CString text;
  text.Format(L"%d %s  X %.3f  Y %.3f", point->number, point->name.GetString(), point->north,
              point->east);
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

void CMainWindow::OnInitMenuPopup(CMenu* menu, UINT index, BOOL system_menu) {
  CFrameWnd::OnInitMenuPopup(menu, index, system_menu);
  if (!system_menu) {
    menu->CheckMenuItem(ID_VIEW_BUTTONS, plot_.ShowsButtons() ? MF_CHECKED : MF_UNCHECKED);
    menu->CheckMenuItem(ID_SURVEY_CAPTURE, plot_.CapturesCoordinates() ? MF_CHECKED : MF_UNCHECKED);
  }
}

void CMainWindow::OnOpen() {
  const std::vector<std::filesystem::path> files = AskForSurveyFiles(*this);
  if (!files.empty()) OpenFiles(files);
}

void CMainWindow::OnCloseAll() {
  plot_.Clear();
  counts_ = {};
  ShowSummary();
}

void CMainWindow::OnExit() { SendMessage(WM_CLOSE); }

void CMainWindow::OnWholeView() { plot_.ShowWholeView(); }

void CMainWindow::OnCapture() {
  plot_.CaptureCoordinates(!plot_.CapturesCoordinates(), ID_PLOT_CAPTURE);
  if (plot_.CapturesCoordinates()) {
    info_.SetWindowText(L"Tap a place to capture its coordinates.");
  } else {
    ShowSummary();
  }
}

void CMainWindow::OnSetFocus(CWnd*) { plot_.TakeFocus(); }

// A tap on the plot brings the keyboard back to it.
LRESULT CMainWindow::OnParentNotify(WPARAM wParam, LPARAM) {
  if (LOWORD(wParam) == WM_LBUTTONDOWN) plot_.TakeFocus();
  return Default();
}

void CMainWindow::OnShowButtons() { plot_.ShowButtons(!plot_.ShowsButtons()); }

}  // namespace fieldhost
