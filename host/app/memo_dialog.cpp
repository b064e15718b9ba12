#include "host/app/memo_dialog.h"

#include <tavix/tavix.h>

#include "host/app/display_text.h"
#include "host/resources/fieldhost_ids.h"

namespace fieldhost {

BEGIN_MESSAGE_MAP(MemoDialog, CDialog)
ON_EN_MAXTEXT(IDC_MEMO_TEXT, &MemoDialog::OnFull)
END_MESSAGE_MAP()

MemoDialog::MemoDialog(CWnd& parent, const SurveyPoint& point, const CString& memo)
    : CDialog(IDD_MEMO, &parent), point_(point), memo_(memo) {}

BOOL MemoDialog::OnInitDialog() {
  CDialog::OnInitDialog();
  CenterWindow();
  CString line;
  line.Format(L"%d  %s", point_.number, WideOf(point_.name).GetString());
  SetDlgItemText(IDC_MEMO_POINT, line);
  SetDlgItemText(IDC_MEMO_PLACE, PositionText(point_.Position()));

  auto& text = *static_cast<CEdit*>(GetDlgItem(IDC_MEMO_TEXT));
  text.SetLimitText(kTavixLongestMemo);
  text.SetWindowText(memo_);
  text.SetSel(memo_.GetLength(), memo_.GetLength());
  text.SetFocus();
  return FALSE;
}

BOOL MemoDialog::PreTranslateMessage(MSG* message) {
  constexpr SHORT kDown = static_cast<SHORT>(0x8000);
  if (message->message == WM_KEYDOWN && message->wParam == VK_RETURN &&
      (::GetKeyState(VK_CONTROL) & kDown)) {
    OnOK();
    return TRUE;
  }
  return CDialog::PreTranslateMessage(message);
}

void MemoDialog::OnOK() {
  GetDlgItemText(IDC_MEMO_TEXT, memo_);
  memo_.TrimRight();
  CDialog::OnOK();
}

// The edit control cut what was typed or pasted.
void MemoDialog::OnFull() {
  CString text;
  text.Format(L"A memo holds at most %d characters: what went beyond was left out.",
              kTavixLongestMemo);
  AfxMessageBox(text, MB_OK | MB_ICONINFORMATION);
}

}  // namespace fieldhost
