#include "host/app/view_tabs.h"

#include <commctrl.h>

namespace fieldhost {
namespace {

constexpr int kTabWidth = 60;  // pixels; two leave room on a handheld's screen

}  // namespace

BOOL ViewTabs::Create(CWnd& parent, UINT id, CFont& font) {
  constexpr DWORD kStyle =
      WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | TCS_FIXEDWIDTH | TCS_FOCUSNEVER;
  const INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_TAB_CLASSES};
  if (!::InitCommonControlsEx(&controls) ||
      !CWnd::Create(WC_TABCONTROLW, L"", kStyle, CRect(0, 0, 0, 0), &parent, id)) {
    return FALSE;
  }
  SetFont(&font);
  SendMessage(TCM_SETITEMSIZE, 0, MAKELPARAM(kTabWidth, kHeight - 2));
  WPARAM place = 0;
  for (const wchar_t* text : {L"Plan", L"3-D"}) {
    CString label(text);
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = label.GetBuffer(0);
    SendMessage(TCM_INSERTITEMW, place++, reinterpret_cast<LPARAM>(&item));
  }
  return TRUE;
}

PlotView ViewTabs::Selected() const {
  return SendMessage(TCM_GETCURSEL) == 1 ? PlotView::kSide : PlotView::kPlan;
}

void ViewTabs::Select(PlotView view) {
  SendMessage(TCM_SETCURSEL, view == PlotView::kSide ? 1 : 0);
}

}  // namespace fieldhost
