#include "tdialog.h"

#include <vector>

#include "platform/tdialog/device_template.h"
#include "platform/tdialog/placement.h"

namespace {

using tdialog::PixelRect;
using tdialog::PixelSize;

// Dialog units.
constexpr int kButtonWidth = 32;
constexpr int kButtonHeight = 14;
constexpr int kMargin = 3;

PixelRect ToPixelRect(const RECT& rect) {
  return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
          static_cast<int>(rect.bottom)};
}

std::vector<PixelRect> ItemsOf(const CWnd& dialog) {
  std::vector<PixelRect> items;
  for (HWND item = ::GetWindow(dialog.m_hWnd, GW_CHILD); item;
       item = ::GetWindow(item, GW_HWNDNEXT)) {
    RECT rect;
    ::GetWindowRect(item, &rect);
    dialog.ScreenToClient(&rect);
    items.push_back(ToPixelRect(rect));
  }
  return items;
}

// The work area of the monitor that shows `window`, or of the primary monitor without a window. The
// work area of the primary monitor can be set by programs, and not every system reports that in
// GetMonitorInfo.
PixelRect WorkArea(HWND window) {
  MONITORINFO monitor = {};
  monitor.cbSize = sizeof monitor;
  ::GetMonitorInfoW(
      ::MonitorFromWindow(window, window ? MONITOR_DEFAULTTONEAREST : MONITOR_DEFAULTTOPRIMARY),
      &monitor);
  RECT area = monitor.rcWork;
  if (monitor.dwFlags & MONITORINFOF_PRIMARY) ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  return ToPixelRect(area);
}

HWND OwnerOf(const CWnd* parent) {
  const CWnd* owner = parent ? parent : AfxGetMainWnd();
  return owner ? owner->m_hWnd : nullptr;
}

}  // namespace

INT_PTR TDialog::DoModal() {
  if (m_lpDialogTemplate || !m_lpszTemplateName) return CDialog::DoModal();
  tdialog::DeviceTemplate dialogTemplate(m_lpszTemplateName);
  FitToScreen(dialogTemplate, OwnerOf(m_pParentWnd));
  m_lpDialogTemplate = dialogTemplate.Get();
  const INT_PTR result = CDialog::DoModal();
  m_lpDialogTemplate = nullptr;
  return result;
}

BOOL TDialog::Create(LPCWSTR templateName, CWnd* parent) {
  tdialog::DeviceTemplate dialogTemplate(templateName);
  FitToScreen(dialogTemplate, OwnerOf(parent));
  return CreateIndirect(dialogTemplate.Get(), parent);
}

// Dialog units depend on the font. Room for the strip of the OK button is always included: whether
// the strip is needed is known only when the items exist.
void TDialog::FitToScreen(tdialog::DeviceTemplate& dialogTemplate, HWND owner) {
  m_wantsOkButton = dialogTemplate.HasCaptionOkButton();
  m_hasSmallerFont = FALSE;
  const int wanted = dialogTemplate.FontPoints();
  if (wanted == 0) return;
  const PixelRect area = WorkArea(owner);
  const int strip = m_wantsOkButton ? kButtonHeight + 2 * kMargin : 0;
  const int points = tdialog::FittingPoints(
      wanted, {area.right - area.left, area.bottom - area.top}, [&](int tried) {
        dialogTemplate.SetFontPoints(tried);
        const SIZE size = dialogTemplate.WindowSize(strip);
        return PixelSize{static_cast<int>(size.cx), static_cast<int>(size.cy)};
      });
  dialogTemplate.SetFontPoints(points);
  m_hasSmallerFont = points < wanted;
}

void TDialog::PreSubclassWindow() {
  // The close box cancels. Templates of the device may lack the style for it.
  if ((GetStyle() & WS_CAPTION) == WS_CAPTION) ModifyStyle(0, WS_SYSMENU);
  CDialog::PreSubclassWindow();
}

BOOL TDialog::OnInitDialog() {
  const BOOL focusBySystem = CDialog::OnInitDialog();
  if (m_wantsOkButton && !::GetDlgItem(m_hWnd, IDOK)) AddOkButton();
  if (!(GetStyle() & WS_CHILD)) StayOnScreen();
  return focusBySystem;
}

void TDialog::AddOkButton() {
  RECT measures = {kMargin, 0, kButtonWidth, kButtonHeight};
  MapDialogRect(&measures);
  CRect client;
  GetClientRect(client);
  const tdialog::OkButtonPlace place =
      tdialog::PlaceOkButton({client.Width(), client.Height()},
                             {static_cast<int>(measures.right), static_cast<int>(measures.bottom)},
                             static_cast<int>(measures.left), ItemsOf(*this));
  if (place.extraHeight != 0) {
    CRect window;
    GetWindowRect(window);
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() + place.extraHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  const CRect button(place.button.left, place.button.top, place.button.right, place.button.bottom);
  if (!m_ok.Create(L"OK", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, button, this,
                   IDOK)) {
    return;
  }
  m_ok.SetFont(GetFont());
  SetDefID(IDOK);
}

// A dialog with a smaller font than its template's is placed in the upper left corner.
void TDialog::StayOnScreen() {
  CRect window;
  GetWindowRect(window);
  const PixelRect area = WorkArea(m_hWnd);
  if (m_hasSmallerFont) window.MoveToXY(area.left, area.top);
  const PixelRect place = tdialog::MovedInside(ToPixelRect(window), area);
  SetWindowPos(nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
