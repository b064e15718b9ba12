// Asks for the size and the file of a one-bit picture.
#pragma once

#include <afxwin.h>

#include <filesystem>
#include <vector>

#include "host/picture_size.h"

namespace fieldhost {

// Offers sizes to choose from and lets the user type others.
class ExportDialog : public CDialog {
 public:
  // `plot` is the drawing area's size, the first offer.
  ExportDialog(CWnd& parent, const PictureSize& plot);

  // Within the limits when DoModal ended with IDOK.
  [[nodiscard]] const PictureSize& Size() const { return size_; }

  BOOL OnInitDialog() override;

 protected:
  void OnOK() override;
  afx_msg void OnOffer();
  DECLARE_MESSAGE_MAP()

 private:
  struct Offer {
    CString text;
    PictureSize size;
  };

  void ShowSize(const PictureSize& size);

  std::vector<Offer> offers_;
  PictureSize size_;
};

// The file the user wants the picture in; empty when the user cancelled.
[[nodiscard]] std::filesystem::path AskForPictureFile(CWnd& parent);

}  // namespace fieldhost
