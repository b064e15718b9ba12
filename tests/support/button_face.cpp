#include "tests/support/button_face.h"

#include <gtest/gtest.h>

#include "tests/support/raw_canvas.h"

namespace tavix::test {

void DrawFace(HDC dc, unsigned bitmap, POINT at) {
  const HBITMAP face =
      ::LoadBitmapW(::GetModuleHandleW(L"tavix.dll"), MAKEINTRESOURCEW(static_cast<WORD>(bitmap)));
  ASSERT_NE(nullptr, face) << bitmap;
  BITMAP size{};
  ::GetObjectW(face, sizeof size, &size);
  const HDC source = ::CreateCompatibleDC(dc);
  {
    const RawSelection selection(source, face);
    ::BitBlt(dc, at.x, at.y, size.bmWidth, size.bmHeight, source, 0, 0, SRCCOPY);
  }
  ::DeleteDC(source);
}

}  // namespace tavix::test
