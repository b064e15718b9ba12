// Where the plot goes: the back buffer, the screen outside of a paint, and the beep.
#pragma once

#include <afxwin.h>
#include <framework/scoped_select.h>

#include <new>
#include <optional>

#include "draw/dib/dib_section.h"

namespace tavix {

// A memory device context with a bitmap of the size of a window's client area, made once.
// Everything is drawn here; painting copies it to the screen.
class BackBuffer {
 public:
  BackBuffer() = default;
  BackBuffer(const BackBuffer&) = delete;
  BackBuffer& operator=(const BackBuffer&) = delete;

  // Makes the buffer for `window` and fills it with the window background. For an empty client area
  // it makes nothing, and what is drawn there is lost.
  void Create(CWnd& window);

  void Fill();

  [[nodiscard]] CDC& Dc() { return dc_; }

  // The pixels that Dc() draws into; null where the screen's colours are not of 32 bits.
  [[nodiscard]] const PixelBlock& Pixels() const { return pixels_; }

  // Whether the buffer has been made and holds all of a client area.
  [[nodiscard]] bool Covers(const CRect& client) const {
    return selected_ && client.right <= rect_.right && client.bottom <= rect_.bottom;
  }

  // The client area at creation: left and top are 0.
  [[nodiscard]] const CRect& Rect() const { return rect_; }

 private:
  CDC dc_;
  CBitmap bitmap_;
  std::optional<CScopedSelect> selected_;  // the bitmap
  PixelBlock pixels_;
  CRect rect_{0, 0, 0, 0};
};

// A device context of a window's client area, to draw on the screen outside of a paint. It spares
// the child windows, so that what is drawn at once never covers the buttons.
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

// Runs a step of drawing. Drawing reports no failure: where the system has no memory or no drawing
// object for it, the rest of the step is left out, and the next redraw draws it.
template <class Draw>
void DrawWhatCanBe(Draw draw) {
  try {
    draw();
  } catch (const std::bad_alloc&) {
    // Left out.
  } catch (CResourceException* exception) {
    exception->Delete();
  }
}

// The user hears when something was refused.
void BeepOnRefusal();

// The same after an operation that answers whether the scale had to be cut to its cap.
void BeepIfCut(bool cut);

}  // namespace tavix
