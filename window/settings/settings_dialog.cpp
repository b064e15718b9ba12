#include "window/settings/settings_dialog.h"

#include <afxcmn.h>
#include <afxdlgs.h>

#include <string>
#include <utility>

#include "draw/marks.h"
#include "platform/wide_text.h"
#include "window/settings/settings_ids.h"

namespace tavix {
namespace {

constexpr int kSmallestStep = 1;  // degrees
constexpr int kLargestStep = 180;

BOOL CALLBACK CancelIfDialogOf(HWND window, LPARAM owner) {
  constexpr LPCWSTR kDialogClass = L"#32770";
  wchar_t name[8] = {};
  ::GetClassNameW(window, name, ARRAYSIZE(name));
  const bool is_dialog = ::lstrcmpW(name, kDialogClass) == 0 && ::IsWindowVisible(window);
  if (is_dialog && ::GetWindow(window, GW_OWNER) == reinterpret_cast<HWND>(owner)) {
    ::SendMessageW(window, WM_COMMAND, IDCANCEL, 0);
  }
  return TRUE;
}

// Cancels the common dialogs that are open above a window.
void CancelDialogsOf(HWND owner) {
  if (!owner) return;
  ::EnumThreadWindows(::GetCurrentThreadId(), &CancelIfDialogOf, reinterpret_cast<LPARAM>(owner));
}

}  // namespace

BEGIN_MESSAGE_MAP(SettingsDialog, TDialog)
ON_CBN_SELCHANGE(IDC_ENTRY, &SettingsDialog::OnEntryChange)
ON_BN_CLICKED(IDC_COPY_TO_ALL, &SettingsDialog::OnCopyToAll)
ON_WM_DESTROY()
ON_BN_CLICKED(IDC_COLOR, &SettingsDialog::OnColor)
ON_WM_DRAWITEM()
END_MESSAGE_MAP()

SettingsDialog::SettingsDialog(CWnd* owner, LegendTable& legend, PlotSettings& settings,
                               std::function<void()> before_writing)
    : TDialog(IDD_SETTINGS, owner),
      legend_(&legend),
      settings_(settings),
      before_writing_(std::move(before_writing)),
      editor_(legend) {}

BOOL SettingsDialog::OnInitDialog() {
  TDialog::OnInitDialog();
  FillEntryList();
  FillSizeList(IDC_MARK_SIZE);
  FillSizeList(IDC_TEXT_SIZE);
  const DWORD_PTR first = List(IDC_ENTRY).GetItemData(0);
  const bool lists_none = List(IDC_ENTRY).SetCurSel(0) == CB_ERR;
  ShowEntry(lists_none ? 0 : static_cast<int>(first));
  CheckDlgButton(IDC_DRAW_LINES, settings_.draws_lines ? BST_CHECKED : BST_UNCHECKED);

  auto& spin = *static_cast<CSpinButtonCtrl*>(GetDlgItem(IDC_STEP_SPIN));
  spin.SetBase(10);
  spin.SetRange(kSmallestStep, kLargestStep);
  spin.SetPos(settings_.rotation_step);
  ShowRatio();
  return TRUE;
}

// Only the legends that have a title are listed. Compatibility: a kind without a name keeps the
// name of the entry listed before.
void SettingsDialog::FillEntryList() {
  CComboBox& list = List(IDC_ENTRY);
  CString kind_name;
  for (std::size_t entry = 0; entry < editor_.Entries().size(); ++entry) {
    const std::u16string& title = editor_.Title(entry);
    if (title.empty()) continue;
    const MarkShape* mark = FindMark(editor_.Entries()[entry].values.kind);
    if (mark) kind_name = mark->name;
    CString line;
    line.Format(L"%s（%s）", kind_name.GetString(), AsWide(title.c_str()));
    list.SetItemData(list.AddString(line), entry);
  }
}

void SettingsDialog::FillSizeList(UINT id) {
  CComboBox& list = List(static_cast<int>(id));
  list.AddString(L"なし");
  for (int line = 1; line < LegendEditor::kLines; ++line) {
    CString size;
    size.Format(L"%2d", 2 * line);
    list.AddString(size);
  }
}

// Without a ratio the line legend's group fills the row that the two would share.
void SettingsDialog::ShowRatio() {
  constexpr int kEmpty = 999999999;
  constexpr int kSmallest = 1;
  constexpr int kLargest = 9999;
  constexpr int kDigits = 4;
  vertical_.Link(this, IDC_VERTICAL, kEmpty, kSmallest, kLargest, kDigits);
  horizontal_.Link(this, IDC_HORIZONTAL, kEmpty, kSmallest, kLargest, kDigits);
  if (!settings_.ratio.given) {
    CRect size;
    GetDlgItem(IDC_STEP_GROUP)->GetWindowRect(&size);
    GetDlgItem(IDC_LINE_GROUP)
        ->SetWindowPos(nullptr, 0, 0, size.Width(), size.Height(), SWP_NOMOVE | SWP_NOZORDER);
    return;
  }
  vertical_.SetValue(settings_.ratio.vertical);
  horizontal_.SetValue(settings_.ratio.horizontal);
  for (const int id :
       {IDC_RATIO_GROUP, IDC_VERTICAL_LABEL, IDC_HORIZONTAL_LABEL, IDC_VERTICAL, IDC_HORIZONTAL}) {
    GetDlgItem(id)->ShowWindow(SW_SHOW);
  }
}

void SettingsDialog::ShowEntry(int entry) {
  const LegendChoice choice = editor_.Select(entry);
  List(IDC_MARK_SIZE).SetCurSel(choice.mark_line);
  List(IDC_TEXT_SIZE).SetCurSel(choice.text_line);
  List(IDC_MARK_SIZE).EnableWindow(editor_.MarkSizeIsFixed() ? FALSE : TRUE);
  CheckRadioButton(IDC_SHOW_NUMBER, IDC_SHOW_NAME,
                   choice.shows_number ? IDC_SHOW_NUMBER : IDC_SHOW_NAME);
  ShowColor();
}

void SettingsDialog::TakeEntry() {
  editor_.Take({List(IDC_MARK_SIZE).GetCurSel(), List(IDC_TEXT_SIZE).GetCurSel(),
                IsDlgButtonChecked(IDC_SHOW_NUMBER) == BST_CHECKED});
}

void SettingsDialog::ShowColor() {
  color_brush_.DeleteObject();
  color_brush_.CreateSolidBrush(static_cast<COLORREF>(editor_.Color()));
  GetDlgItem(IDC_COLOR)->Invalidate();
}

CComboBox& SettingsDialog::List(int id) { return *static_cast<CComboBox*>(GetDlgItem(id)); }

void SettingsDialog::OnEntryChange() {
  TakeEntry();
  CComboBox& list = List(IDC_ENTRY);
  const int line = list.GetCurSel();
  // A program may report a change that leaves nothing selected: the entry shown stays.
  if (line != CB_ERR) ShowEntry(static_cast<int>(list.GetItemData(line)));
}

void SettingsDialog::OnCopyToAll() {
  TakeEntry();
  editor_.CopyToAll();
}

void SettingsDialog::OnColor() {
  CColorDialog chooser(static_cast<COLORREF>(editor_.Color()), 0, this);
  if (chooser.DoModal() != IDOK) return;
  editor_.SetColor(static_cast<std::int32_t>(chooser.GetColor()));
  ShowColor();
}

void SettingsDialog::OnOK() {
  if (IsAbandoned()) return;
  TakeEntry();
  before_writing_();
  editor_.Save(*legend_);
  settings_.draws_lines = IsDlgButtonChecked(IDC_DRAW_LINES) == BST_CHECKED;
  // With a text that is no number in range the position has a high word, and is out of range too.
  const int step = static_cast<CSpinButtonCtrl*>(GetDlgItem(IDC_STEP_SPIN))->GetPos();
  if (step >= kSmallestStep && step <= kLargestStep) settings_.rotation_step = step;
  if (settings_.ratio.given) TakeRatio();
  EndDialog(IDOK);
}

void SettingsDialog::TakeRatio() {
  const bool complete = !vertical_.IsEmpty() && !horizontal_.IsEmpty();
  settings_.ratio.vertical = complete ? vertical_.GetValue() : 1;
  settings_.ratio.horizontal = complete ? horizontal_.GetValue() : 1;
}

void SettingsDialog::Abandon() {
  legend_ = nullptr;
  CancelDialogsOf(m_hWnd);
  EndDialog(IDCANCEL);
}

void SettingsDialog::OnDestroy() {
  color_brush_.DeleteObject();
  TDialog::OnDestroy();
}

// The colour field is painted with the brush that answers for it.
LRESULT SettingsDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool asks_for_color = message == WM_CTLCOLORBTN && color_brush_.m_hObject &&
                              ::GetDlgCtrlID(reinterpret_cast<HWND>(lParam)) == IDC_COLOR;
  if (asks_for_color) return reinterpret_cast<LRESULT>(color_brush_.m_hObject);
  return TDialog::WindowProc(message, wParam, lParam);
}

// Where Windows only asks for the brush and leaves the painting to the owner.
void SettingsDialog::OnDrawItem(int id, DRAWITEMSTRUCT* item) {
  if (id != IDC_COLOR) {
    TDialog::OnDrawItem(id, item);
    return;
  }
  ::FillRect(item->hDC, &item->rcItem, static_cast<HBRUSH>(color_brush_.m_hObject));
  RECT edge = item->rcItem;
  ::DrawEdge(item->hDC, &edge, EDGE_SUNKEN, BF_RECT);
  if (item->itemState & ODS_FOCUS) {
    ::InflateRect(&edge, -3, -3);
    ::DrawFocusRect(item->hDC, &edge);
  }
}

}  // namespace tavix
