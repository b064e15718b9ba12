#include "window/output.h"

#include "draw/dib/dib_section.h"

namespace tavix {

void BackBuffer::Create(CWnd& window) {
  window.GetClientRect(&rect_);
  if (rect_.IsRectEmpty()) return;
  CClientDC client(&window);
  dc_.CreateCompatibleDC(&client);
  pixels_ = CreateDib(client, rect_.right, rect_.bottom, bitmap_);
  if (!pixels_.pixels) bitmap_.CreateCompatibleBitmap(&client, rect_.right, rect_.bottom);
  selected_.emplace(dc_, bitmap_);
  Fill();
}

void BackBuffer::Fill() { ::FillRect(dc_.m_hDC, &rect_, ::GetSysColorBrush(COLOR_WINDOW)); }

ClientSurface::ClientSurface(CWnd& window) : window_(window.m_hWnd) {
  dc_.Attach(::GetDCEx(window_, nullptr, DCX_CACHE | DCX_CLIPCHILDREN | DCX_CLIPSIBLINGS));
}

ClientSurface::~ClientSurface() { ::ReleaseDC(window_, dc_.Detach()); }

void BeepOnRefusal() { ::MessageBeep(0xFFFFFFFF); }

void BeepIfCut(bool cut) {
  if (cut) BeepOnRefusal();
}

}  // namespace tavix
