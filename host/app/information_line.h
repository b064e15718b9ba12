// The information line below the plot. Clicks on it are reported to the parent.
#pragma once

#include <afxwin.h>

namespace fieldhost {

class InformationLine {
 public:
  // `may_wrap`: in a narrow window it takes two rows, so that the text of a tool fits.
  BOOL Create(CWnd& parent, UINT id, bool may_wrap);

  // The height it takes at the foot of a client area of this width, in pixels.
  [[nodiscard]] int HeightFor(int width) const;
  void Place(const CRect& rect);

  void Show(const CString& text);

  [[nodiscard]] CFont& Font() { return font_; }

 private:
  [[nodiscard]] bool Wraps(int width) const;

  CFont font_;
  CStatic text_;
  bool may_wrap_ = false;
};

}  // namespace fieldhost
