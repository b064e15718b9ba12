// The main window's two views of the survey: the plan, and the side view of the points with
// heights.
#include <algorithm>
#include <iterator>

#include "host/main_window.h"
#include "host/resource.h"

namespace fieldhost {
namespace {

// What works on the plan alone.
constexpr UINT kPlanCommands[] = {ID_SURVEY_CAPTURE, ID_SURVEY_MEMO, ID_SURVEY_EXPORT};

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
  info_.SetWindowText(text);
}

void CMainWindow::OnPlanView() { ShowView(PlotView::kPlan); }

void CMainWindow::OnSideView() { ShowView(PlotView::kSide); }

void CMainWindow::OnViewTab(NMHDR*, LRESULT* result) {
  ShowView(tabs_.Selected());
  *result = 0;
}

void CMainWindow::ShowViewFor(UINT command) {
  if (std::ranges::find(kPlanCommands, command) != std::end(kPlanCommands)) {
    ShowView(PlotView::kPlan);
  }
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

void CMainWindow::OnShowButtons() {
  plot_.ShowButtons(!plot_.ShowsButtons());
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
