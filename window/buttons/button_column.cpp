#include "window/buttons/button_column.h"

#include <algorithm>
#include <new>

namespace tavix {
namespace {

constexpr DWORD kButtonStyle = WS_CHILD | BS_OWNERDRAW;

const ButtonRow& RowOf(int k) { return kButtonTable[static_cast<std::size_t>(k)]; }

int IndexOf(ButtonId id) {
  const auto row = std::find_if(kButtonTable.begin(), kButtonTable.end(),
                                [id](const ButtonRow& candidate) { return candidate.id == id; });
  return static_cast<int>(row - kButtonTable.begin());
}

// Whether the button would be on the screen if its parents were.
bool HasVisibleStyle(const CWnd& button) {
  return button.m_hWnd && (button.GetStyle() & WS_VISIBLE) != 0;
}

}  // namespace

bool ButtonColumn::Create(CWnd& parent) {
  CRect client;
  parent.GetClientRect(&client);
  layout_ = ButtonColumnLayout(client.bottom);
  const int left = client.right - ButtonColumnLayout::kWidth;
  for (int k = 0; k < ButtonColumnLayout::kButtons; ++k) {
    CBitmapButton& button = Button(k);
    const UINT id = RowOf(k).id;
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
  shown_ = show;
  Arrange();
}

bool ButtonColumn::ScrollUp() {
  if (!layout_.ScrollUp()) return false;
  Arrange();
  return true;
}

bool ButtonColumn::ScrollDown() {
  if (!layout_.ScrollDown()) return false;
  Arrange();
  return true;
}

void ButtonColumn::Arrange() {
  for (int k = 0; k < ButtonColumnLayout::kButtons; ++k) {
    CBitmapButton& button = Button(k);
    if (!button.m_hWnd) continue;
    CRect place;
    button.GetWindowRect(&place);
    button.GetParent()->ScreenToClient(&place);
    button.SetWindowPos(nullptr, place.left, layout_.Top(k), 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    button.ShowWindow(shown_ && layout_.IsVisible(k) ? SW_SHOW : SW_HIDE);
  }
}

void ButtonColumn::SetPressed(ButtonId id, bool pressed) {
  CBitmapButton& button = Button(IndexOf(id));
  if (!button.m_hWnd) return;
  if (pressed) {
    const UINT pressed_in = RowOf(IndexOf(id)).pressed_in;
    button.LoadBitmaps(id + 1, id, pressed_in, pressed_in + 1);
  } else {
    button.LoadBitmaps(id, id + 1, id + 2, id + 3);
  }
  button.Invalidate();
}

void ButtonColumn::DisableAllBut(ButtonId id) {
  for (int k = 0; k < ButtonColumnLayout::kButtons; ++k) {
    if (k != IndexOf(id) && HasVisibleStyle(Button(k))) Button(k).EnableWindow(FALSE);
  }
}

void ButtonColumn::EnableAll() {
  for (CBitmapButton& button : buttons_) {
    if (button.m_hWnd) button.EnableWindow(TRUE);
  }
}

bool ButtonColumn::IsShown(int k) const { return Button(k).m_hWnd && Button(k).IsWindowVisible(); }

// At any height either the scroll buttons show or the first main button does.
bool ButtonColumn::IsOnScreen() const {
  return IsShown(ButtonColumnLayout::kScrollUp) || IsShown(ButtonColumnLayout::kFirstMain);
}

std::vector<CRect> ButtonColumn::Places() const {
  std::vector<CRect> places;
  for (const CBitmapButton& button : buttons_) {
    if (!HasVisibleStyle(button)) continue;
    CRect& place = places.emplace_back();
    button.GetWindowRect(&place);
    button.GetParent()->ScreenToClient(&place);
  }
  return places;
}

bool ButtonColumn::Covers(CPoint at) const {
  const std::vector<CRect> places = Places();
  return std::any_of(places.begin(), places.end(),
                     [at](const CRect& place) { return place.PtInRect(at) != FALSE; });
}

// The update region is all of `rect`, under the buttons too, as hosts know it.
void ButtonColumn::InvalidateAround(CWnd& parent, const CRect& rect) const {
  try {
    const std::vector<CRect> places = Places();
    if (places.empty()) {
      parent.InvalidateRect(&rect, TRUE);
      return;
    }
    CRgn around;
    around.CreateRectRgnIndirect(&rect);
    for (const CRect& place : places) {
      CRgn button;
      button.CreateRectRgnIndirect(&place);
      around.CombineRgn(&around, &button, RGN_DIFF);
    }
    parent.RedrawWindow(nullptr, &around, RDW_INVALIDATE | RDW_ERASE);
    parent.RedrawWindow(&rect, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_NOCHILDREN);
  } catch (const std::bad_alloc&) {
    parent.InvalidateRect(&rect, TRUE);  // no memory to leave the buttons out
  }
}

void ButtonColumn::ExcludeFrom(CDC& dc) const {
  for (const CRect& place : Places()) dc.ExcludeClipRect(&place);
}

void ButtonColumn::Invalidate() {
  for (CBitmapButton& button : buttons_) {
    if (button.m_hWnd) button.Invalidate();
  }
}

}  // namespace tavix
