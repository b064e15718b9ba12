#include "draw/dib/dib_section.h"

#include <afxwin.h>

#include <gtest/gtest.h>

namespace tavix::test {
namespace {

TEST(DibSection, ShowsWhatTheSystemDrawsFromTheTopLeft) {
  CClientDC screen(nullptr);
  CDC dc;
  dc.CreateCompatibleDC(&screen);
  CBitmap bitmap;
  const PixelBlock block = CreateDib(screen, 5, 3, bitmap);
  ASSERT_TRUE(block.pixels);
  EXPECT_EQ(5, block.width);
  EXPECT_EQ(3, block.height);
  CBitmap* old = dc.SelectObject(&bitmap);
  ::SetPixel(dc.m_hDC, 3, 1, RGB(1, 2, 3));
  ::GdiFlush();
  EXPECT_EQ(0x00010203u, *block.At(3, 1));
  *block.At(0, 2) = 0x00040506;
  EXPECT_EQ(RGB(4, 5, 6), ::GetPixel(dc.m_hDC, 0, 2));
  dc.SelectObject(old);
}

TEST(DibSection, OfNoSizeIsNone) {
  CClientDC screen(nullptr);
  for (const auto& [width, height] : {std::pair{0, 5}, {5, 0}, {0, 0}}) {
    CBitmap bitmap;
    EXPECT_FALSE(CreateDib(screen, width, height, bitmap).pixels);
    EXPECT_FALSE(bitmap.m_hObject);
  }
}

}  // namespace
}  // namespace tavix::test
