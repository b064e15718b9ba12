#include "window/back_buffer.h"

#include "draw/bits/pixel_section.h"

namespace tavix {

BackBuffer::~BackBuffer() {
  if (old_bitmap_) dc_.SelectObject(old_bitmap_);
  bitmap_.DeleteObject();
  dc_.DeleteDC();
}

void BackBuffer::Create(CWnd& window) {
  window.GetClientRect(&rect_);
  CClientDC client(&window);
  dc_.CreateCompatibleDC(&client);
  pixels_ = CreatePixelSection(client, rect_.right, rect_.bottom, bitmap_);
  if (!pixels_.pixels) bitmap_.CreateCompatibleBitmap(&client, rect_.right, rect_.bottom);
  old_bitmap_ = dc_.SelectObject(&bitmap_);
  Fill();
}

void BackBuffer::Fill() { ::FillRect(dc_.m_hDC, &rect_, ::GetSysColorBrush(COLOR_WINDOW)); }

}  // namespace tavix
