#include "framework/data_exchange.h"

#include <cerrno>
#include <cmath>
#include <cwchar>

#include "framework/exception.h"
#include "framework/win_app.h"

HWND CDataExchange::PrepareCtrl(int id) {
  const HWND item = ::GetDlgItem(m_pDlgWnd->m_hWnd, id);
  if (!item) AfxThrowResourceException();
  m_hWndLastControl = item;
  m_bEditLastControl = FALSE;
  return item;
}

HWND CDataExchange::PrepareEditCtrl(int id) {
  const HWND item = PrepareCtrl(id);
  m_bEditLastControl = TRUE;
  return item;
}

void CDataExchange::Fail() {
  if (m_bSaveAndValidate && m_hWndLastControl) {
    ::SetFocus(m_hWndLastControl);
    if (m_bEditLastControl) ::SendMessageW(m_hWndLastControl, EM_SETSEL, 0, -1);
  }
  AfxThrowUserException();
}

namespace {

[[noreturn]] void Refuse(CDataExchange* exchange, LPCWSTR sentence) {
  AfxMessageBox(sentence, MB_ICONEXCLAMATION);
  exchange->Fail();
}

CString TextOf(HWND item) {
  CString text;
  CWnd::FromHandle(item)->GetWindowTextW(text);
  return text;
}

bool OnlySpaces(const wchar_t* text) { return text[std::wcsspn(text, L" \t")] == 0; }

// The whole text as a number of type T. Refuses anything else.
template <class T, class Parse>
T NumberOf(CDataExchange* exchange, HWND item, LPCWSTR sentence, Parse parse) {
  const CString text = TextOf(item);
  const wchar_t* begin = text;
  wchar_t* end = nullptr;
  errno = 0;
  const auto value = parse(begin, &end);
  const T narrow = static_cast<T>(value);
  const bool fits = errno != ERANGE && static_cast<decltype(value)>(narrow) == value;
  if (end == begin || !OnlySpaces(end) || !fits) Refuse(exchange, sentence);
  return narrow;
}

constexpr LPCWSTR kNeedsInteger = L"Please enter a whole number.";
constexpr LPCWSTR kNeedsPositive = L"Please enter a positive whole number.";
constexpr LPCWSTR kNeedsNumber = L"Please enter a number.";

long long ParseInteger(const wchar_t* text, wchar_t** end) { return std::wcstoll(text, end, 10); }
double ParseNumber(const wchar_t* text, wchar_t** end) { return std::wcstod(text, end); }

template <class T>
void ExchangeInteger(CDataExchange* exchange, int id, T& value, LPCWSTR format, LPCWSTR sentence) {
  const HWND item = exchange->PrepareEditCtrl(id);
  if (exchange->m_bSaveAndValidate) {
    value = NumberOf<T>(exchange, item, sentence, &ParseInteger);
  } else {
    CString text;
    text.Format(format, value);
    ::SetWindowTextW(item, text);
  }
}

}  // namespace

void DDX_Control(CDataExchange* exchange, int id, CWnd& control) {
  if (control.m_hWnd || exchange->m_bSaveAndValidate) return;
  control.SubclassWindow(exchange->PrepareCtrl(id));
}

void DDX_Text(CDataExchange* exchange, int id, CString& value) {
  const HWND item = exchange->PrepareEditCtrl(id);
  if (exchange->m_bSaveAndValidate) {
    value = TextOf(item);
  } else {
    ::SetWindowTextW(item, value);
  }
}

void DDX_Text(CDataExchange* exchange, int id, int& value) {
  ExchangeInteger(exchange, id, value, L"%d", kNeedsInteger);
}

void DDX_Text(CDataExchange* exchange, int id, UINT& value) {
  ExchangeInteger(exchange, id, value, L"%u", kNeedsPositive);
}

void DDX_Text(CDataExchange* exchange, int id, long& value) {
  ExchangeInteger(exchange, id, value, L"%ld", kNeedsInteger);
}

