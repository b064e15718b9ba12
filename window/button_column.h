// The column of on-screen buttons of a plot window.
#pragma once

#include <afxext.h>
#include <afxwin.h>

#include <array>

#include "window/button_column_layout.h"

namespace tavix {

class ButtonColumn {
 public:
  // Makes the eleven buttons, hidden, at the right edge of `parent`'s client area. False when one
  // of them or a bitmap of it could not be made.
  bool Create(CWnd& parent);

  // Destroys the buttons' windows.
  void Destroy();

  // Shows the buttons that the layout shows, or hides all.
  void Show(bool show);

 private:
  [[nodiscard]] CBitmapButton& Button(int k) { return buttons_[static_cast<std::size_t>(k)]; }

  std::array<CBitmapButton, ButtonColumnLayout::kButtons> buttons_;
  ButtonColumnLayout layout_{0};
};

}  // namespace tavix
