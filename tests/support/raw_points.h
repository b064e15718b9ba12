// Points as they should look, drawn by raw calls with numbers written out here once more: a mistake
// in the library's arithmetic must not appear on both sides of a comparison.
#pragma once

#include <windows.h>

#include <string>

namespace tavix::test {

// The look a legend entry gives to points.
struct PointLegend {
  int kind = 4;
  int size = 10;         // pixels; 0 or less: no mark
  int text_height = 0;   // pixels; 0 or less: no label
  int label_number = 0;  // non-zero: the label is the number, else the name
  int width = 1;         // pen, pixels
  COLORREF color = 0;
};

// Draws the mark and `label` of a point at the pixel `at`.
void DrawRawPoint(HDC dc, const PointLegend& look, POINT at, const std::wstring& label = L"");

}  // namespace tavix::test