void DDX_Text(CDataExchange* exchange, int id, double& value) {
  const HWND item = exchange->PrepareEditCtrl(id);
  if (exchange->m_bSaveAndValidate) {
    const double entered = NumberOf<double>(exchange, item, kNeedsNumber, &ParseNumber);
    if (!std::isfinite(entered)) Refuse(exchange, kNeedsNumber);
    value = entered;
  } else {
    CString text;
    text.Format(L"%.15g", value);
    ::SetWindowTextW(item, text);
  }
}

void DDX_Check(CDataExchange* exchange, int id, int& value) {
  const HWND item = exchange->PrepareCtrl(id);
  if (exchange->m_bSaveAndValidate) {
    value = static_cast<int>(::SendMessageW(item, BM_GETCHECK, 0, 0));
  } else {
    ::SendMessageW(item, BM_SETCHECK, static_cast<WPARAM>(value), 0);
  }
}

void DDX_Radio(CDataExchange* exchange, int id, int& value) {
  const HWND first = exchange->PrepareCtrl(id);
  if (exchange->m_bSaveAndValidate) value = -1;
  int index = 0;
  for (HWND item = first; item; item = ::GetWindow(item, GW_HWNDNEXT)) {
    const bool nextGroup = item != first && (::GetWindowLongW(item, GWL_STYLE) & WS_GROUP) != 0;
    if (nextGroup) return;
    if (!(::SendMessageW(item, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON)) continue;
    if (exchange->m_bSaveAndValidate) {
      if (::SendMessageW(item, BM_GETCHECK, 0, 0) != BST_UNCHECKED) value = index;
    } else {
      ::SendMessageW(item, BM_SETCHECK, index == value, 0);
    }
    ++index;
  }
}

void DDX_CBIndex(CDataExchange* exchange, int id, int& index) {
  const HWND item = exchange->PrepareCtrl(id);
  if (exchange->m_bSaveAndValidate) {
    index = static_cast<int>(::SendMessageW(item, CB_GETCURSEL, 0, 0));
  } else {
    ::SendMessageW(item, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  }
}

void DDX_CBString(CDataExchange* exchange, int id, CString& value) {
  const HWND item = exchange->PrepareCtrl(id);
  if (exchange->m_bSaveAndValidate) {
    value = TextOf(item);
    return;
  }
  const LPCWSTR text = value;
  // If the list does not contain the text, it is shown in the edit of the combo box.
  const LRESULT selected = ::SendMessageW(item, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                                          reinterpret_cast<LPARAM>(text));
  if (selected == CB_ERR) ::SetWindowTextW(item, text);
}

void DDV_MaxChars(CDataExchange* exchange, const CString& value, int count) {
  if (exchange->m_bSaveAndValidate) {
    if (value.GetLength() <= count) return;
    CString sentence;
    sentence.Format(L"Please enter no more than %d characters.", count);
    Refuse(exchange, sentence);
  } else if (exchange->m_bEditLastControl) {
    ::SendMessageW(exchange->m_hWndLastControl, EM_LIMITTEXT, static_cast<WPARAM>(count), 0);
  }
}

void DDV_MinMaxInt(CDataExchange* exchange, int value, int smallest, int largest) {
  if (!exchange->m_bSaveAndValidate || (smallest <= value && value <= largest)) return;
  CString sentence;
  sentence.Format(L"Please enter a whole number from %d to %d.", smallest, largest);
  Refuse(exchange, sentence);
}

void DDV_MinMaxDouble(CDataExchange* exchange, const double& value, const double& smallest,
                      const double& largest) {
  if (!exchange->m_bSaveAndValidate || (smallest <= value && value <= largest)) return;
  CString sentence;
  sentence.Format(L"Please enter a number from %.15g to %.15g.", smallest, largest);
  Refuse(exchange, sentence);
}
