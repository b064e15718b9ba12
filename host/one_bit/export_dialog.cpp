#include "host/one_bit/export_dialog.h"

#include <afxdlgs.h>

#include "host/resource.h"

namespace fieldhost {
namespace {

// 200 dots an inch.
constexpr PictureSize kA4Upright{1654, 2339};
constexpr PictureSize kA4Across{2339, 1654};
constexpr PictureSize kA3Upright{2339, 3307};

}  // namespace

BEGIN_MESSAGE_MAP(ExportDialog, CDialog)
ON_CBN_SELCHANGE(IDC_EXPORT_OFFER, &ExportDialog::OnOffer)
END_MESSAGE_MAP()

ExportDialog::ExportDialog(CWnd& parent, const PictureSize& plot)
    : CDialog(IDD_EXPORT, &parent),
      offers_{{L"As the plot", plot},
              {L"Twice the plot", {2 * plot.width, 2 * plot.height}},
              {L"A4 upright, 200 dpi", kA4Upright},
              {L"A4 across, 200 dpi", kA4Across},
              {L"A3 upright, 200 dpi", kA3Upright}},
      size_(plot) {}

BOOL ExportDialog::OnInitDialog() {
  CDialog::OnInitDialog();
  CenterWindow();
  auto& list = *static_cast<CComboBox*>(GetDlgItem(IDC_EXPORT_OFFER));
  for (const Offer& offer : offers_) list.AddString(offer.text);
  list.SetCurSel(0);
  ShowSize(size_);
  return TRUE;
}

void ExportDialog::OnOffer() {
  const auto& list = *static_cast<CComboBox*>(GetDlgItem(IDC_EXPORT_OFFER));
  ShowSize(offers_[static_cast<std::size_t>(list.GetCurSel())].size);
}

void ExportDialog::ShowSize(const PictureSize& size) {
  SetDlgItemInt(IDC_EXPORT_WIDTH, static_cast<UINT>(size.width));
  SetDlgItemInt(IDC_EXPORT_HEIGHT, static_cast<UINT>(size.height));
}

void ExportDialog::OnOK() {
  size_ = {static_cast<int>(GetDlgItemInt(IDC_EXPORT_WIDTH)),
           static_cast<int>(GetDlgItemInt(IDC_EXPORT_HEIGHT))};
  if (size_.IsAllowed()) {
    CDialog::OnOK();
    return;
  }
  CString text;
  text.Format(L"Width and height go from %d to %d pixels. Type others.", PictureSize::kSmallest,
              PictureSize::kLargest);
  AfxMessageBox(text, MB_OK | MB_ICONWARNING);
  GotoDlgCtrl(GetDlgItem(PictureSize{size_.width, PictureSize::kSmallest}.IsAllowed()
                             ? IDC_EXPORT_HEIGHT
                             : IDC_EXPORT_WIDTH));
}

std::filesystem::path AskForPictureFile(CWnd& parent) {
  constexpr const wchar_t* kFilter =
      L"PNG, one bit a pixel (*.png)|*.png|Portable bitmap (*.pbm)|*.pbm||";
  CFileDialog dialog(FALSE, L"png", L"plan.png",
                     OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST, kFilter, &parent);
  if (dialog.DoModal() != IDOK) return {};
  return dialog.GetPathName().GetString();
}

}  // namespace fieldhost
