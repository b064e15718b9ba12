// The main window's work on the memo of the tapped point.
#include "host/app/main_window.h"
#include "host/app/memo_dialog.h"
#include "host/plot/point_memo.h"
#include "host/resources/fieldhost_ids.h"

namespace fieldhost {

void CMainWindow::OnPointMemo() {
  const std::optional<TappedPoint> point =
      tapped_key_ ? PlotPane::PointOf(*tapped_key_) : std::nullopt;
  if (!point) {
    info_.Show(L"Tap the point whose memo you want first.");
    return;
  }
  if (!CanHaveMemo(*tapped_key_)) {
    info_.Show(L"Only the first 32767 points can have a memo.");
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

// The line that tells the point leads to its memo; one that tells something else to nothing.
void CMainWindow::OnInfoTapped() {
  if (tapped_key_ && !side_.IsShown()) OnPointMemo();
}

}  // namespace fieldhost
