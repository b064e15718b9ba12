// The expected 3-D side view, drawn by raw calls with numbers written out here once more.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "tests/support/raw_points.h"

namespace tavix::test {

// A point of the side view: where the plan has it, and how far it stands above the ground there.
struct SidePoint {
  POINT plan;  // pixels of the plan
  int raise;   // pixels
  PointLegend look;
  std::wstring label;
  bool grey = false;  // expected hidden by the ground
};

// Where the side view of a window of this client height puts a pixel of the plan.
[[nodiscard]] POINT OnSide(POINT plan, int height);

// The whole view: the box, the points and the text of the height base.
void DrawRawSideView(HDC dc, SIZE client, const std::vector<SidePoint>& points,
                     const std::wstring& height_base);

}  // namespace tavix::test
