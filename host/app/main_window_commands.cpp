// What the main window's commands do: turning between the views, the memo of the tapped point, the
// export of the plan as a one-bit picture.
#include <algorithm>
#include <span>

#include "host/app/display_text.h"
#include "host/app/main_window.h"
#include "host/app/memo_dialog.h"
#include "host/pictures/export_dialog.h"
#include "host/pictures/picture_writer.h"
#include "host/pictures/plan_picture.h"
#include "host/plot/plot_instance.h"
#include "host/plot/point_memo.h"
#include "host/resources/fieldhost_ids.h"
#include "host/survey/disk_file.h"

namespace fieldhost {
namespace {

// What works on the plan alone.
constexpr UINT kPlanCommands[] = {
    ID_SURVEY_CAPTURE,         ID_TOOL_CIRCLE,     ID_TOOL_TRACE,
    ID_TOOL_MOVE_POINT,        ID_TOOL_MOVE_SHEET, ID_SHEET_SETUP,
    ID_SHEET_REMOVE,           ID_VIEW_SCALE_BAR,  ID_FIGURE_DELETE_CIRCLE,
    ID_FIGURE_DELETE_BOUNDARY, ID_SURVEY_MEMO,     ID_SURVEY_EXPORT};

// Steps of the tool in use; without one they do nothing.
constexpr UINT kToolSteps[] = {ID_TOOL_UNDO, ID_TOOL_FINISH, ID_TOOL_FINISH_CLOSED, ID_TOOL_CANCEL};

bool IsOneOf(std::span<const UINT> commands, UINT command) {
  return std::ranges::find(commands, command) != commands.end();
}

// Writes the current plan; else says what is wrong and what to do.
CString Export(const PictureSize& size, int resolution, const std::filesystem::path& file) {
  const CString name = WideOf(Utf8Of(file.filename()));
  const std::optional<OneBitFormat> format = OneBitFormatOf(Utf8Of(file));
  if (!format) return name + L": name the picture .png or .pbm.";
  const std::optional<OneBitPicture> picture = DrawPlanPicture(size);
  if (!picture) return L"There is no room for so large a picture. Choose a smaller size.";
  if (!WriteOneBitPicture(*picture, *format, resolution, file)) {
    return name +
           L" cannot be written. Check that the folder may be written to and that no other "
           L"program holds the file.";
  }
  return CString();
}

}  // namespace

bool CMainWindow::ShowView(PlotView view) {
  if (view == PlotView::kSide) {
    const bool shown = document_.Heights().points > 0 && side_.Show();
    if (shown) plot_.Show(false);
    ShowHeights();
    tabs_.Select(shown ? PlotView::kSide : PlotView::kPlan);
    TakeFocus();
    return shown;
  }
  if (side_.IsShown()) {
    side_.Hide();
    plot_.Show(true);
    ShowPlanInfo();
  }
  tabs_.Select(PlotView::kPlan);
  TakeFocus();
  return true;
}

void CMainWindow::ShowHeights() {
  const HeightRange heights = document_.Heights();
  CString text(L"No point has a height: nothing to show in 3-D.");
  if (heights.points > 0) {
    text.Format(L"%d with a height, %.2f m to %.2f m", static_cast<int>(heights.points),
                heights.lowest, heights.highest);
  }
  info_.Show(text);
}

void CMainWindow::OnPlanView() { ShowView(PlotView::kPlan); }

void CMainWindow::OnSideView() { ShowView(PlotView::kSide); }

void CMainWindow::OnViewTab(NMHDR*, LRESULT* result) {
  ShowView(tabs_.Selected());
  *result = 0;
}

void CMainWindow::ShowViewFor(UINT command) {
  const bool for_plan =
      IsOneOf(kPlanCommands, command) || (tools_.IsToolInUse() && IsOneOf(kToolSteps, command));
  if (for_plan) ShowView(PlotView::kPlan);
}

void CMainWindow::UpdateViewMenu(CMenu& menu) {
  menu.CheckMenuRadioItem(ID_VIEW_PLAN, ID_VIEW_SIDE, side_.IsShown() ? ID_VIEW_SIDE : ID_VIEW_PLAN,
                          MF_BYCOMMAND);
}

void CMainWindow::OnWholeView() {
  if (side_.IsShown()) {
    side_.ShowWholeView();
  } else {
    plot_.ShowWholeView();
  }
}

// The plan becomes wider or narrower by the column of buttons.
void CMainWindow::OnShowButtons() {
  tools_.KeepForNewPlot();
  plot_.ShowButtons(!plot_.ShowsButtons());
  tools_.RestoreOnNewPlot();
  side_.ShowButtons(plot_.ShowsButtons());
}

void CMainWindow::TakeFocus() {
  if (side_.IsShown()) {
    side_.TakeFocus();
  } else {
    plot_.TakeFocus();
  }
}

void CMainWindow::OnPointMemo() {
  const SurveyPoint* const point = tapped_key_ ? document_.FindPoint(*tapped_key_) : nullptr;
  if (!point) {
    info_.Show(L"Tap the point whose memo you want first.");
    return;
  }
  if (!CanHaveMemo(*tapped_key_)) {
    CString text;
    text.Format(L"Only the first %d points can have a memo.", kTavixLargestLineKey);
    info_.Show(text);
    return;
  }
  MemoDialog dialog(*this, *point, MemoOf(*tapped_key_));
  if (dialog.DoModal() == IDOK && !SetMemo(*tapped_key_, dialog.Memo())) {
    AfxMessageBox(L"The memo could not be kept. Make room by removing other memos.",
                  MB_OK | MB_ICONWARNING);
  }
  ShowPoint(*tapped_key_);
  TakeFocus();
}

// While the line shows the point, a click opens its memo.
void CMainWindow::OnInfoTapped() {
  if (tapped_key_ && !side_.IsShown()) OnPointMemo();
}

void CMainWindow::OnExport() {
  const CWnd* plot = Tavix_Wnd();
  if (!plot) return;
  ExportDialog dialog(*this, DrawingArea(*plot, plot_.ShowsButtons()));
  if (dialog.DoModal() != IDOK) return;
  const std::filesystem::path file = AskForPictureFile(*this);
  if (file.empty()) return;

  const CString problem = Export(dialog.Size(), dialog.Resolution(), file);
  if (problem.IsEmpty()) {
    info_.Show(L"Written: " + WideOf(Utf8Of(file.filename())));
  } else {
    AfxMessageBox(problem, MB_OK | MB_ICONWARNING);
  }
}

}  // namespace fieldhost
