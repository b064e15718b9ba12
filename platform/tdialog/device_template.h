// A dialog template of the device, made fit for this system.
#pragma once

#include <afxwin.h>

#include <cstddef>
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

  // The size of the template's font in points; 0 when it has no font of its own. All the dialog
  // grows and shrinks with it.
  int FontPoints() const;
  // Only for a template with a font.
  void SetFontPoints(int points);

  // The size in pixels of a window with this template, `extraHeight` dialog units higher; zeros
  // when there cannot be one.
  SIZE WindowSize(int extraHeight) const;

 private:
  std::vector<WORD> words_;
  std::size_t pointsAt_ = 0;  // 0: no font
  BOOL captionOkButton_ = FALSE;
};

}  // namespace tdialog
