// Asks for the size, the resolution and the file of a one-bit picture.
#pragma once

#include <afxwin.h>

#include <filesystem>
#include <vector>

#include "host/pictures/picture_size.h"

namespace fieldhost {

// Offers sizes and resolutions to choose from and lets the user type others.
class ExportDialog : public CDialog {
 public:
  // `plot` is the drawing area's size, the first offer.
  ExportDialog(CWnd& parent, const PictureSize& plot);

  // Within the limits when DoModal ended with IDOK. The resolution in dots an inch.
  [[nodiscard]] const PictureSize& Size() const { return chosen_.size; }
  [[nodiscard]] int Resolution() const { return chosen_.resolution; }

  BOOL OnInitDialog() override;

 protected:
  void OnOK() override;
  afx_msg void OnOffer();
  DECLARE_MESSAGE_MAP()

 private:
  struct Offer {
    CString text;
    PictureSize size;
    int resolution;
  };

  void Show(const Offer& offer);
  void Complain(const CString& text, int control);

  std::vector<Offer> offers_;
  Offer chosen_;
};

// The file the user wants the picture in; empty when the user cancelled.
[[nodiscard]] std::filesystem::path AskForPictureFile(CWnd& parent);

}  // namespace fieldhost
