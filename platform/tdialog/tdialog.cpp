#include "tdialog.h"

#include <vector>

#include "platform/tdialog/device_template.h"
#include "platform/tdialog/ok_button_place.h"

namespace {

// Dialog units.
constexpr int kButtonWidth = 32;
constexpr int kButtonHeight = 14;
constexpr int kMargin = 3;

std::vector<RECT> ItemsOf(const CWnd& dialog) {
  std::vector<RECT> items;
  for (HWND item = ::GetWindow(dialog.m_hWnd, GW_CHILD); item;
       item = ::GetWindow(item, GW_HWNDNEXT)) {
    RECT rect;
    ::GetWindowRect(item, &rect);
    dialog.ScreenToClient(&rect);
    items.push_back(rect);
  }
  return items;
}

// Makes the window higher, and moves it up as far as that takes it off the screen.
void Grow(CWnd& dialog, int height) {
  if (height == 0) return;
  CRect window;
  dialog.GetWindowRect(window);
  window.bottom += height;
  RECT work;
  ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  const int below = window.bottom - work.bottom;
  const int room = window.top - work.top;
  if (below > 0 && room > 0) window.OffsetRect(0, -(below < room ? below : room));
  dialog.SetWindowPos(nullptr, window.left, window.top, window.Width(), window.Height(),
                      SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

INT_PTR TDialog::DoModal() {
  if (m_lpDialogTemplate || !m_lpszTemplateName) return CDialog::DoModal();
  const tdialog::DeviceTemplate dialogTemplate(m_lpszTemplateName);
  m_wantsOkButton = dialogTemplate.HasCaptionOkButton();
  m_lpDialogTemplate = dialogTemplate.Get();
  const INT_PTR result = CDialog::DoModal();
  m_lpDialogTemplate = nullptr;
  return result;
}

BOOL TDialog::Create(LPCWSTR templateName, CWnd* parent) {
  const tdialog::DeviceTemplate dialogTemplate(templateName);
  m_wantsOkButton = dialogTemplate.HasCaptionOkButton();
  return CreateIndirect(dialogTemplate.Get(), parent);
}

void TDialog::PreSubclassWindow() {
  // The close box cancels; a template of the device need not ask for it.
  if ((GetStyle() & WS_CAPTION) == WS_CAPTION) ModifyStyle(0, WS_SYSMENU);
  CDialog::PreSubclassWindow();
}

BOOL TDialog::OnInitDialog() {
  const BOOL focusBySystem = CDialog::OnInitDialog();
  if (m_wantsOkButton && !::GetDlgItem(m_hWnd, IDOK)) AddOkButton();
  return focusBySystem;
}

void TDialog::AddOkButton() {
  RECT measures = {kMargin, 0, kButtonWidth, kButtonHeight};
  MapDialogRect(&measures);
  CRect client;
  GetClientRect(client);
  const tdialog::OkButtonPlace place = tdialog::PlaceOkButton(
      client.Size(), {measures.right, measures.bottom}, measures.left, ItemsOf(*this));
  Grow(*this, place.extraHeight);
  if (!m_ok.Create(L"OK", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, place.button, this,
                   IDOK)) {
    return;
  }
  m_ok.SetFont(GetFont());
  SetDefID(IDOK);
}
