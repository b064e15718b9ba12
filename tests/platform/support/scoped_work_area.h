// A screen with less room for windows.
#pragma once

#include <windows.h>

namespace test {

// Makes this the work area of the primary screen for a scope.
class ScopedWorkArea {
 public:
  explicit ScopedWorkArea(RECT area) {
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &before_, 0);
    ::SystemParametersInfoW(SPI_SETWORKAREA, 0, &area, 0);
  }
  ~ScopedWorkArea() { ::SystemParametersInfoW(SPI_SETWORKAREA, 0, &before_, 0); }
  ScopedWorkArea(const ScopedWorkArea&) = delete;
  ScopedWorkArea& operator=(const ScopedWorkArea&) = delete;

 private:
  RECT before_;
};

}  // namespace test
