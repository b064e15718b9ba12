// The main window's two views of the survey: the plan, and the side view of the points with
// heights.
#include <algorithm>
#include <span>

#include "host/app/main_window.h"
#include "host/resources/fieldhost_ids.h"

namespace fieldhost {
namespace {

// What works on the plan alone.
constexpr UINT kPlanCommands[] = {
    ID_SURVEY_CAPTURE,         ID_TOOL_CIRCLE,     ID_TOOL_TRACE,
    ID_TOOL_MOVE_POINT,        ID_TOOL_MOVE_SHEET, ID_SHEET_SETUP,
    ID_SHEET_REMOVE,           ID_VIEW_SCALE_BAR,  ID_FIGURE_DELETE_CIRCLE,
    ID_FIGURE_DELETE_BOUNDARY, ID_SURVEY_MEMO,     ID_SURVEY_EXPORT};

// What the tool in use is told; without one it means nothing.
constexpr UINT kToolSteps[] = {ID_TOOL_UNDO, ID_TOOL_FINISH, ID_TOOL_FINISH_CLOSED, ID_TOOL_CANCEL};

bool IsOneOf(std::span<const UINT> commands, UINT command) {
  return std::ranges::find(commands, command) != commands.end();
}

}  // namespace

bool CMainWindow::ShowView(PlotView view) {
  if (view == PlotView::kSide) {
    const bool shown = side_.Heights().points > 0 && side_.Show();
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
  const HeightRange& heights = side_.Heights();
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

}  // namespace fieldhost
