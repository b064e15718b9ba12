// The column of on-screen buttons of a plot window.
#pragma once

#include <afxext.h>
#include <afxwin.h>

#include <array>
#include <cstddef>
#include <vector>

#include "window/buttons/button_column_layout.h"

namespace tavix {

class ButtonColumn {
 public:
  // Makes the buttons of the table, hidden, at the right edge of `parent`'s client area. False when
  // one of them or a bitmap of it could not be made.
  bool Create(CWnd& parent);

  // Destroys the buttons' windows.
  void Destroy();

  // Shows the buttons that the layout shows, or hides all.
  void Show(bool show);

  // Scrolls by one button; false at the end of the column, where nothing changes.
  bool ScrollUp();
  bool ScrollDown();

  // Gives a button that stays pressed in its pressed or its normal faces.
  void SetPressed(ButtonId id, bool pressed);

  // Disables every button that shows but the one, or enables them all again.
  void DisableAllBut(ButtonId id);
  void EnableAll();

  // Whether the column is on the screen, and whether a button of it that is covers this client
  // position.
  [[nodiscard]] bool IsOnScreen() const;
  [[nodiscard]] bool Covers(CPoint at) const;

  // Invalidates `rect` of the parent's client area, with the child windows in it but without the
  // buttons, which a new picture leaves as they are.
  void InvalidateAround(CWnd& parent, const CRect& rect) const;

  // Keeps a drawing on the parent off the buttons.
  void ExcludeFrom(CDC& dc) const;

  // Has the buttons painted.
  void Invalidate();

 private:
  [[nodiscard]] CBitmapButton& Button(int k) { return buttons_[static_cast<std::size_t>(k)]; }
  [[nodiscard]] const CBitmapButton& Button(int k) const {
    return buttons_[static_cast<std::size_t>(k)];
  }
  [[nodiscard]] bool IsShown(int k) const;

  // The places of the buttons that have the visible style, in client pixels of the parent.
  [[nodiscard]] std::vector<CRect> Places() const;
  void Arrange();

  std::array<CBitmapButton, ButtonColumnLayout::kButtons> buttons_;
  ButtonColumnLayout layout_{0};
  bool shown_ = false;
};

}  // namespace tavix
