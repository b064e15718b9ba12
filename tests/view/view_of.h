// Views for the tests to start from.
#pragma once

#include <gtest/gtest.h>

#include "tests/support/case_file.h"
#include "view/view_state.h"

namespace tavix::test {

// A fresh view of a drawing area of this size in pixels: a metre is a pixel, the ground point
// (0, 0) in the middle.
inline CViewState ViewOf(int width, int height) {
  CViewState view;
  view.SetScreenSize(width, height);
  return view;
}

// A fresh view with what a case says of "screen", its size, "ratio" and "angle".
inline CViewState ViewOf(const Case& given) {
  CViewState view;
  if (given.Has("screen")) {
    const ScreenPoint size = given.Screen("screen");
    view.SetScreenSize(size.x, size.y);
  }
  view.SetRatio(given.Number("ratio", 1.0));
  EXPECT_EQ(0, view.SetAngle(given.Whole("angle", 0)));
  return view;
}

}  // namespace tavix::test
