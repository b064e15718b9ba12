#include "window/button_column.h"

#include "window/resource.h"

namespace tavix {
namespace {

constexpr DWORD kButtonStyle = WS_CHILD | BS_OWNERDRAW;

UINT FirstId(int k) { return IDB_BUTTON + 4 * static_cast<UINT>(k); }

}  // namespace

bool ButtonColumn::Create(CWnd& parent) {
  CRect client;
  parent.GetClientRect(&client);
  layout_ = ButtonColumnLayout(client.bottom);
  const int left = client.right - ButtonColumnLayout::kWidth;
  for (int k = 0; k < ButtonColumnLayout::kButtons; ++k) {
    CBitmapButton& button = Button(k);
    const UINT id = FirstId(k);
    const int top = layout_.Top(k);
    const CRect place(left, top, client.right, top + ButtonColumnLayout::kWidth);
    if (!button.Create(L"", kButtonStyle, place, &parent, id) ||
        !button.LoadBitmaps(id, id + 1, id + 2, id + 3)) {
      return false;
    }
    button.SizeToContent();
  }
  return true;
}

void ButtonColumn::Destroy() {
  for (CBitmapButton& button : buttons_) {
    if (button.m_hWnd) button.DestroyWindow();
  }
}

void ButtonColumn::Show(bool show) {
  for (int k = 0; k < ButtonColumnLayout::kButtons; ++k) {
    if (!Button(k).m_hWnd) continue;
    Button(k).ShowWindow(show && layout_.IsVisible(k) ? SW_SHOW : SW_HIDE);
  }
}

}  // namespace tavix
