#include "host/tools/sheet_dialog.h"

#include <string>

#include "host/app/display_text.h"
#include "host/resources/fieldhost_ids.h"

namespace fieldhost {
namespace {

CString ScaleText(int scale) {
  CString text;
  text.Format(L"%d", scale);
  return text;
}

class CSheetDialog : public CDialog {
 public:
  CSheetDialog(CWnd& parent, const Sheet& sheet)
      : CDialog(IDD_SHEET, &parent), sheet_(sheet), landscape_(sheet.landscape ? 1 : 0) {}

  [[nodiscard]] const Sheet& Chosen() const { return sheet_; }

 protected:
  void DoDataExchange(CDataExchange* exchange) override;
  BOOL OnInitDialog() override;
  void OnOK() override;

 private:
  void FillPapers();
  void FillScales();

  Sheet sheet_;
  int landscape_;  // the checked one of the two radio buttons
  CString scale_;
  CComboBox papers_;
  CComboBox scales_;
};

void CSheetDialog::DoDataExchange(CDataExchange* exchange) {
  CDialog::DoDataExchange(exchange);
  DDX_Control(exchange, IDC_SHEET_PAPER, papers_);
  DDX_Control(exchange, IDC_SHEET_SCALE, scales_);
  DDX_Radio(exchange, IDC_SHEET_PORTRAIT, landscape_);
  DDX_CBString(exchange, IDC_SHEET_SCALE, scale_);
}

BOOL CSheetDialog::OnInitDialog() {
  scale_ = ScaleText(sheet_.scale);
  CDialog::OnInitDialog();
  FillPapers();
  FillScales();
  CenterWindow();
  return TRUE;
}

void CSheetDialog::FillPapers() {
  for (const PaperSize& paper : PaperSizes()) {
    const int index = papers_.AddString(WideOf(paper.name));
    if (paper.name == sheet_.paper.name) papers_.SetCurSel(index);
  }
}

void CSheetDialog::FillScales() {
  for (const int scale : UsualScales()) scales_.AddString(ScaleText(scale));
  scales_.SetWindowText(scale_);  // filling the list cleared the text
}

// An invalid scale keeps the dialog open and shows the reason.
void CSheetDialog::OnOK() {
  if (!UpdateData(TRUE)) return;
  const std::string typed = Utf8Of(scale_);
  const std::optional<int> scale = ParseScale(typed);
  if (!scale) {
    SetDlgItemText(IDC_SHEET_PROBLEM, WideOf(NoScale(typed)));
    GotoDlgCtrl(&scales_);
    constexpr LPARAM kAll = MAKELONG(0, 0xFFFF);
    scales_.SendMessage(CB_SETEDITSEL, 0, kAll);  // what is typed next replaces it
    return;
  }
  const std::size_t paper = static_cast<std::size_t>(papers_.GetCurSel());
  sheet_ = {.paper = PaperSizes()[paper], .landscape = landscape_ == 1, .scale = *scale};
  EndDialog(IDOK);
}

}  // namespace

std::optional<Sheet> AskForSheet(CWnd& parent, const Sheet& sheet) {
  CSheetDialog dialog(parent, sheet);
  if (dialog.DoModal() != IDOK) return std::nullopt;
  return dialog.Chosen();
}

}  // namespace fieldhost
