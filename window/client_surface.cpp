#include "window/client_surface.h"

namespace tavix {

ClientSurface::ClientSurface(CWnd& window) : window_(window.m_hWnd) {
  dc_.Attach(::GetDCEx(window_, nullptr, DCX_CACHE | DCX_CLIPCHILDREN | DCX_CLIPSIBLINGS));
}

ClientSurface::~ClientSurface() { ::ReleaseDC(window_, dc_.Detach()); }

}  // namespace tavix
