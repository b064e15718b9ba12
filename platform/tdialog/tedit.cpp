// TEdit and TEditInt.
#include <algorithm>
#include <string>

#include "platform/tdialog/integer_text.h"
#include "tdialog.h"

#include <imm.h>

BOOL TEdit::Link(CWnd* dialog, UINT id) { return SubclassDlgItem(id, dialog); }

// ---- TEditInt

BEGIN_MESSAGE_MAP(TEditInt, TEdit)
ON_WM_CHAR()
ON_WM_KILLFOCUS()
ON_MESSAGE(WM_PASTE, &TEditInt::OnPaste)
END_MESSAGE_MAP()

namespace {

std::wstring TextOf(const CWnd& window) {
  CString text;
  window.GetWindowText(text);
  return std::wstring(text, static_cast<std::size_t>(text.GetLength()));
}

// The text on the clipboard, empty without one.
std::wstring ClipboardText(HWND owner) {
  std::wstring text;
  if (!::OpenClipboard(owner)) return text;
  if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT)) {
    if (const auto* characters = static_cast<const wchar_t*>(::GlobalLock(data))) {
      text = characters;
      ::GlobalUnlock(data);
    }
  }
  ::CloseClipboard();
  return text;
}

}  // namespace

BOOL TEditInt::Link(CWnd* dialog, UINT id, int emptyValue, int smallest, int largest, int digits) {
  m_emptyValue = emptyValue;
  m_smallest = smallest;
  m_largest = largest;
  m_digits = digits;
  if (!TEdit::Link(dialog, id)) return FALSE;
  // Digits need no input method, and its text would bypass the checks of OnChar.
  ::ImmAssociateContext(m_hWnd, nullptr);
  return TRUE;
}

void TEditInt::SetValue(int value) {
  std::wstring text;
  if (value != m_emptyValue) {
    text = std::to_wstring(std::clamp(value, m_smallest, m_largest));
  }
  SetWindowText(text.c_str());
}

int TEditInt::GetValue() const {
  return tdialog::ValueWithin(TextOf(*this), {m_smallest, m_largest, m_digits})
      .value_or(m_emptyValue);
}

BOOL TEditInt::IsEmpty() const {
  return !tdialog::ValueWithin(TextOf(*this), {m_smallest, m_largest, m_digits}).has_value();
}

bool TEditInt::Accepts(LPCWSTR inserted) const {
  int start = 0, end = 0;
  GetSel(start, end);
  std::wstring text = TextOf(*this);
  text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start), inserted);
  return tdialog::MayStand(text, {m_smallest, m_largest, m_digits});
}

void TEditInt::OnChar(UINT character, UINT repeatCount, UINT flags) {
  const bool isControl = character < L' ';  // Backspace, Ctrl+C and similar
  const wchar_t inserted[] = {static_cast<wchar_t>(character), 0};
  if (isControl || Accepts(inserted)) TEdit::OnChar(character, repeatCount, flags);
}

LRESULT TEditInt::OnPaste(WPARAM, LPARAM) {
  return Accepts(ClipboardText(m_hWnd).c_str()) ? Default() : 0;
}

void TEditInt::OnKillFocus(CWnd* newFocus) {
  TEdit::OnKillFocus(newFocus);
  const std::wstring entered = TextOf(*this);
  const auto value = tdialog::ValueWithin(entered, {m_smallest, m_largest, m_digits});
  const std::wstring shown = value ? std::to_wstring(*value) : std::wstring();
  if (shown != entered) SetWindowText(shown.c_str());
}
