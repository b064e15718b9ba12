#include "host/app/main_window.h"

#include <commctrl.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "host/app/display_text.h"
#include "host/app/open_dialog.h"
#include "host/plot/point_memo.h"
#include "host/resources/fieldhost_ids.h"
#include "host/survey/load_report.h"
#include "host/survey/memo_text.h"

namespace fieldhost {
namespace {

constexpr const wchar_t* kTitle = L"Field survey";
constexpr UINT kFocusLater = WM_APP;

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
ON_COMMAND(ID_VIEW_SCALE_BAR, &CMainWindow::OnScaleBar)
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
  for_user_ = true;
  return Create(WindowClass(), kTitle, kStyle, rect, nullptr, MAKEINTRESOURCEW(IDR_MAIN)) &&
         LoadAccelTable(MAKEINTRESOURCEW(IDR_MAIN));
}

BOOL CMainWindow::CreateForPicture(const PictureSize& size) {
  return Create(WindowClass(), kTitle, WS_POPUP | WS_CLIPCHILDREN,
                CRect(0, 0, size.width, size.height));
}

void CMainWindow::OpenFiles(std::span<const std::filesystem::path> files) {
  constexpr std::size_t kMostLines = 8;  // that a message box holds well
  LoadedSurvey loaded = LoadSurveyFiles(files);
  const std::string complaints = Complaints(loaded, kMostLines);
  if (loaded.survey.HasAnythingToDraw()) Show(std::move(loaded));
  if (!complaints.empty()) AfxMessageBox(WideOf(complaints), MB_OK | MB_ICONWARNING);
}

void CMainWindow::Show(LoadedSurvey loaded) {
  document_.Add(std::move(loaded));
  ShowSummary();
}

BOOL CMainWindow::OnCommand(WPARAM wParam, LPARAM lParam) {
  const UINT command = LOWORD(wParam);
  ShowViewFor(command);
  // The plot window reports a tapped point; what lParam holds is its key, not a control's window.
  const int key = static_cast<int>(lParam);
  if (tools_.Handle(command, key, *this)) {
    ShowToolText();
    return TRUE;
  }
  if (command == ID_PLOT_NOTIFY) {
    ShowPoint(key);
    return TRUE;
  }
  return CFrameWnd::OnCommand(wParam, lParam);
}

int CMainWindow::OnCreate(CREATESTRUCTW* create) {
  constexpr int kRefused = -1;
  if (CFrameWnd::OnCreate(create) == kRefused || !info_.Create(*this, ID_INFO_LINE, for_user_)) {
    return kRefused;
  }
  if (for_user_ && !tabs_.Create(*this, ID_VIEW_TABS, info_.Font())) return kRefused;
  ShowSummary();
  return 0;
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

  const int info_height = info_.HeightFor(client.Width());
  const int info_top = std::max(0, static_cast<int>(client.bottom) - info_height);
  info_.Place(CRect(0, info_top, client.right, info_top + info_height));
  const int plot_top = for_user_ ? std::min(ViewTabs::kHeight, info_top) : 0;
  if (for_user_) tabs_.MoveWindow(0, 0, client.Width(), plot_top);
  const CRect plot(0, plot_top, client.right, info_top);
  side_.SetPlace(*this, plot);
  tools_.KeepForNewPlot();
  if (plot_.Place(*this, plot, ID_PLOT_NOTIFY)) {
    tools_.RestoreOnNewPlot();
  } else {
    info_.Show(L"The plot window could not be made.");
  }
}

// A star shows that there is a memo even where its beginning has no room.
void CMainWindow::ShowPoint(int key) {
  constexpr std::size_t kMostOfMemo = 40;
  const SurveyPoint* const point = document_.FindPoint(key);
  if (!point) return;
  tapped_key_ = key;
  const CString memo = MemoOf(key);
  CString text;
  text.Format(L"%d %s%s  ", point->number, WideOf(point->name).GetString(),
              memo.IsEmpty() ? L"" : L" *");
  text += PositionText(point->Position());
  if (!memo.IsEmpty()) text += L"  " + WideOf(MemoBeginning(Utf8Of(memo), kMostOfMemo));
  info_.Show(text);
}

void CMainWindow::ShowToolText() {
  if (tools_.Text().IsEmpty()) {
    ShowSummary();
  } else {
    info_.Show(tools_.Text());
  }
}

// The tool in use goes first, then the sheet.
void CMainWindow::ShowSummary() {
  const CString sheet = tools_.SheetText();
  if (tools_.IsToolInUse()) {
    info_.Show(tools_.Text());
  } else {
    info_.Show(sheet.IsEmpty() ? WideOf(Summary(document_.Counts())) : sheet);
  }
}

// The line when the plan appears: what the tool in use waits for, else the point tapped last, else
// the counts.
void CMainWindow::ShowPlanInfo() {
  if (tapped_key_ && !tools_.IsToolInUse()) {
    ShowPoint(*tapped_key_);
  } else {
    ShowSummary();
  }
}

void CMainWindow::FollowView() {
  const CString sheet = tools_.SheetText();
  if (side_.IsShown() || sheet == sheet_text_) return;
  sheet_text_ = sheet;
  ShowSummary();
}

void CMainWindow::OnInitMenuPopup(CMenu* menu, UINT index, BOOL system_menu) {
  CFrameWnd::OnInitMenuPopup(menu, index, system_menu);
  if (!system_menu) {
    menu->CheckMenuItem(ID_VIEW_BUTTONS, plot_.ShowsButtons() ? MF_CHECKED : MF_UNCHECKED);
    menu->CheckMenuItem(ID_VIEW_SCALE_BAR, plot_.ShowsScaleBar() ? MF_CHECKED : MF_UNCHECKED);
    tools_.UpdateMenu(*menu);
    UpdateViewMenu(*menu);
  }
}

void CMainWindow::OnOpen() {
  const std::vector<std::filesystem::path> files = AskForSurveyFiles(*this);
  if (!files.empty()) OpenFiles(files);
}

void CMainWindow::OnCloseAll() {
  ShowView(PlotView::kPlan);
  tools_.Stop();
  document_.Clear();
  tapped_key_.reset();
  ShowSummary();
}

void CMainWindow::OnExit() { SendMessage(WM_CLOSE); }

void CMainWindow::OnScaleBar() { plot_.ShowScaleBar(!plot_.ShowsScaleBar()); }

// While the plot's settings close, the plot cannot take the keyboard yet: it is given the keyboard
// later.
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
