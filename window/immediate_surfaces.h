// What single entities are drawn on at once: the screen and the back buffer.
#pragma once

#include <afxwin.h>

#include <functional>
#include <optional>

#include "draw/dib/dib_canvas.h"
#include "draw/drawing_way.h"
#include "draw/gdi_canvas.h"
#include "window/output.h"

namespace tavix {

// Keeps both canvases from one entity to the next, with the device context of the screen and the
// pen, brush and font that were used last: making them takes longer than drawing a point.
class ImmediateSurfaces {
 public:
  // `way` is that of the buffer's redraws. Window and buffer outlive this object.
  ImmediateSurfaces(CWnd& window, BackBuffer& buffer, DrawingWay way)
      : window_(window), buffer_(buffer), way_(way) {}
  ImmediateSurfaces(const ImmediateSurfaces&) = delete;
  ImmediateSurfaces& operator=(const ImmediateSurfaces&) = delete;

  // Has `draw` draw on the screen, where the window is visible, and into the back buffer.
  void Draw(const std::function<void(PlanCanvas&)>& draw);

  // Gives everything back.
  void Release();

 private:
  struct Screen {
    explicit Screen(CWnd& window) : surface(window), canvas(surface.Dc()) {}

    ClientSurface surface;
    GdiCanvas canvas;
  };

  [[nodiscard]] PlanCanvas& BufferCanvas();

  CWnd& window_;
  BackBuffer& buffer_;
  DrawingWay way_;
  std::optional<Screen> screen_;
  std::optional<DibCanvas> pixels_;
  std::optional<GdiCanvas> buffer_canvas_;  // where the buffer's pixels are not reached for
};

}  // namespace tavix
