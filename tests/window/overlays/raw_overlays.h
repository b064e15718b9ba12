// What lies over the plan, drawn by raw calls with numbers written out here once more.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tavix::test {

// A polyline by a solid pen of one pixel.
void DrawRawPolyline(HDC dc, COLORREF color, const std::vector<POINT>& points);

// The bracket at the left edge, `length` pixels long, and its text.
void DrawRawScaleBar(HDC dc, int length, const std::wstring& text);

// A closed rectangle in black.
void DrawRawFrame(HDC dc, int left, int top, int right, int bottom);

// A polyline by exclusive-or; twice is never.
void XorRawPolyline(HDC dc, COLORREF color, int width, const std::vector<POINT>& points);

// Exclusive-or with a pen while it lives.
class RawXor {
 public:
  RawXor(HDC dc, COLORREF color, int width)
      : dc_(dc),
        pen_(::CreatePen(PS_SOLID, width, color)),
        old_pen_(::SelectObject(dc, pen_)),
        old_operation_(::SetROP2(dc, R2_XORPEN)) {}
  ~RawXor() {
    ::SetROP2(dc_, old_operation_);
    ::SelectObject(dc_, old_pen_);
    ::DeleteObject(pen_);
  }
  RawXor(const RawXor&) = delete;
  RawXor& operator=(const RawXor&) = delete;

 private:
  HDC dc_;
  HGDIOBJ pen_;
  HGDIOBJ old_pen_;
  int old_operation_;
};

}  // namespace tavix::test
