// Drawing on the screen outside of a paint.
#pragma once

#include <afxwin.h>

namespace tavix {

// A device context of a window's client area that spares its child windows, so that what is drawn
// at once never covers the buttons.
class ClientSurface {
 public:
  explicit ClientSurface(CWnd& window);
  ~ClientSurface();
  ClientSurface(const ClientSurface&) = delete;
  ClientSurface& operator=(const ClientSurface&) = delete;

  [[nodiscard]] CDC& Dc() { return dc_; }

 private:
  HWND window_;
  CDC dc_;
};

}  // namespace tavix
