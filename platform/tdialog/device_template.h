// A copy of a device's dialog template, adapted to this system.
#pragma once

#include <afxwin.h>

#include <cstddef>
#include <vector>

namespace tdialog {

class DeviceTemplate {
 public:
  // A copy of the resource, see AfxFindResourceHandle; empty when there is none or it is too short.
  explicit DeviceTemplate(LPCWSTR name);

  // Null when empty. Valid as long as this object.
  const DLGTEMPLATE* Get() const {
    return words_.empty() ? nullptr : reinterpret_cast<const DLGTEMPLATE*>(words_.data());
  }
  // Whether the template has the style for an OK button in the caption. The copy does not have it:
  // other systems do not know the style.
  BOOL HasCaptionOkButton() const { return captionOkButton_; }

  // The size of the template's font in points; 0 when it has no font of its own. The size of the
  // dialog depends on it.
  int FontPoints() const;
  // Only for a template with a font.
  void SetFontPoints(int points);

  // The size in pixels of a window with this template, `extraHeight` dialog units higher; zeros
  // when the window cannot be created.
  SIZE WindowSize(int extraHeight) const;

 private:
  std::vector<WORD> words_;
  std::size_t pointsAt_ = 0;  // 0: no font
  BOOL captionOkButton_ = FALSE;
};

}  // namespace tdialog
