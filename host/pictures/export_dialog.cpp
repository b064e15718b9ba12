#include "host/pictures/export_dialog.h"

#include <afxdlgs.h>

#include "host/pictures/picture_writer.h"
#include "host/resources/fieldhost_ids.h"

namespace fieldhost {
namespace {

constexpr int kSheetResolution = 200;
constexpr PictureSize kA4Upright{1654, 2339};
constexpr PictureSize kA4Across{2339, 1654};
constexpr PictureSize kA3Upright{2339, 3307};

}  // namespace

BEGIN_MESSAGE_MAP(ExportDialog, CDialog)
ON_CBN_SELCHANGE(IDC_EXPORT_OFFER, &ExportDialog::OnOffer)
END_MESSAGE_MAP()

ExportDialog::ExportDialog(CWnd& parent, const PictureSize& plot)
    : CDialog(IDD_EXPORT, &parent),
      offers_{{L"As the plot", plot, ScreenResolution()},
              {L"Twice the plot", {2 * plot.width, 2 * plot.height}, ScreenResolution()},
              {L"A4 upright, 200 dpi", kA4Upright, kSheetResolution},
              {L"A4 across, 200 dpi", kA4Across, kSheetResolution},
              {L"A3 upright, 200 dpi", kA3Upright, kSheetResolution}},
      chosen_(offers_.front()) {}

BOOL ExportDialog::OnInitDialog() {
  CDialog::OnInitDialog();
  CenterWindow();
  auto& list = *static_cast<CComboBox*>(GetDlgItem(IDC_EXPORT_OFFER));
  for (const Offer& offer : offers_) list.AddString(offer.text);
  list.SetCurSel(0);
  Show(chosen_);
  return TRUE;
}

void ExportDialog::OnOffer() {
  const auto& list = *static_cast<CComboBox*>(GetDlgItem(IDC_EXPORT_OFFER));
  Show(offers_[static_cast<std::size_t>(list.GetCurSel())]);
}

void ExportDialog::Show(const Offer& offer) {
  SetDlgItemInt(IDC_EXPORT_WIDTH, static_cast<UINT>(offer.size.width));
  SetDlgItemInt(IDC_EXPORT_HEIGHT, static_cast<UINT>(offer.size.height));
  SetDlgItemInt(IDC_EXPORT_RESOLUTION, static_cast<UINT>(offer.resolution));
}

void ExportDialog::OnOK() {
  PictureSize& size = chosen_.size;
  size = {static_cast<int>(GetDlgItemInt(IDC_EXPORT_WIDTH)),
          static_cast<int>(GetDlgItemInt(IDC_EXPORT_HEIGHT))};
  chosen_.resolution = static_cast<int>(GetDlgItemInt(IDC_EXPORT_RESOLUTION));
  CString text;
  if (!size.IsAllowed()) {
    text.Format(L"Width and height go from %d to %d pixels. Type others.", PictureSize::kSmallest,
                PictureSize::kLargest);
    const bool wide_enough = PictureSize{size.width, PictureSize::kSmallest}.IsAllowed();
    Complain(text, wide_enough ? IDC_EXPORT_HEIGHT : IDC_EXPORT_WIDTH);
  } else if (!IsAllowedResolution(chosen_.resolution)) {
    text.Format(L"The resolution goes from %d to %d dots an inch. Type another.", kLowestResolution,
                kHighestResolution);
    Complain(text, IDC_EXPORT_RESOLUTION);
  } else {
    CDialog::OnOK();
  }
}

void ExportDialog::Complain(const CString& text, int control) {
  AfxMessageBox(text, MB_OK | MB_ICONWARNING);
  GotoDlgCtrl(GetDlgItem(control));
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
