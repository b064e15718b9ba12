// A dialog template of the device, made fit for this system.
#pragma once

#include <afxwin.h>

#include <vector>

namespace tdialog {

class DeviceTemplate {
 public:
  // A copy of the resource, see AfxFindResourceHandle; empty when there is none or it is too short.
  explicit DeviceTemplate(LPCWSTR name);

  // Null when empty. Lives as long as this object.
  const DLGTEMPLATE* Get() const {
    return words_.empty() ? nullptr : reinterpret_cast<const DLGTEMPLATE*>(words_.data());
  }
  // The template asked for the caption's OK button. The copy does not: elsewhere the style is
  // unknown.
  BOOL HasCaptionOkButton() const { return captionOkButton_; }

 private:
  std::vector<DWORD> words_;
  BOOL captionOkButton_ = FALSE;
};

}  // namespace tdialog
