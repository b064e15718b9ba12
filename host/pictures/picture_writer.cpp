#include "host/pictures/picture_writer.h"

#include <framework/scoped_select.h>

#include "host/pictures/gdi_plus.h"

namespace fieldhost {
namespace {

bool CopyClientArea(CWnd& window, CBitmap& bitmap) {
  CRect client;
  window.GetClientRect(&client);
  CClientDC screen(&window);
  CDC memory;
  if (!memory.CreateCompatibleDC(&screen) ||
      !bitmap.CreateCompatibleBitmap(&screen, client.Width(), client.Height())) {
    return false;
  }
  const CScopedSelect selected(memory, bitmap);
  return memory.BitBlt(0, 0, client.Width(), client.Height(), &screen, 0, 0, SRCCOPY);
}

}  // namespace

bool WritePicture(CWnd& window, int resolution, const std::filesystem::path& file) {
  const GdiPlus gdi_plus;
  CBitmap bitmap;
  if (!gdi_plus.HasStarted() || !CopyClientArea(window, bitmap)) return false;
  Gdiplus::Bitmap picture(bitmap, nullptr);
  return SavePng(picture, resolution, file);
}

int ScreenResolution() { return CClientDC(nullptr).GetDeviceCaps(LOGPIXELSX); }

}  // namespace fieldhost
