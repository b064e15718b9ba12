// What lies over the plan, drawn by raw calls with numbers written out here once more.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "tests/support/raw_canvas.h"

namespace tavix::test {

// A polyline by a solid pen of one pixel.
void DrawRawPolyline(HDC dc, COLORREF color, const std::vector<POINT>& points);

// The bracket at the left edge, `length` pixels long, and its text.
void DrawRawScaleBar(HDC dc, int length, const std::wstring& text);

// A closed rectangle in black.
void DrawRawFrame(HDC dc, int left, int top, int right, int bottom);

// A polyline by exclusive-or; twice is never.
void XorRawPolyline(HDC dc, COLORREF color, int width, const std::vector<POINT>& points);

// The dashed red outline of a zoom window, by exclusive-or; its first corner is its last one too.
// Leaves the background opaque and the drawing mode at exclusive-or.
void XorRawBand(HDC dc, const POINT (&outline)[5]);

// Exclusive-or with a solid pen while it lives.
class RawXor {
 public:
  RawXor(HDC dc, COLORREF color, int width)
      : dc_(dc),
        pen_(dc, ::CreatePen(PS_SOLID, width, color)),
        old_operation_(::SetROP2(dc, R2_XORPEN)) {}
  ~RawXor() { ::SetROP2(dc_, old_operation_); }
  RawXor(const RawXor&) = delete;
  RawXor& operator=(const RawXor&) = delete;

 private:
  HDC dc_;
  RawSelection pen_;
  int old_operation_;
};

}  // namespace tavix::test
